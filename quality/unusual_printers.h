#pragma once

#include "quality/interlocks.h"

#include <optional>

/// Printers that differ from what the rules assume: what the controller reports when it is made,
/// and what a PPD is checked for.
namespace quality {

/// The settings whose choices the rules know by keyword, order or label.
inline constexpr Setting kWatchedSettings[] = {
    Setting::Mirror,   Setting::TonerSave,   Setting::ICCTestChartProcess,
    Setting::InkToUse, Setting::ColorOutput, Setting::HalftoneLevel,
};

/// The first choice of a watched setting that its rules do not expect. Mirror's and toner save's
/// "Off" and halftone's "Dither" are compared as labels, too.
[[nodiscard]] std::optional<UnusualChoice> unusualChoice(Setting setting, const ChoiceList &choices,
                                                         const QString &grayscale);

} // namespace quality
