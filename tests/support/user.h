#pragma once

class QAbstractButton;
class QComboBox;
class RadioMatrix;

/// What a person does to a control, with events of mouse and keyboard. A control that is missing,
/// hidden or disabled is a failure of the test. The control's window is shown if it is not.
namespace test::user {

void click(QAbstractButton *button);
/// Opens the pop-up and picks an item by keys; the item already selected too.
void choose(QComboBox *popUp, int index);
void clickRow(RadioMatrix *matrix, int row);

} // namespace test::user
