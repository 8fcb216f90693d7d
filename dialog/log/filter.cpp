#include "dialog/log/filter.h"

#include <algorithm>

namespace dialog::debuglog {
namespace {

/// The name itself, or the name with more behind that character.
bool isOrContinues(QByteArrayView name, const QByteArray &wanted, char separator)
{
    return name == wanted || (name.startsWith(wanted) && name.size() > wanted.size() &&
                              name[wanted.size()] == separator);
}

bool isOfClass(const Record &record, const QByteArray &className)
{
    return isOrContinues(splitOperation(record.operation).className, className, '(');
}

bool isOfOperation(const Record &record, const QByteArray &operation)
{
    return record.operation == operation ||
           isOrContinues(splitOperation(record.operation).selector, operation, ':');
}

} // namespace

OperationName splitOperation(QByteArrayView operation)
{
    const bool isMethod = operation.size() > 3 && operation.sliced(1, 1) == "[" &&
                          (operation[0] == '-' || operation[0] == '+') && operation.endsWith(']');
    const qsizetype blank = operation.indexOf(' ');
    if (!isMethod || blank < 0)
        return {{}, operation};
    return {operation.sliced(2, blank - 2),
            operation.sliced(blank + 1, operation.size() - blank - 2)};
}

bool Filter::admits(const Entry &entry) const
{
    const Record &record = entry.record;
    return (className.isEmpty() || isOfClass(record, className)) &&
           (operation.isEmpty() || isOfOperation(record, operation)) &&
           (kinds.isEmpty() || kinds.contains(record.kind)) &&
           (text.isEmpty() ||
            (entry.kind == Entry::Kind::Message && record.message.contains(text)));
}

bool Filter::admitsAny(const Action &action) const
{
    return std::any_of(action.entries.begin(), action.entries.end(),
                       [this](const Entry &entry) { return admits(entry); });
}

} // namespace dialog::debuglog
