#pragma once

#include "dialog/replay/scenario.h"

#include <QString>

#include <optional>

class QAbstractButton;
class QAction;
class QComboBox;
class QLineEdit;
class QSpinBox;
class QWidget;
class Stepper;

/// What a person did to a control, as the step that does it again. Controls are known by their
/// object names; nothing for one that has none.
namespace dialog::record {

using MaybeStep = std::optional<replay::Step>;

/// By title; by index where an earlier item has the same title, or no line can carry it.
[[nodiscard]] MaybeStep stepForItem(const QComboBox *popUp, int index);
/// After the button has taken its new state: a tick, a row, a step, or else a click.
[[nodiscard]] MaybeStep stepForButton(const QAbstractButton *button);
/// Of a menu that is open.
[[nodiscard]] MaybeStep stepForEntry(const QAction *entry);
/// On what is no button, for the focus.
[[nodiscard]] MaybeStep stepForClick(const QWidget *control);
/// One notch; up is positive.
[[nodiscard]] MaybeStep stepForWheel(const QWidget *control, int direction);
[[nodiscard]] MaybeStep stepForText(const QLineEdit *field);
/// Whatever way the number came.
[[nodiscard]] MaybeStep stepForNumber(const QSpinBox *field);
[[nodiscard]] MaybeStep stepForStepper(const Stepper *stepper, int direction);

} // namespace dialog::record
