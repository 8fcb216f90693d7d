#pragma once

#include "dialog/memory/memory.h"

#include <QCoreApplication>

namespace dialog {

/// What a person is told of what the dialog remembers, each fault with its remedy.
class MemoryMessages
{
    Q_DECLARE_TR_FUNCTIONS(MemoryMessages)

public:
    /// A text each for what keeps something from being restored; none when nothing does.
    [[nodiscard]] static QStringList of(const Recollection &recollection);

private:
    [[nodiscard]] static QString ofWindow(const StoreResult &result);
    [[nodiscard]] static QString ofSettings(const StoreResult &result);
    [[nodiscard]] static QString fault(const StoreResult &result);
};

} // namespace dialog
