#pragma once

namespace quality {

/// The settings of the panel, in the order in which the printer's options are looked up.
enum class Setting {
    PrintQuality,
    MediaType,
    PaperSource,
    Sharpen,
    Mirror,
    TonerSave,
    Threshold,
    HalftoneLevel,
    ColorPreferences,
    InkToUse,
    ICCTestChartProcess,
    ColorOutput,
    DupDryTime,
};
inline constexpr int kSettingCount = 13;

} // namespace quality
