#pragma once

#include <QStringList>

namespace dialog::debuglog {

/// "korvane-print log": @p words are the program's name and what follows "log". Status: 0 done, 1
/// the log is damaged and was read as far as it goes, 2 nothing could be read or written.
[[nodiscard]] int runLogCommand(const QStringList &words);

} // namespace dialog::debuglog
