#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

class QWidget;

namespace dialog {
class PrintDialog;
}

namespace dialog::replay {

/// What the dialog and its panels look like now: front panel, job settings, marks, the dialog's own
/// controls as far as they show and its notices, and of each plug-in's panel what it supports, its
/// summary, its model, its controls and its frames.
[[nodiscard]] QJsonObject takeSnapshot(PrintDialog &dialog);

/// Whether a scenario can name it: what Qt calls the parts of its controls is no name.
[[nodiscard]] bool isNamed(const QWidget *control);

/// Kind, state and content of one control; visible counts inside @p view only. Empty for a widget
/// of no known kind.
[[nodiscard]] QJsonObject controlState(const QWidget *control, const QWidget *view);

/// Texts of the labels, fields and buttons with an outlet name that show in a window.
[[nodiscard]] QJsonObject windowTexts(const QWidget *window);

/// The value at a JSON Pointer; undefined when there is none.
[[nodiscard]] QJsonValue valueAt(const QJsonValue &root, const QString &pointer);

/// The word as JSON if it parses, else as text.
[[nodiscard]] QJsonValue expectedValue(const QString &word);

/// One line of JSON, for messages; "nothing" for undefined.
[[nodiscard]] QString compactJson(const QJsonValue &value);

} // namespace dialog::replay
