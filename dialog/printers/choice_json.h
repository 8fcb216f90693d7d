#pragma once

#include "dialog/printers/choice.h"

#include <QJsonObject>
#include <QVariant>

#include <map>

/// Choices and print settings as JSON, the same way in every file that the dialog writes.
namespace dialog {

/// JSON null for a null text.
[[nodiscard]] QJsonValue textJson(const QString &text);
/// Marks by option; a pick-many option with several marks has a list.
[[nodiscard]] QJsonObject marksJson(const Choices &marks);
[[nodiscard]] QJsonObject settingsJson(const std::map<QString, QVariant> &settings);

} // namespace dialog
