#include "platform/controls/controls.h"
#include "platform/controls/pop_up_button.h"
#include "tests/platform/controls/wheel.h"
#include "tests/support/print_to.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStringListModel>
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

namespace {

/// Changes a pop-up button and a combo box alike.
using Change = void (*)(QComboBox &);

struct SizeCase
{
    const char *name;
    Change change;
};
void PrintTo(const SizeCase &sizeCase, std::ostream *out)
{
    *out << sizeCase.name;
}

QIcon smallIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return pixmap;
}

// clang-format off
const SizeCase kSizeCases[] = {
    {"Empty",         [](QComboBox &box) { box.clear(); }},
    {"Items",         [](QComboBox &) {}},
    {"ItemAdded",     [](QComboBox &box) { box.addItem(q("Photo Paper, Glossy")); }},
    {"ItemRemoved",   [](QComboBox &box) { box.removeItem(1); }},
    {"ItemRenamed",   [](QComboBox &box) { box.setItemText(0, q("Heavyweight Paper")); }},
    {"ItemWithIcon",  [](QComboBox &box) { box.setItemIcon(1, smallIcon()); }},
    {"LargeIcons",    [](QComboBox &box) { box.setIconSize({48, 48});
                                           box.setItemIcon(1, smallIcon()); }},
    {"OtherFont",     [](QComboBox &box) { QFont font = box.font();
                                           font.setPointSize(2 * font.pointSize());
                                           box.setFont(font); }},
};
// clang-format on

class PopUpButtonSizes : public testing::TestWithParam<SizeCase>
{
protected:
    static void fill(QComboBox &box)
    {
        box.addItems({q("Plain"), q("Photo"), q("Env")});
        static_cast<void>(box.sizeHint()); // is known when something changes
    }
};

} // namespace

TEST_P(PopUpButtonSizes, AreThoseOfAComboBoxThatFollowsItsItems)
{
    QComboBox box;
    box.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    PopUpButton popUp;
    fill(box);
    fill(popUp);
    GetParam().change(box);
    GetParam().change(popUp);
    EXPECT_EQ(popUp.sizeHint(), box.sizeHint());
}

INSTANTIATE_TEST_SUITE_P(All, PopUpButtonSizes, testing::ValuesIn(kSizeCases),
                         [](const auto &sizeCase) { return std::string(sizeCase.param.name); });

TEST(PopUpButtonSize, IsThatManyLettersWithAMinimumContentsLength)
{
    PopUpButton popUp;
    popUp.setMinimumContentsLength(9);
    const QSize before = popUp.sizeHint();
    popUp.addItem(QString(60, u'W'));
    EXPECT_EQ(popUp.sizeHint(), before);
    EXPECT_GE(before.width(), 9 * popUp.fontMetrics().horizontalAdvance(u'X'));
}

TEST(PopUpButtonSize, FollowsAnotherModel)
{
    QStringListModel shorter({q("A")});
    QStringListModel longer({q("Photo Paper")});
    PopUpButton popUp;
    popUp.setModel(&shorter);
    const int width = popUp.sizeHint().width();
    popUp.setModel(&longer);
    EXPECT_GT(popUp.sizeHint().width(), width);
    const int longWidth = popUp.sizeHint().width();
    shorter.setStringList({QString(60, u'W')});
    EXPECT_EQ(popUp.sizeHint().width(), longWidth);
    longer.setStringList({q("A")});
    EXPECT_EQ(popUp.sizeHint().width(), width);
}

TEST_F(PopUpButtons, MakeTheirListWhenItIsOpened)
{
    popUp->addItem(q("Label"));
    popUp->setCurrentIndex(3);
    EXPECT_TRUE(popUp->findChildren<QAbstractItemView *>().isEmpty());
    popUp->showPopup();
    EXPECT_FALSE(popUp->findChildren<QAbstractItemView *>().isEmpty());
    popUp->hidePopup();
}
