#include "quality/settings_table.h"

#include "platform/strings.h"

namespace quality {
namespace {

/// Names of the value getters, in the order of the settings.
constexpr const char *kValueNames[] = {
    "printQuality", "paperType",   "paperSource", "imageSharpening",  "mirror",
    "tonerSave",    "Threshold",   "halftone",    "colorPreferences", "inkToUse",
    "ICCTestChart", "colorOutput", "dryTime",
};
static_assert(std::size(kValueNames) == kSettingCount);

QJsonValue jsonText(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QJsonObject describeOption(const PDEModel2 &model, const SettingRow &row)
{
    const bool hasOption = (model.*row.slots.option)() != nullptr;
    if (row.setting != Setting::DupDryTime)
        return {{QStringLiteral("option"), hasOption}};
    return {{QStringLiteral("popUpOption"), hasOption},
            {QStringLiteral("checkBoxOption"), model.dryTimeCheckBoxOption() != nullptr}};
}

} // namespace

std::optional<Setting> settingOf(const QString &keyword)
{
    for (const SettingRow &row : kSettings)
        if (platform::isEqual(keyword, QString::fromLatin1(row.keyword)))
            return row.setting;
    return std::nullopt;
}

QJsonObject describeModel(const PDEModel2 &model)
{
    QJsonObject description;
    for (const SettingRow &row : kSettings) {
        QJsonObject entry = describeOption(model, row);
        entry.insert(QStringLiteral("value"), jsonText((model.*row.slots.value)()));
        entry.insert(QStringLiteral("ticket"), jsonText((model.*row.slots.ticket)()));
        description.insert(QString::fromLatin1(kValueNames[static_cast<std::size_t>(row.setting)]),
                           entry);
    }
    return description;
}

} // namespace quality
