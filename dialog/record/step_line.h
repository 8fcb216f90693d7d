#pragma once

#include "dialog/replay/scenario.h"

#include <QString>

namespace dialog::record {

/// The step as a line of a scenario, without line feed; reading it gives the step again. Null when
/// a word has a line feed in it, which no line can carry.
[[nodiscard]] QString lineOf(const replay::Step &step);

/// The word as a POSIX shell would have to be given it.
[[nodiscard]] QString quoted(const QString &word);

} // namespace dialog::record
