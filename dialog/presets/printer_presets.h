#pragma once

#include "dialog/presets/preset.h"

namespace dialog {

/// Choices that the value of an *APPrinterPreset line names: "*Option Choice" pairs, one behind the
/// other or a line each, with or without ";". Other keys, which are for applications, and their
/// values are passed over. Of an option that is named twice the last choice counts.
[[nodiscard]] OptionChoices parsePrinterPreset(const QString &value);

/// The presets that the PPD brings along, named as it names them, in its order. One that names no
/// option of the printer's is left out, and so is one whose name came before.
[[nodiscard]] std::vector<Preset> printerPresets(const PpdDocument &printer);

} // namespace dialog
