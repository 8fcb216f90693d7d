#pragma once

#include "dialog/log/call_tree.h"
#include "dialog/log/filter.h"

#include <QString>

namespace dialog::debuglog {

/// The action as an indented tree, one line per call with its duration: what the filter admits, and
/// the calls around it. Empty when it admits nothing.
[[nodiscard]] QString treeText(const Action &action, const Filter &filter);

/// The action in one line: number, time, duration, operation, process.
[[nodiscard]] QString actionLine(const Action &action);

/// What was wrong with the log, in lines that begin with @p fileName; empty when nothing was.
[[nodiscard]] QString damageText(const QString &fileName, const Damage &damage,
                                 const Unbalanced &unbalanced);

/// Bytes as a person may see them on a terminal: control characters but line feed and tab as
/// "\x1B", invalid UTF-8 as U+FFFD.
[[nodiscard]] QString shown(QByteArrayView bytes);

} // namespace dialog::debuglog
