#include "platform/controls/controls.h"
#include "platform/controls/pop_up_button.h"
#include "tests/platform/controls/wheel.h"
#include "tests/support/print_to.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

using test::q;

namespace {

/// A pop-up with its label, in a scroll area that is too low, beside a field that has the focus.
class PopUpButtons : public testing::Test
{
protected:
    PopUpButtons()
    {
        auto *content = new QWidget;
        auto *column = new QVBoxLayout(content);
        for (QWidget *widget : std::initializer_list<QWidget *>{field, label, popUp})
            column->addWidget(widget);
        column->addSpacing(1000);
        label->setBuddy(popUp);
        for (const char *title : {"Plain", "Photo", "Envelope"})
            controls::addItem(popUp, q(title), q(title).toUpper());
        area.setWidget(content);
        area.resize(300, 150);
        area.show();
        area.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&area));
        field->setFocus();
    }

    QScrollArea area;
    QLineEdit *const field = new QLineEdit;
    QLabel *const label = new QLabel(q("Paper:"));
    PopUpButton *const popUp = new PopUpButton;
    QSignalSpy actions{popUp, &QComboBox::activated};
};

} // namespace

TEST_F(PopUpButtons, LetTheWheelScrollTheirParentWithoutFocus)
{
    test::turnWheel(popUp, -test::kNotch);
    EXPECT_EQ(popUp->currentIndex(), 0);
    EXPECT_EQ(actions.count(), 0);
    EXPECT_GT(area.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(PopUpButtons, FollowTheWheelWithFocus)
{
    popUp->setFocus();
    test::turnWheel(popUp, -test::kNotch);
    EXPECT_EQ(popUp->currentIndex(), 1);
    EXPECT_EQ(actions.count(), 1);
    EXPECT_EQ(area.verticalScrollBar()->value(), 0);
}

TEST_F(PopUpButtons, TakeTheFocusByTabAndByClick)
{
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(popUp->hasFocus());
    field->setFocus();
    QTest::mouseClick(popUp, Qt::LeftButton);
    popUp->hidePopup();
    EXPECT_TRUE(popUp->hasFocus());
}

TEST_F(PopUpButtons, FireWhenAPersonPicksEvenTheSelectedItem)
{
    popUp->setFocus();
    popUp->showPopup();
    QTest::keyClick(popUp->view(), Qt::Key_Return);
    EXPECT_EQ(popUp->currentIndex(), 0);
    ASSERT_EQ(actions.count(), 1);
    QTest::keyClick(popUp, Qt::Key_Down);
    EXPECT_EQ(popUp->currentIndex(), 1);
    EXPECT_EQ(actions.count(), 2);
}

TEST_F(PopUpButtons, AreNamedByTheirLabel)
{
    QAccessibleInterface *const reader = QAccessible::queryAccessibleInterface(popUp);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->role(), QAccessible::ComboBox);
    EXPECT_TEXT(reader->text(QAccessible::Value), "Plain");
    const auto labels = reader->relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_TEXT(labels.first().first->text(QAccessible::Name), "Paper:");
}

TEST_F(PopUpButtons, AreAsWideAsTheirLongestItemUpToABound)
{
    const int narrow = popUp->sizeHint().width();
    controls::addItem(popUp, q("Photo Quality Glossy"), q("GLOSSY"));
    const int wide = popUp->sizeHint().width();
    EXPECT_GT(wide, narrow);
    controls::addItem(popUp, QString(80, u'w'), q("W80"));
    const int bounded = popUp->sizeHint().width();
    controls::addItem(popUp, QString(5000, u'w'), q("W5000"));
    EXPECT_EQ(popUp->sizeHint().width(), bounded);
    EXPECT_LT(bounded, popUp->fontMetrics().horizontalAdvance(QString(80, u'w')));
    EXPECT_LE(popUp->minimumSizeHint().width(), bounded);
}

TEST_F(PopUpButtons, EndATitleThatDoesNotFitByAnEllipsisInEveryStyle)
{
    const QString title = q("Photo Paper Plus Glossy II");
    for (const QString &name : QStyleFactory::keys()) {
        const std::unique_ptr<QStyle> style(QStyleFactory::create(name));
        PopUpButton shortened;
        PopUpButton expected;
        for (PopUpButton *button : {&shortened, &expected}) {
            button->setStyle(style.get());
            button->resize(120, 30);
        }
        controls::addItem(&shortened, title, q("GLOSSY"));
        const QImage picture = shortened.grab().toImage();
        int matches = 0;
        for (qsizetype length = 1; length < title.size(); ++length) {
            controls::removeAllItems(&expected);
            controls::addItem(&expected, title.left(length) + u'\u2026', QString());
            matches += expected.grab().toImage() == picture ? 1 : 0;
        }
        EXPECT_GT(matches, 0) << name.toStdString();
        EXPECT_TEXT(controls::titleOfSelectedItem(&shortened), "Photo Paper Plus Glossy II");
    }
}

TEST_F(PopUpButtons, OpenAListAsWideAsItsItemsInEveryStyle)
{
    const QString title = q("Photo Paper Plus Glossy II, both sides, from the rear tray");
    for (const QString &name : QStyleFactory::keys()) {
        const std::unique_ptr<QStyle> style(QStyleFactory::create(name));
        PopUpButton narrow;
        narrow.setStyle(style.get());
        controls::addItem(&narrow, title, q("LONG"));
        narrow.setFixedWidth(60);
        narrow.show();
        narrow.showPopup();
        EXPECT_GE(narrow.view()->width(), narrow.fontMetrics().horizontalAdvance(title))
            << name.toStdString();
        narrow.hidePopup();
    }
}

TEST_F(PopUpButtons, NeverOpenAListWiderThanTheScreen)
{
    controls::addItem(popUp, QString(5000, u'w'), q("LONG"));
    popUp->showPopup();
    EXPECT_LE(popUp->view()->width(), popUp->screen()->availableSize().width());
    popUp->hidePopup();
}

TEST_F(PopUpButtons, ShowItemsLiterally)
{
    PopUpButton literal;
    controls::addItem(&literal, q("R&D <b>x</b>"), q("RD"));
    EXPECT_TEXT(controls::titleOfSelectedItem(&literal), "R&D <b>x</b>");
    PopUpButton marked;
    controls::addItem(&marked, q("RD <b>x</b>"), q("RD"));
    literal.resize(200, 30);
    marked.resize(200, 30);
    EXPECT_NE(literal.grab().toImage(), marked.grab().toImage());
}
