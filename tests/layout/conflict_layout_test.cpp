#include "conflict/dispatch.h"
#include "platform/controls/modal_session.h"
#include "tests/conflict/conflict_fixture.h"
#include "tests/layout/desktop.h"
#include "tests/support/layout_check.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>

using namespace test;
using testing::IsEmpty;

namespace {

constexpr const char *kLongPaperType = "Premium-Fotopapier, beidseitig beschichtet, extra schwer";
constexpr const char *kLongInk = "Farb- und Schwarztinte, sparsam";

class ConflictLayout : public ConflictFixture, public testing::WithParamInterface<Look>
{
protected:
    ConflictLayout()
    {
        root.writeCartridges(q("Color Standard"), q("Photo Standard"));
        make();
        setTickets("IronOn");
        EXPECT_TRUE(ConflictTestAccess::load(*controller));
    }

    /// The window as a modal session shows it, with all posted layout events done.
    static QDialog *shown(QDialog *window)
    {
        platform::centerWindow(window);
        window->show();
        QCoreApplication::sendPostedEvents();
        return window;
    }

    void expectGoodLook(QDialog *window, const char *kind)
    {
        SCOPED_TRACE(window->objectName().toStdString() + " " + kind);
        shown(window);
        keepPicture(window, window->objectName() + QLatin1Char('-') + q(kind) + QLatin1Char('-') +
                                q(testing::PrintToString(GetParam()).c_str()));
        EXPECT_THAT(layout::findings(*window), IsEmpty());
        EXPECT_THAT(layout::faint(*window), IsEmpty());
        window->close();
    }

    void expectGoodLooks()
    {
        controller->composeMsgOne();
        expectGoodLook(outlets().ibMsgOneWindow, "");
        for (const quint8 kind : {conflict::two::mirror, conflict::two::pagesPerSheet}) {
            controller->composeMsgTwo(kind);
            expectGoodLook(outlets().ibMsgTwoWindow, std::to_string(kind).c_str());
        }
        for (const quint8 kind : {conflict::five::paperSize, conflict::five::printInBlack,
                                  conflict::five::cartridge, conflict::five::inkToUse}) {
            controller->composeMsgFive(kind);
            expectGoodLook(outlets().ibMsgFiveWindow, std::to_string(kind).c_str());
        }
    }

    Desktop desktop{GetParam()};
};

TEST_P(ConflictLayout, EveryWindowWithEveryKindOfTextLooksRight)
{
    expectGoodLooks();
}

TEST_P(ConflictLayout, LongTextsOfThePrinterWrap)
{
    model.setPaperType(q(kLongPaperType));
    model.setInkToUse(q(kLongInk));
    expectGoodLooks();
}

/// The window is small before long texts come: it grows with them, and is used again by the next
/// case.
TEST_P(ConflictLayout, AWindowGrowsWithItsNextText)
{
    controller->composeMsgFive(conflict::five::inkToUse);
    expectGoodLook(outlets().ibMsgFiveWindow, "short");
    model.setPaperType(q(kLongPaperType) + u' ' + q(kLongPaperType) + u' ' + q(kLongPaperType));
    controller->composeMsgFive(conflict::five::inkToUse);
    expectGoodLook(outlets().ibMsgFiveWindow, "long");
}

TEST_P(ConflictLayout, InstructionsAreCompleteAndScrollUpAndDownOnly)
{
    QDialog *window = outlets().ibInstructionWindow;
    const auto *area = window->findChild<QScrollArea *>();
    for (quint8 kind = 0; kind < 5; ++kind) {
        SCOPED_TRACE(int(kind));
        controller->composeInstructionMsg(kind);
        shown(window);
        keepPicture(window, q("instructions-") + QString::number(kind) + QLatin1Char('-') +
                                q(testing::PrintToString(GetParam()).c_str()));
        EXPECT_THAT(layout::findings(*window), IsEmpty());
        EXPECT_THAT(layout::clipped(*area->widget()), IsEmpty());
        EXPECT_THAT(layout::faint(*area->widget()), IsEmpty());
        window->close();
    }
    controller->composeInstructionMsg(0);
    window->show();
    window->resize(300, 150);
    QCoreApplication::sendPostedEvents();
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
    EXPECT_LE(area->widget()->width(), area->viewport()->width());
    EXPECT_THAT(layout::clipped(*area->widget()), IsEmpty());
    EXPECT_THAT(layout::outside(*window), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Looks, ConflictLayout, testing::ValuesIn(allLooks()),
                         [](const auto &look) { return std::to_string(look.index); });

class ConflictWindow : public ConflictFixture
{
protected:
    ConflictWindow()
    {
        make();
        setTickets("IronOn");
        EXPECT_TRUE(ConflictTestAccess::load(*controller));
        controller->composeMsgOne();
        window = outlets().ibMsgOneWindow;
        window->show();
    }

    QDialog *window = nullptr;
};

TEST_F(ConflictWindow, TellsTheTwoSettingsInConflictApartFromTheOtherTexts)
{
    const QLabel *first = outlets().ibLabelA_MsgOne;
    const QLabel *second = outlets().ibLabelC_MsgOne;
    for (const QLabel *setting : {first, second}) {
        EXPECT_TRUE(setting->font().bold());
        const auto *frame = qobject_cast<const QFrame *>(setting->parentWidget());
        ASSERT_TRUE(frame);
        EXPECT_NE(frame->frameShape(), QFrame::NoFrame);
    }
    EXPECT_NE(first->parentWidget(), second->parentWidget());
    EXPECT_LT(first->parentWidget()->geometry().bottom(), outlets().ibLabelB_MsgOne->y());
    EXPECT_LT(outlets().ibLabelB_MsgOne->geometry().bottom(), second->parentWidget()->y());
    EXPECT_FALSE(outlets().ibLabelB_MsgOne->font().bold());
}

TEST_F(ConflictWindow, SetsEachChoicesTextBesideItsButton)
{
    const QRadioButton *button = outlets().ibFirstButton_MsgOne;
    const QLabel *text = outlets().ibLabelA_FirstButton_MsgOne;
    EXPECT_GT(text->x(), button->geometry().right());
    const int middle = button->geometry().center().y();
    EXPECT_NEAR(middle, text->y() + text->fontMetrics().height() / 2, 3);
}

TEST_F(ConflictWindow, ReturnIsOkAndEscapeCloses)
{
    EXPECT_TRUE(outlets().ibOkButton_MsgOne->isDefault());
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    for (QDialog *other : {outlets().ibMsgTwoWindow.data(), outlets().ibMsgFiveWindow.data(),
                           outlets().ibInstructionWindow.data()}) {
        const auto buttons = other->findChildren<QPushButton *>();
        EXPECT_EQ(std::ranges::count_if(buttons, &QPushButton::isDefault), 1)
            << other->objectName().toStdString();
        other->show();
        QTest::keyClick(other, Qt::Key_Escape);
        EXPECT_FALSE(other->isVisible());
    }
}

} // namespace
