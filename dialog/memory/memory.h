#pragma once

#include "dialog/memory/memory_store.h"
#include "dialog/threads/background_work.h"

#include <QObject>

#include <functional>

namespace dialog {

/// What is remembered of a person when the dialog opens for one printer.
struct Recollection
{
    WindowMemory window = {};
    std::optional<PresetContent> settings = {}; ///< of the last job with that printer
    StoreResult windowResult = {};
    StoreResult settingsResult = {};
    bool isInTime = true; ///< else the folder has not answered
};

/// What the dialog remembers from one opening to the next: the window's size, the panel in front,
/// and what the last job with each printer had. Files are read and written on other threads, since
/// the folder may hang: what does not come in time is not there, and what is written is waited for
/// only when the memory goes.
class Memory
{
public:
    struct Times
    {
        std::chrono::milliseconds reading{300};  ///< a person waits so long for the window
        std::chrono::milliseconds writing{1000}; ///< no window is there any more
    };

    explicit Memory(const Times &times);
    Memory() : Memory(Times()) {}

    /// Calls @p done once from the event loop, with all that has been kept before. The answer
    /// belongs to @p parent; deleting it abandons the question.
    QObject *recall(QObject *parent, const RememberedPrinter &printer,
                    std::function<void(const Recollection &)> done);
    /// The same before there is a printer.
    QObject *recallWindow(QObject *parent, std::function<void(const WindowMemory &)> done);

    /// See the functions of the store.
    void keepWindow(const WindowMemory &window);
    void keepSettings(const RememberedPrinter &printer, const PresetContent &content);

private:
    Times times_;
    BackgroundWork writing_;
};

} // namespace dialog
