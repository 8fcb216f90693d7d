#pragma once

#include "dialog/printers/option_groups.h"
#include "dialog/settings/job_settings.h"

#include <QStringList>

namespace dialog {

/// What a person reads above the options of a group. Some groups are libcups' own, with English
/// names.
[[nodiscard]] QString groupTitle(const OptionGroup &group);

// Print settings as a person reads them. What has no words stands as it will be sent.

[[nodiscard]] QString settingTitle(const QString &key);
[[nodiscard]] QString settingValue(const QString &key, const QString &value);
/// Whether the job would come out the same without it. Settings without words never are.
[[nodiscard]] bool isUsualSetting(const QString &key, const QString &value);
/// Keys of these settings, those without words last.
[[nodiscard]] QStringList inReadingOrder(const PrintSettingsMap &settings);

} // namespace dialog
