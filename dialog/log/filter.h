#pragma once

#include "dialog/log/call_tree.h"

#include <QByteArray>
#include <QByteArrayList>

namespace dialog::debuglog {

/// Which records a person wants to see. Empty parts admit everything.
struct Filter
{
    QByteArray className = {}; ///< "NSPopUpButton" admits its categories too
    QByteArray operation =
        {};                ///< "willShow", "updateControl:" or its first piece, or a whole selector
    QByteArray kinds = {}; ///< letters of kKinds
    QByteArray text = {};  ///< part of a message; a traced call has none

    [[nodiscard]] bool admits(const Entry &entry) const;
    [[nodiscard]] bool admitsAny(const Action &action) const;
};

/// The parts of "-[ClassName some:selector:]"; of anything else, the class is empty and the
/// selector is the whole name.
struct OperationName
{
    QByteArrayView className;
    QByteArrayView selector;
};
[[nodiscard]] OperationName splitOperation(QByteArrayView operation);

} // namespace dialog::debuglog
