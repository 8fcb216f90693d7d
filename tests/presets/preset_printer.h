#pragma once

#include "dialog/presets/preset.h"
#include "dialog/presets/preset_plan.h"
#include "dialog/printers/ppd_document.h"
#include "tests/support/ppd_fixtures.h"

#include <memory>

namespace test {

/// P1 with iron-on paper excluding draft quality and a pick-many option "Finishing".
[[nodiscard]] PpdText presetPrinter();

/// Opened from a file that is gone afterwards.
[[nodiscard]] std::unique_ptr<dialog::PpdDocument> opened(const PpdText &text);

/// Keys and values as they are.
[[nodiscard]] dialog::SettingWords plainWords();

} // namespace test
