#pragma once

#include "dialog/log/call_tree.h"
#include "dialog/log/filter.h"
#include "dialog/log/record.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// Debug logs as the tests write them, and what the reader makes of them.
namespace test {

/// A record of process 4711, module A, as the log writes it.
[[nodiscard]] QByteArray record(char kind, const char *time, const char *operation, int line,
                                const QByteArray &message, int process = 4711);
/// "{" or "}" of an operation.
[[nodiscard]] QByteArray brace(const char *brace, const char *time, const char *operation,
                               int process = 4711);

struct ReadLog
{
    std::vector<dialog::debuglog::Record> records;
    std::vector<dialog::debuglog::Action> actions;
    dialog::debuglog::Damage damage;
    dialog::debuglog::Unbalanced unbalanced;

    /// Trees of all actions, one after the other.
    [[nodiscard]] QString tree(const dialog::debuglog::Filter &filter = {}) const;
};

/// Line by line, as from a file.
[[nodiscard]] ReadLog readLog(const QByteArray &bytes,
                              dialog::debuglog::CallTreeBuilder::Limits limits = {});

} // namespace test
