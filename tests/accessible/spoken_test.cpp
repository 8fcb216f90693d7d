#include "tests/accessible/spoken.h"
#include "tests/support/print_to.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using accessible::Finding;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A window in which nothing is wrong, until a test spoils it.
class Spoken : public testing::Test
{
protected:
    Spoken()
    {
        popUp_->addItem(q("Plain"));
        label_->setBuddy(popUp_);
        rows_->addItems({q("One"), q("Two")});
        rows_->setAccessibleName(q("Rows"));
        auto *column = new QVBoxLayout(&window_);
        column->addWidget(label_);
        int number = 0;
        for (QWidget *control : {static_cast<QWidget *>(popUp_), static_cast<QWidget *>(box_),
                                 static_cast<QWidget *>(rows_), static_cast<QWidget *>(button_)}) {
            control->setObjectName(q("control%1").arg(++number));
            column->addWidget(control);
        }
        window_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    QWidget window_;
    QLabel *label_ = new QLabel(q("Paper:"), &window_);
    QComboBox *popUp_ = new QComboBox(&window_);
    QCheckBox *box_ = new QCheckBox(q("Collate"), &window_);
    QListWidget *rows_ = new QListWidget(&window_);
    QPushButton *button_ = new QPushButton(q("Go"), &window_);
};

TEST_F(Spoken, FindsNothingWrongWhereNothingIs)
{
    EXPECT_THAT(accessible::findings(window_), IsEmpty());
    EXPECT_THAT(accessible::walkByTab(window_), testing::SizeIs(4));
}

/// Keeps the focus, as a text editor does that takes Tab for itself.
class Trap : public QPushButton
{
    using QPushButton::QPushButton;
    bool focusNextPrevChild(bool) override { return true; }
};

TEST_F(Spoken, FindsWhatTabCannotReach)
{
    auto *trap = new Trap(q("Stay"), &window_);
    trap->setObjectName(q("trap"));
    window_.layout()->addWidget(trap);
    trap->show();
    trap->setFocus();
    EXPECT_FALSE(accessible::unreachable(window_).empty());
}

TEST_F(Spoken, FindsATabThatJumpsUp)
{
    QWidget::setTabOrder(rows_, box_);
    EXPECT_THAT(accessible::againstReadingOrder(window_),
                ElementsAre(Finding{q("control2"), q("follows control3")}));
}

/// Paints itself, and forgets the focus.
class Blank : public QPushButton
{
    using QPushButton::QPushButton;
    void paintEvent(QPaintEvent *) override {}
};

TEST_F(Spoken, FindsAFocusThatDoesNotShow)
{
    auto *blank = new Blank(q("Blank"), &window_);
    blank->setObjectName(q("blank"));
    window_.layout()->addWidget(blank);
    blank->show();
    EXPECT_THAT(accessible::unmarked(window_),
                ElementsAre(Finding{q("blank"), q("looks the same with the focus")}));
}

TEST_F(Spoken, FindsWhatHasNoName)
{
    box_->setText({});
    EXPECT_THAT(accessible::nameless(window_),
                ElementsAre(Finding{q("control2"), q("has no name")}));
}

TEST_F(Spoken, FindsAPopUpThatNoLabelNames)
{
    label_->setBuddy(nullptr);
    EXPECT_THAT(accessible::nameless(window_),
                ElementsAre(Finding{q("control1"), q("has no name")}));
}

TEST_F(Spoken, FindsTheMarkOfAMnemonicInAName)
{
    rows_->setAccessibleName(q("&Rows"));
    EXPECT_THAT(accessible::nameless(window_),
                ElementsAre(Finding{q("control3"), q("is called \"&Rows\"")}));
}

TEST_F(Spoken, FindsAWidgetWithoutARole)
{
    auto *canvas = new QWidget(&window_);
    canvas->setObjectName(q("canvas"));
    canvas->setFocusPolicy(Qt::StrongFocus);
    canvas->show();
    EXPECT_THAT(accessible::misplayed(window_),
                ElementsAre(Finding{q("canvas"), q("has the role Client")}));
}

TEST_F(Spoken, FindsTwoOfTheSameName)
{
    auto *again = new QPushButton(q("Go"), &window_);
    again->setObjectName(q("again"));
    again->show();
    EXPECT_THAT(accessible::confusable(window_),
                ElementsAre(Finding{q("again"), q("has the name of control4, \"Go\"")}));
}

TEST_F(Spoken, FindsAPopUpThatSaysNothing)
{
    popUp_->setCurrentIndex(-1);
    EXPECT_THAT(accessible::silent(window_),
                ElementsAre(Finding{q("control1"), q("says no value")}));
}

TEST_F(Spoken, FindsARowThatSaysNothing)
{
    rows_->addItem(QString());
    EXPECT_THAT(accessible::silent(window_),
                ElementsAre(Finding{q("Rows"), q("has a row that begins with nothing")}));
}

} // namespace
