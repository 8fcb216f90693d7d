#pragma once

#include "dialog/printers/choice.h"
#include "dialog/settings/job_settings.h"

#include <QStringList>

/// The job settings that a script can set beside the printer's own options, by their standard
/// names.
namespace dialog::batch {

[[nodiscard]] bool isJobSetting(const QString &name);
[[nodiscard]] QStringList jobSettingNames();

/// Null for a value that the setting can have; else which ones it can, in one line. The setting is
/// one of jobSettingNames().
[[nodiscard]] QString jobSettingProblem(const Choice &setting);
/// The setting in the form in which the job has it; of one without a problem.
[[nodiscard]] Choice inStandardForm(const Choice &setting);
/// What setting it changes, with what a person's use of the window's own control changes beside.
[[nodiscard]] SettingChanges changesFor(const Choice &setting, const PrintSettingsMap &settings);

} // namespace dialog::batch
