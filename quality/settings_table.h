#pragma once

#include "model/settings.h"
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

#define KV_SLOTS(option, setOption, value, setValue, ticket, setTicket)                            \
    SettingSlots                                                                                   \
    {                                                                                              \
        &PDEModel2::option, &PDEModel2::setOption, &PDEModel2::value, &PDEModel2::setValue,        \
            &PDEModel2::ticket, &PDEModel2::setTicket                                              \
    }

// clang-format off
inline constexpr std::array<SettingRow, kSettingCount> kSettings{{
    {Setting::PrintQuality, "PrintQuality",
     KV_SLOTS(printQualityOption, setPrintQualityOption, printQuality, setPrintQuality, printQualityTicket, setPrintQualityTicket),
     &QualityOutlets::ibPrintQuality, nullptr, &QualityOutlets::ibPrintQualityLabel,
     ActionKind::AskFirst, {}, "Automatic"},
    {Setting::MediaType, "MediaType",
     KV_SLOTS(paperTypeOption, setPaperTypeOption, paperType, setPaperType, paperTypeTicket, setPaperTypeTicket),
     &QualityOutlets::ibPaperType, nullptr, &QualityOutlets::ibPaperTypeLabel,
     ActionKind::OwnAction, {}, "Automatic"},
    {Setting::PaperSource, "PaperSource",
     KV_SLOTS(paperSourceOption, setPaperSourceOption, paperSource, setPaperSource, paperSourceTicket, setPaperSourceTicket),
     &QualityOutlets::ibPaperSource, nullptr, &QualityOutlets::ibPaperSourceLabel,
     ActionKind::TakeThenOffer, {}, "Tray1"},
    {Setting::Sharpen, "Sharpen",
     KV_SLOTS(imageSharpeningOption, setImageSharpeningOption, imageSharpening, setImageSharpening, imageSharpeningTicket, setImageSharpeningTicket),
     &QualityOutlets::ibSharpen, nullptr, &QualityOutlets::ibSharpenlabel,
     ActionKind::TakeThenOffer, {}, "Off"},
    {Setting::Mirror, "Mirror",
     KV_SLOTS(mirrorOption, setMirrorOption, mirror, setMirror, mirrorTicket, setMIrrorTicket),
     nullptr, &QualityOutlets::ibMIrror, nullptr,
     ActionKind::OwnAction, kOnOff, "Off"},
    {Setting::TonerSave, "TonerSave",
     KV_SLOTS(tonerSaveOption, setTonerSaveOption, tonerSave, setTonerSave, tonerSaveTicket, setTonerSaveTicket),
     nullptr, &QualityOutlets::ibTonerSave, nullptr,
     ActionKind::Box, kOnOff, "Off"},
    // Its control is the field ibThresholdTextFeild with the stepper ibThresholdStepper.
    {Setting::Threshold, "Threshold",
     KV_SLOTS(thresholdOption, setThresholdOption, Threshold, setThreshold, thresoldTicket, setThresholdTicket),
     nullptr, nullptr, &QualityOutlets::ibThresholdLabel,
     ActionKind::OwnAction, {}, "3"},
    {Setting::HalftoneLevel, "HalftoneLevel",
     KV_SLOTS(halftoneOption, setHalftoneOption, halftone, setHalftone, halftoneTicket, setHalftoneTicket),
     &QualityOutlets::ibHalftone, nullptr, &QualityOutlets::ibHalftoneLabel,
     ActionKind::AskFirst, {}, "Dither"},
    {Setting::ColorPreferences, "ColorPreferences",
     KV_SLOTS(colorPreferencesOption, setColorPreferencesOption, colorPreferences, setColorPreferences, colorPreferencesTicket, setColorPreferencesTicket),
     &QualityOutlets::ibColorPreferences, nullptr, &QualityOutlets::ibColorPreferencesLabel,
     ActionKind::OfferThenTake, {}, "Automatic"},
    {Setting::InkToUse, "InkToUse",
     KV_SLOTS(inkToUseOption, setInkToUseOption, inkToUse, setInkToUse, inkToUseTicket, setInkToUseTicket),
     &QualityOutlets::ibInkToUse, nullptr, &QualityOutlets::ibInkToUseLabel,
     ActionKind::OwnAction, {}, "Automatic"},
    {Setting::ICCTestChartProcess, "ICCTestChartProcess",
     KV_SLOTS(ICCTestChartOption, setICCTestChartOption, ICCTestChart, setICCTestChart, ICCTestChartTicket, setICCTestChartTicket),
     nullptr, &QualityOutlets::ibUseICCTestChart, nullptr,
     ActionKind::Box, kOnOff, "Off"},
    {Setting::ColorOutput, "ColorOutput",
     KV_SLOTS(colorOutputOption, setColorOutputOption, colorOutput, setColorOutput, colorOutputTicket, setColorOutputTicket),
     &QualityOutlets::ibColorOutput, nullptr, &QualityOutlets::ibColorOutputLabel,
     ActionKind::OwnAction, {}, "Color"},
    // As a pop-up; with a check box it is kDryTimeBoxSlots. Products before 2010 only.
    {Setting::DupDryTime, "DupDryTime",
     KV_SLOTS(dryTimePopUpOption, setDryTimePopUpOption, dryTime, setDryTime, dryTimeTicket, setDryTimeTicket),
     &QualityOutlets::ibDryTimePopUp, &QualityOutlets::ibDryTimeCheckBox, &QualityOutlets::ibDryTimeLabel,
     ActionKind::TakeThenOffer, kTrueFalse, "Automatic"},
}};

/// Dry time on printers that offer it as a check box; value and ticket are the pop-up's.
inline constexpr SettingSlots kDryTimeBoxSlots =
    KV_SLOTS(dryTimeCheckBoxOption, setDryTimeCheckBoxOption, dryTime, setDryTime, dryTimeTicket, setDryTimeTicket);
// clang-format on
#undef KV_SLOTS

static_assert(
    [] {
        for (int i = 0; i < kSettingCount; ++i)
            if (static_cast<int>(kSettings[static_cast<std::size_t>(i)].setting) != i)
                return false;
        return true;
    }(),
    "the table's rows stand in the order of the settings");
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
