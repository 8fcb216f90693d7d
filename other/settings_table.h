#pragma once

#include "model/setting_slots.h"
#include "other/outlets.h"

#include <QJsonObject>

#include <array>

/// The four settings of the panel as one table, in the order in which the printer's options are
/// looked up.
namespace other {

enum class Setting { ReduceGhosting, PrintDensity, ImprovementSettings, ImprovePrintQuality };

/// What a check box shows before the tickets do.
enum class Start {
    OnUnlessOff, ///< on unless the PPD's default is "Off"
    OnWhenOff,   ///< the reverse, deliberate for ghosting
    Matrix,      ///< no check box
};

struct SettingRow
{
    Setting setting;
    const char *keyword;
    SettingSlots slots;
    QPointer<QCheckBox> OtherOutlets::*box; ///< null: the matrix
    Start start;
    const char *defaultChoice; ///< fixed, whatever the PPD's own default is
};

// clang-format off
inline constexpr std::array<SettingRow, 4> kSettings{{
    {Setting::ReduceGhosting, "ReduceGhosting", settings::reduceGhosting,
     &OtherOutlets::ibReduceGhosting, Start::OnWhenOff, "Off"},
    {Setting::PrintDensity, "PrintDensity", settings::printDensity,
     &OtherOutlets::ibImprovePrintDensity, Start::OnUnlessOff, "Off"},
    {Setting::ImprovementSettings, "ImprovementSettings", settings::improvementSettings,
     &OtherOutlets::ibImprovementSettings, Start::OnUnlessOff, "Off"},
    {Setting::ImprovePrintQuality, "ImprovePrintQuality", settings::improvePrintQuality,
     nullptr, Start::Matrix, "ReducePaperCurl"},
}};
// clang-format on

/// The rows of the matrix: the choice of each and the name under which the log mentions it.
struct ImprovementRow
{
    const char *choice;
    const char *logName;
};

// clang-format off
inline constexpr std::array<ImprovementRow, 3> kImprovements{{
    {"ReducePaperCurl",          "kNSReducePaperCurlChoice"},
    {"ImproveTonerFixing",       "kNSImproveTonerFixingChoice"},
    {"ImproveWrinklesorCreases", "kNSImproveWrinklesorCreasesChoice"},
}};
// clang-format on

static_assert(areRowsInOrder(kSettings));

[[nodiscard]] constexpr const SettingRow &row(Setting setting)
{
    return kSettings[static_cast<std::size_t>(setting)];
}
[[nodiscard]] inline QString keyword(Setting setting)
{
    return QString::fromLatin1(row(setting).keyword);
}

/// One entry per setting, named as the value getter.
[[nodiscard]] QJsonObject describeModel(const PDEModel2 &model);

} // namespace other
