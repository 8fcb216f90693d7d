#pragma once

#include "dialog/printers/choice.h"

#include <QStringList>

/// The job settings that a script can set beside the printer's own options, by their standard
/// names.
namespace dialog::batch {

[[nodiscard]] bool isJobSetting(const QString &name);
[[nodiscard]] QStringList jobSettingNames();

/// Null for a value that the setting can have; else which ones it can, in one line. The setting is
/// one of jobSettingNames().
[[nodiscard]] QString jobSettingProblem(const Choice &setting);

} // namespace dialog::batch
