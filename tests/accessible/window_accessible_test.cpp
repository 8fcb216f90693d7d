#include "dialog/window/notice_area.h"
#include "dialog/window/print_window.h"
#include "tests/accessible/spoken.h"
#include "tests/layout/sample_window.h"
#include "tests/support/print_to.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::IsEmpty;

namespace {

/// The smallest usual screen, less a title bar, a panel of the desktop and borders.
constexpr QSize kRoom(1024 - 8, 768 - 64);
/// Larger than the window needs, so that nothing is scrolled out of sight.
constexpr QSize kSpacious(1600, 1400);

class AccessibleWindow : public testing::TestWithParam<Look>
{
protected:
    AccessibleWindow() : desktop_(GetParam()), dialog_(openSample(GetParam(), document())) {}

    static QString document() { return q(KORVANE_SAMPLE_DOCUMENT); }
    [[nodiscard]] QWidget &window() { return *dialog_->window(); }
    [[nodiscard]] dialog::PanelStack &panels() { return dialog_->panels(); }
    template <class Control>
    Control *control(const char *name)
    {
        return window().findChild<Control *>(q(name));
    }
    /// Every panel in turn, in a window that has room for it, with what it hides disclosed.
    template <class Check>
    void withEachPanel(Check check)
    {
        for (int panel = 0; panel < panels().count(); ++panel) {
            SCOPED_TRACE(panels().title(panel).toStdString());
            panels().bringForward(panel);
            disclose();
            settle();
            check();
        }
    }
    void disclose()
    {
        auto *triangle = control<QAbstractButton>("ibDisclosure");
        if (triangle && triangle->isVisible() && !triangle->isChecked())
            QTest::keyClick(triangle, Qt::Key_Space);
    }

private:
    Desktop desktop_;

protected:
    std::unique_ptr<dialog::PrintDialog> dialog_;
};

TEST_P(AccessibleWindow, SpeaksAndIsWalkedByTabWhicheverPanelIsInFront)
{
    withEachPanel([this] {
        window().resize(kSpacious);
        settle();
        EXPECT_THAT(accessible::findings(window()), IsEmpty());
        if (QWidget *view = dialog_->window()->view(panels().frontIndex())) {
            EXPECT_THAT(layout::unlabelled(*view), IsEmpty());
        }
        EXPECT_THAT(layout::unlabelled(window()), IsEmpty());
    });
}

TEST_P(AccessibleWindow, SpeaksItsNotices)
{
    dialog_->window()->notices().show({q("one"), dialog::Severity::Warning, q("The first."), {}});
    dialog_->window()->notices().show({q("two"), dialog::Severity::Critical, q("The second."), {}});
    dialog_->window()->notices().show(
        {q("three"),
         dialog::Severity::Information,
         q("The third."),
         {{q("Do It"), q("doIt"), [] {}}, {q("Leave It"), q("leaveIt"), [] {}}}});
    window().resize(kSpacious);
    settle();
    EXPECT_THAT(accessible::findings(window()), IsEmpty());
}

TEST_P(AccessibleWindow, FitsASmallScreenWhicheverPanelIsInFront)
{
    withEachPanel([this] {
        const QSize least = window().minimumSizeHint();
        EXPECT_LE(least.width(), kRoom.width());
        EXPECT_LE(least.height(), kRoom.height());
        window().resize(kRoom);
        settle();
        EXPECT_EQ(window().size(), kRoom);
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, AccessibleWindow, testing::ValuesIn(allLanguages()),
                         [](const auto &look) { return std::string(look.param.language); });

class ReadableWindow : public AccessibleWindow
{
};

TEST_P(ReadableWindow, StandsOutFromItsBackground)
{
    withEachPanel([this] {
        window().resize(kSpacious);
        settle();
        EXPECT_THAT(layout::faint(window()), IsEmpty());
        if (QWidget *view = dialog_->window()->view(panels().frontIndex())) {
            EXPECT_THAT(layout::faint(*view), IsEmpty());
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Shades, ReadableWindow,
                         testing::Values(Look{"en"}, Look{"en", 1, Shade::Dark},
                                         Look{"ja", 2, Shade::Dark}),
                         [](const auto &look) {
                             return std::string(look.param.language) +
                                    (look.param.fontScale > 1 ? "DoubleFont" : "") +
                                    (look.param.shade == Shade::Dark ? "Dark" : "Light");
                         });

class WindowWords : public AccessibleWindow
{
};

TEST_P(WindowWords, DescribeThePreviewedSheet)
{
    const auto *preview =
        QAccessible::queryAccessibleInterface(control<QWidget>("previewSheetView"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return preview->text(QAccessible::Description).contains(q("Page 1")); }));
}

TEST_P(WindowWords, ReadTheSummaryRowByRow)
{
    panels().bringForward(panels().count() - 1);
    settle();
    QStringList read;
    auto *rows = QAccessible::queryAccessibleInterface(control<QWidget>("summaryRows"));
    for (int cell = 0; cell < rows->childCount(); ++cell)
        read.append(rows->child(cell)->text(QAccessible::Name));
    const auto paper = read.indexOf(q("Paper Size"));
    ASSERT_GE(paper, 0) << read.join(u'|').toStdString();
    EXPECT_TRUE(read.value(paper + 1).startsWith(q("US Letter"))) << read[paper + 1].toStdString();
}

class WindowKeys : public AccessibleWindow
{
};

TEST_P(WindowKeys, PressPrintByReturnFromASetting)
{
    auto *print = control<QPushButton>("printButton");
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(print)->state().defaultButton);
    QSignalSpy pressed(dialog_->window(), &dialog::PrintWindow::printRequested);
    control<QWidget>("copies")->setFocus();
    QTest::keyClick(control<QWidget>("copies"), Qt::Key_Return);
    EXPECT_EQ(pressed.count(), 1);
}

TEST_P(WindowKeys, LeaveByEscape)
{
    QSignalSpy left(dialog_->window(), &dialog::PrintWindow::left);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(left.count(), 1);
}

TEST_P(WindowKeys, TellWhyPrintCannotBePressed)
{
    dialog_->window()->setPrintProblem(q("No such page."));
    EXPECT_TEXT(QAccessible::queryAccessibleInterface(control<QPushButton>("printButton"))
                    ->text(QAccessible::Description),
                "No such page.");
}

INSTANTIATE_TEST_SUITE_P(English, WindowWords, testing::Values(Look{"en"}),
                         [](const auto &) { return std::string("en"); });
INSTANTIATE_TEST_SUITE_P(English, WindowKeys, testing::Values(Look{"en"}),
                         [](const auto &) { return std::string("en"); });

} // namespace
