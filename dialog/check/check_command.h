#pragma once

#include <QStringList>

namespace dialog::check {

/// "korvane-print check-ppd": @p words are the program's name and what follows "check-ppd". Status:
/// 0 nothing was found, 1 findings, 2 a file could not be read.
[[nodiscard]] int runCheckCommand(const QStringList &words);

} // namespace dialog::check
