#include "dialog/memory/memory.h"

#include "dialog/threads/errand.h"
#include "dialog/usage.h"

namespace dialog {
namespace {

/// Nobody need be told in the window, which is about to close or has printed.
void report(const StoreResult &result)
{
    if (result.isOk())
        return;
    const QString reason =
        result.fault == StoreFault::Newer
            ? QStringLiteral("it is of a newer version of this program")
        : result.fault == StoreFault::Untrusted
            ? QStringLiteral("it is a link, another user's, or others may write it")
            : result.detail;
    complain(QStringLiteral("cannot remember for next time in %1: %2").arg(result.path, reason));
}

} // namespace

Memory::Memory(const Times &times) : times_(times), writing_(times.writing) {}

QObject *Memory::recall(QObject *parent, const RememberedPrinter &printer,
                        std::function<void(const Recollection &)> done)
{
    const auto read = [printer, waitForWriting = writing_.waiter()] {
        waitForWriting();
        Recalled<WindowMemory> window = dialog::recallWindow();
        Recalled<PresetContent> settings = recallSettings(printer);
        return Recollection{window.value.value_or(WindowMemory()), std::move(settings.value),
                            std::move(window.result), std::move(settings.result)};
    };
    const auto take = [done = std::move(done)](const std::optional<Recollection> &recollection) {
        done(recollection.value_or(Recollection{.isInTime = false}));
    };
    return runErrand<Recollection>(parent, times_.reading, read, take);
}

QObject *Memory::recallWindow(QObject *parent, std::function<void(const WindowMemory &)> done)
{
    const auto take = [done = std::move(done)](const auto &recalled) {
        if (recalled && recalled->value)
            done(*recalled->value);
    };
    return runErrand<Recalled<WindowMemory>>(parent, times_.reading, dialog::recallWindow, take);
}

void Memory::keepWindow(const WindowMemory &window)
{
    writing_.add([window] { report(dialog::keepWindow(window)); });
}

void Memory::keepSettings(const RememberedPrinter &printer, const PresetContent &content)
{
    writing_.add([printer, content] { report(dialog::keepSettings(printer, content)); });
}

} // namespace dialog
