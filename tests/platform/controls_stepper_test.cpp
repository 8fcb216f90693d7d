#include "platform/controls/stepper.h"
#include "tests/platform/controls/wheel.h"
#include "tests/support/print_to.h"

#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using test::kNotch;
using test::q;
using test::turnWheel;

namespace {

/// Counts what the wheel does to it.
class Window : public QWidget
{
public:
    int turns = 0;

protected:
    void wheelEvent(QWheelEvent *) override { ++turns; }
};

/// The stepper of the threshold, beside a field that has the focus at first.
class Steppers : public testing::Test
{
protected:
    Steppers()
    {
        auto *column = new QVBoxLayout(&window);
        column->addWidget(field);
        column->addWidget(stepper);
        stepper->setMinimum(1);
        stepper->setMaximum(5);
        stepper->setValue(3);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }

    void clickUp() { QTest::mouseClick(stepper->upButton(), Qt::LeftButton); }
    void clickDown() { QTest::mouseClick(stepper->downButton(), Qt::LeftButton); }

    Window window;
    QLineEdit *const field = new QLineEdit;
    Stepper *const stepper = new Stepper;
    QSignalSpy steps{stepper, &Stepper::stepped};
};

} // namespace

TEST_F(Steppers, StepByTheirButtonsWithoutWrapping)
{
    clickUp();
    clickUp();
    clickUp();
    EXPECT_EQ(stepper->value(), 5);
    EXPECT_EQ(steps.count(), 2);
    EXPECT_FALSE(stepper->upButton()->isEnabled());
    for (int i = 0; i < 6; ++i)
        clickDown();
    EXPECT_EQ(stepper->value(), 1);
    EXPECT_EQ(steps.count(), 6);
    EXPECT_FALSE(stepper->downButton()->isEnabled());
    EXPECT_EQ(steps.last()[0].toInt(), 1);
}

TEST_F(Steppers, StepByTheirIncrementUpToTheBound)
{
    stepper->setIncrement(3);
    clickDown();
    EXPECT_EQ(stepper->value(), 1);
    clickUp();
    EXPECT_EQ(stepper->value(), 4);
    clickUp();
    EXPECT_EQ(stepper->value(), 5);
}

TEST_F(Steppers, AreSetByTheProgramWithoutAStep)
{
    stepper->setValue(4);
    EXPECT_EQ(stepper->value(), 4);
    stepper->setValue(9);
    EXPECT_EQ(stepper->value(), 5);
    stepper->setValue(-9);
    EXPECT_EQ(stepper->value(), 1);
    EXPECT_EQ(steps.count(), 0);
}

TEST_F(Steppers, KeepTheirValueBetweenBoundsThatChange)
{
    stepper->setMinimum(4);
    EXPECT_EQ(stepper->value(), 4);
    stepper->setMaximum(2);
    EXPECT_EQ(stepper->value(), 2);
    EXPECT_EQ(stepper->minimum(), 2);
    stepper->setMinimum(7);
    EXPECT_EQ(stepper->maximum(), 7);
    EXPECT_EQ(stepper->value(), 7);
    EXPECT_EQ(steps.count(), 0);
}

TEST_F(Steppers, DoNotOverflowAtTheLimitsOfInt)
{
    stepper->setMaximum(std::numeric_limits<int>::max());
    stepper->setValue(std::numeric_limits<int>::max() - 1);
    stepper->setIncrement(std::numeric_limits<int>::max());
    clickUp();
    EXPECT_EQ(stepper->value(), std::numeric_limits<int>::max());
}

TEST_F(Steppers, StepByTheArrowKeys)
{
    stepper->setFocus();
    QTest::keyClick(stepper, Qt::Key_Up);
    EXPECT_EQ(stepper->value(), 4);
    QTest::keyClick(stepper, Qt::Key_Down);
    QTest::keyClick(stepper, Qt::Key_Down);
    EXPECT_EQ(stepper->value(), 2);
    EXPECT_EQ(steps.count(), 3);
}

