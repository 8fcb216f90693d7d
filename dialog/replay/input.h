#pragma once

#include <QKeyCombination>
#include <QPoint>
#include <QString>

class QAction;
class QComboBox;
class QLineEdit;
class QSpinBox;
class QWidget;

/// A person's hands: mouse and keyboard events that take the way of the window system's own, so
/// that modality, focus, shortcuts and what lies on top of what count as they do for a person.
namespace dialog::replay::input {

enum class Turn { Up, Down };

/// Each answers null, or why a person could not do that. A call returns after what it set off,
/// modal windows included.
[[nodiscard]] QString click(QWidget *control);
/// Of the menu that is open.
[[nodiscard]] QString clickEntry(QAction *entry);
/// Opens the pop-up with the mouse and picks the item by keys.
[[nodiscard]] QString choose(QComboBox *popUp, int index);
/// Clicks into the field, selects all, and types; an empty text presses Delete.
[[nodiscard]] QString type(QLineEdit *field, const QString &text);
/// The same with the clipboard, which gets its old text back.
[[nodiscard]] QString paste(QLineEdit *field, const QString &text);
/// Clicks the arrow of a number field.
[[nodiscard]] QString step(QSpinBox *field, Turn turn);
void wheel(QWidget *control, Turn turn);
/// To the open pop-up, else to what has the focus in that window.
void key(QWidget *window, QKeyCombination key);

} // namespace dialog::replay::input
