#pragma once

#include "tests/whole/damage.h"

namespace test {

/// A whole life on such a printer, with both panels and the error log on: created, restored, shown,
/// every control used that can be, every option changed elsewhere, saved. Fails the running test
/// where a rule is broken.
void liveOn(const DamagedPrinter &printer);

} // namespace test
