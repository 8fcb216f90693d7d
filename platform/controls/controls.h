#pragma once

#include "platform/export.h"

#include <QString>

class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

/// Reads and writes controls the way the panels do: texts are literal (no "&" mnemonics, no rich
/// text), and a missing control (a null pointer: view not loaded, or destroyed by the host) reads
/// as index -1, null title, state 0, integer 0, disabled, while writes to it do nothing. No
/// function here counts as a person's input: none makes an action fire.
namespace controls {

// Pop-ups. Items carry the choice keyword in Qt::UserRole.
[[nodiscard]] PLATFORM_EXPORT int indexOfSelectedItem(const QComboBox *popUp);
[[nodiscard]] PLATFORM_EXPORT QString titleOfSelectedItem(const QComboBox *popUp);
[[nodiscard]] PLATFORM_EXPORT QString keywordOfSelectedItem(const QComboBox *popUp);
/// Selects the first item of that title; none (index -1) when there is no such item or it is null.
PLATFORM_EXPORT void selectItemWithTitle(QComboBox *popUp, const QString &title);
/// Selects an item; an index outside the items selects none.
PLATFORM_EXPORT void selectItemAtIndex(QComboBox *popUp, int index);
PLATFORM_EXPORT void removeAllItems(QComboBox *popUp);
PLATFORM_EXPORT void addItem(QComboBox *popUp, const QString &title, const QString &keyword);

// Check boxes, radio buttons, disclosure triangle: state 1 on, 0 off.
[[nodiscard]] PLATFORM_EXPORT int state(const QAbstractButton *button);
PLATFORM_EXPORT void setState(QAbstractButton *button, int state);
[[nodiscard]] PLATFORM_EXPORT QString title(const QAbstractButton *button);
PLATFORM_EXPORT void setTitle(QAbstractButton *button, const QString &title);

// Labels and text fields.
[[nodiscard]] PLATFORM_EXPORT QString text(const QLabel *label);
PLATFORM_EXPORT void setText(QLabel *label, const QString &text);
/// "" (not null) for an existing, empty field; null for a missing one.
[[nodiscard]] PLATFORM_EXPORT QString stringValue(const QLineEdit *field);
PLATFORM_EXPORT void setStringValue(QLineEdit *field, const QString &text);
[[nodiscard]] PLATFORM_EXPORT int integerValue(const QLineEdit *field);

// Any control.
[[nodiscard]] PLATFORM_EXPORT bool isEnabled(const QWidget *control);
PLATFORM_EXPORT void setEnabled(QWidget *control, bool enabled);
/// True when the control itself is hidden, whatever its parents are; true for a missing one.
[[nodiscard]] PLATFORM_EXPORT bool isHidden(const QWidget *control);
PLATFORM_EXPORT void setHidden(QWidget *control, bool hidden);

} // namespace controls
