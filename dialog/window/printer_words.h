#pragma once

#include "dialog/printers/ppd_cache.h"
#include "dialog/printers/queue_list.h"

namespace dialog {

/// State of a queue as a person reads it, with the server's reason where there is one.
[[nodiscard]] QString stateText(const Queue &queue);

/// A queue among others: its name, what its administrator calls it where that differs, and its
/// state unless it is idle.
[[nodiscard]] QString queueText(const Queue &queue);

/// A server's fault with its remedy.
[[nodiscard]] QString problemText(const ServerProblem &problem);

/// Why there is no printer behind the queue, with a remedy; null when there is one.
[[nodiscard]] QString printerProblem(const QueuePrinter &printer, const QString &queue);

} // namespace dialog
