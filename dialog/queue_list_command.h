#pragma once

#include <QStringList>

namespace dialog {

/// "korvane-print --list": the queues of the print server, one a line. Status: 0 listed, 1 no
/// server answered, 2 the words make no command.
[[nodiscard]] int runQueueListCommand(const QStringList &words);

} // namespace dialog