TEST_F(Steppers, LeaveOtherKeysToTheirParent)
{
    stepper->setFocus();
    QTest::keyClick(stepper, Qt::Key_Tab);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(steps.count(), 0);
}

TEST_F(Steppers, LeaveTheWheelToTheirParentWithoutFocus)
{
    turnWheel(stepper, kNotch);
    turnWheel(stepper->upButton(), kNotch);
    EXPECT_EQ(stepper->value(), 3);
    EXPECT_EQ(steps.count(), 0);
    EXPECT_EQ(window.turns, 2);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(Steppers, StepByTheWheelWithFocus)
{
    stepper->setFocus();
    turnWheel(stepper, kNotch);
    EXPECT_EQ(stepper->value(), 4);
    turnWheel(stepper->upButton(), -2 * kNotch);
    EXPECT_EQ(stepper->value(), 2);
    EXPECT_EQ(window.turns, 0);
}

TEST_F(Steppers, AddUpTheSmallTurnsOfAFineWheel)
{
    stepper->setFocus();
    for (int i = 0; i < 7; ++i)
        turnWheel(stepper, kNotch / 8);
    EXPECT_EQ(stepper->value(), 3);
    turnWheel(stepper, kNotch / 8);
    EXPECT_EQ(stepper->value(), 4);
    EXPECT_EQ(steps.count(), 1);
}

TEST_F(Steppers, TakeTheFocusByClickAndByTab)
{
    clickUp();
    EXPECT_TRUE(stepper->hasFocus());
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(stepper->hasFocus());
}

TEST_F(Steppers, ShowWhetherTheyHaveTheFocus)
{
    const QImage without = stepper->grab().toImage();
    QTest::keyClick(field, Qt::Key_Tab);
    const QImage with = stepper->grab().toImage();
    EXPECT_NE(without, with);
}

TEST_F(Steppers, TakeNoInputWhileDisabled)
{
    stepper->setEnabled(false);
    clickUp();
    EXPECT_EQ(stepper->value(), 3);
    stepper->setValue(4);
    stepper->setEnabled(true);
    clickUp();
    EXPECT_EQ(stepper->value(), 5);
}

TEST_F(Steppers, GrowWithTheirFont)
{
    const QSize before = stepper->sizeHint();
    QFont large = stepper->font();
    large.setPointSize(large.pointSize() * 2);
    stepper->setFont(large);
    EXPECT_GT(stepper->sizeHint().width(), before.width());
    EXPECT_GT(stepper->sizeHint().height(), before.height());
}

TEST_F(Steppers, AreReadAsSpinBoxes)
{
    stepper->setAccessibleName(q("Threshold"));
    QAccessibleInterface *const reader = QAccessible::queryAccessibleInterface(stepper);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->role(), QAccessible::SpinBox);
    EXPECT_TEXT(reader->text(QAccessible::Name), "Threshold");
    EXPECT_TEXT(reader->text(QAccessible::Value), "3");
    EXPECT_EQ(reader->childCount(), 0);

    QAccessibleValueInterface *const value = reader->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toInt(), 3);
    EXPECT_EQ(value->minimumValue().toInt(), 1);
    EXPECT_EQ(value->maximumValue().toInt(), 5);
    EXPECT_EQ(value->minimumStepSize().toInt(), 1);
}

TEST_F(Steppers, CountAScreenReaderAsAPerson)
{
    QAccessibleValueInterface *const value =
        QAccessible::queryAccessibleInterface(stepper)->valueInterface();
    value->setCurrentValue(9);
    EXPECT_EQ(stepper->value(), 5);
    EXPECT_EQ(steps.count(), 1);
    stepper->setEnabled(false);
    value->setCurrentValue(2);
    EXPECT_EQ(stepper->value(), 5);
    EXPECT_EQ(steps.count(), 1);
}

TEST(MissingSteppers, ReadAsZero)
{
    controls::setIntegerValue(nullptr, 4);
    EXPECT_EQ(controls::integerValue(static_cast<Stepper *>(nullptr)), 0);
}
