#pragma once

#include "dialog/presets/store_result.h"

#include <functional>
#include <vector>

namespace dialog {

/// A change of presets, wherever they are kept. Where it cannot be made it leaves them, and answers
/// why.
using PresetChange = std::function<StoreResult(std::vector<Preset> &presets)>;

/// Adds a preset whose name is free.
[[nodiscard]] PresetChange saving(const Preset &preset);
/// Replaces the content of the preset of that name. One that is gone is added.
[[nodiscard]] PresetChange updating(const Preset &preset);
/// A name may get another case.
[[nodiscard]] PresetChange renaming(const QString &name, const QString &to);
[[nodiscard]] PresetChange removing(const QString &name);
/// Adds a removed preset again, under the next free name where the old one is taken.
[[nodiscard]] PresetChange restoring(const Preset &preset);

/// As a person sorts names.
void sortByName(std::vector<Preset> &presets);

} // namespace dialog
