#pragma once

#include "model/setting_slots.h"
#include "quality/outlets.h"
#include "quality/setting.h"

#include <QJsonObject>

#include <array>
#include <optional>
#include <string_view>

/// The thirteen settings of the panel as one table: everything that is regular about them stands
/// here, and every irregularity is either a cell or a function that its column names.
namespace quality {

/// What a person's use of the control does.
enum class ActionKind {
    TakeThenOffer, ///< model first, the host's answer is ignored
    OfferThenTake, ///< host first, the answer is ignored
    AskFirst,      ///< a refused choice leaves the model and puts the pop-up back
    Box,           ///< the box's word into the model, then offered, the answer is ignored
    OwnAction,     ///< an irregular one: see the action of that name
};

/// The words of a check box.
struct BoxWords
{
    const char *on = nullptr;
    const char *off = nullptr;
};
inline constexpr BoxWords kOnOff{"On", "Off"};
inline constexpr BoxWords kTrueFalse{"True", "False"};

struct SettingRow
{
    Setting setting;
    const char *keyword;
    SettingSlots slots;
    QPointer<PopUpButton> QualityOutlets::*popUp;
    QPointer<QCheckBox> QualityOutlets::*box;
    QPointer<QLabel> QualityOutlets::*label; ///< null: the box bears the title itself
    ActionKind action;
    BoxWords words;
    const char *defaultChoice;
};

// clang-format off
inline constexpr std::array<SettingRow, kSettingCount> kSettings{{
    {Setting::PrintQuality, "PrintQuality", settings::printQuality,
     &QualityOutlets::ibPrintQuality, nullptr, &QualityOutlets::ibPrintQualityLabel,
     ActionKind::AskFirst, {}, "Automatic"},
    {Setting::MediaType, "MediaType", settings::paperType,
     &QualityOutlets::ibPaperType, nullptr, &QualityOutlets::ibPaperTypeLabel,
     ActionKind::OwnAction, {}, "Automatic"},
    {Setting::PaperSource, "PaperSource", settings::paperSource,
     &QualityOutlets::ibPaperSource, nullptr, &QualityOutlets::ibPaperSourceLabel,
     ActionKind::TakeThenOffer, {}, "Tray1"},
    {Setting::Sharpen, "Sharpen", settings::imageSharpening,
     &QualityOutlets::ibSharpen, nullptr, &QualityOutlets::ibSharpenlabel,
     ActionKind::TakeThenOffer, {}, "Off"},
    {Setting::Mirror, "Mirror", settings::mirror,
     nullptr, &QualityOutlets::ibMIrror, nullptr,
     ActionKind::OwnAction, kOnOff, "Off"},
    {Setting::TonerSave, "TonerSave", settings::tonerSave,
     nullptr, &QualityOutlets::ibTonerSave, nullptr,
     ActionKind::Box, kOnOff, "Off"},
    // Its control is the field ibThresholdTextFeild with the stepper ibThresholdStepper.
    {Setting::Threshold, "Threshold", settings::threshold,
     nullptr, nullptr, &QualityOutlets::ibThresholdLabel,
     ActionKind::OwnAction, {}, "3"},
    {Setting::HalftoneLevel, "HalftoneLevel", settings::halftone,
     &QualityOutlets::ibHalftone, nullptr, &QualityOutlets::ibHalftoneLabel,
     ActionKind::AskFirst, {}, "Dither"},
    {Setting::ColorPreferences, "ColorPreferences", settings::colorPreferences,
     &QualityOutlets::ibColorPreferences, nullptr, &QualityOutlets::ibColorPreferencesLabel,
     ActionKind::OfferThenTake, {}, "Automatic"},
    {Setting::InkToUse, "InkToUse", settings::inkToUse,
     &QualityOutlets::ibInkToUse, nullptr, &QualityOutlets::ibInkToUseLabel,
     ActionKind::OwnAction, {}, "Automatic"},
    {Setting::ICCTestChartProcess, "ICCTestChartProcess", settings::ICCTestChart,
     nullptr, &QualityOutlets::ibUseICCTestChart, nullptr,
     ActionKind::Box, kOnOff, "Off"},
    {Setting::ColorOutput, "ColorOutput", settings::colorOutput,
     &QualityOutlets::ibColorOutput, nullptr, &QualityOutlets::ibColorOutputLabel,
     ActionKind::OwnAction, {}, "Color"},
    // As a pop-up; with a check box it is kDryTimeBoxSlots. Products before 2010 only.
    {Setting::DupDryTime, "DupDryTime", settings::dryTimePopUp,
     &QualityOutlets::ibDryTimePopUp, &QualityOutlets::ibDryTimeCheckBox, &QualityOutlets::ibDryTimeLabel,
     ActionKind::TakeThenOffer, kTrueFalse, "Automatic"},
}};

/// Dry time on printers that offer it as a check box; value and ticket are the pop-up's.
inline constexpr SettingSlots kDryTimeBoxSlots = settings::dryTimeCheckBox;
// clang-format on

static_assert(areRowsInOrder(kSettings));
static_assert(
    [] {
        for (const SettingRow &a : kSettings)
            for (const SettingRow &b : kSettings)
                if (a.setting != b.setting && std::string_view(a.keyword) == b.keyword)
                    return false;
        return true;
    }(),
    "no two settings share a keyword");

[[nodiscard]] constexpr const SettingRow &row(Setting setting)
{
    return kSettings[static_cast<std::size_t>(setting)];
}
[[nodiscard]] inline QString keyword(Setting setting)
{
    return QString::fromLatin1(row(setting).keyword);
}
[[nodiscard]] inline QString defaultChoice(Setting setting)
{
    return QString::fromLatin1(row(setting).defaultChoice);
}

/// The setting of a keyword, compared exactly; nothing for null and unknown ones.
[[nodiscard]] std::optional<Setting> settingOf(const QString &keyword);

/// Dry time exists only for products before this year.
inline constexpr quint16 kFirstYearWithoutDryTime = 2010;

/// One entry per setting, named as the value getter: whether the option is there, value and ticket;
/// null is JSON null.
[[nodiscard]] QJsonObject describeModel(const PDEModel2 &model);

} // namespace quality
