#include "quality/settings_table.h"

#include "model/setting_json.h"

namespace quality {
namespace {

/// Names of the value getters, in the order of the settings.
constexpr const char *kValueNames[] = {
    "printQuality", "paperType",   "paperSource", "imageSharpening",  "mirror",
    "tonerSave",    "Threshold",   "halftone",    "colorPreferences", "inkToUse",
    "ICCTestChart", "colorOutput", "dryTime",
};
static_assert(std::size(kValueNames) == kSettingCount);

/// Dry time has two options instead of one.
QJsonObject dryTimeJson(const PDEModel2 &model)
{
    QJsonObject entry = settingJson(model, settings::dryTimePopUp);
    entry.insert(QStringLiteral("popUpOption"), entry.take(QStringLiteral("option")));
    entry.insert(QStringLiteral("checkBoxOption"), model.dryTimeCheckBoxOption() != nullptr);
    return entry;
}

} // namespace

std::optional<Setting> settingOf(const QString &keyword)
{
    const SettingRow *row = rowOfKeyword(kSettings, keyword);
    return row ? std::optional(row->setting) : std::nullopt;
}

QJsonObject describeModel(const PDEModel2 &model)
{
    QJsonObject description;
    for (const SettingRow &row : kSettings) {
        const char *name = kValueNames[static_cast<std::size_t>(row.setting)];
        description.insert(QString::fromLatin1(name), row.setting == Setting::DupDryTime
                                                          ? dryTimeJson(model)
                                                          : settingJson(model, row.slots));
    }
    return description;
}

} // namespace quality
