#include "tests/support/user.h"

#include "platform/controls/radio_matrix.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace test::user {
namespace {

/// Shows the control's window; false, with a failure, when a person could not use the control.
bool isWithinReach(QWidget *control)
{
    if (!control) {
        ADD_FAILURE() << "the control is missing";
        return false;
    }
    control->window()->show();
    if (control->isVisible() && control->isEnabled())
        return true;
    ADD_FAILURE() << control->objectName().toStdString() << " is "
                  << (control->isVisible() ? "disabled" : "hidden");
    return false;
}

} // namespace

void click(QAbstractButton *button)
{
    if (!isWithinReach(button))
        return;
    const QPoint indicator(5, button->height() / 2);
    QTest::mouseClick(button, Qt::LeftButton, {}, indicator);
}

void choose(QComboBox *popUp, int index)
{
    if (!isWithinReach(popUp))
        return;
    ASSERT_LT(index, popUp->count());
    QTest::keyClick(popUp, Qt::Key_F4);
    QTest::keyClick(popUp->view(), Qt::Key_Home);
    for (int step = 0; step < index; ++step)
        QTest::keyClick(popUp->view(), Qt::Key_Down);
    QTest::keyClick(popUp->view(), Qt::Key_Return);
    ASSERT_EQ(popUp->currentIndex(), index);
}

void clickRow(RadioMatrix *matrix, int row)
{
    if (isWithinReach(matrix))
        click(matrix->button(row));
}

} // namespace test::user
