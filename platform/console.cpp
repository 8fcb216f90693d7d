#include "platform/console.h"

#include <QLoggingCategory>

#include <utility>

Q_LOGGING_CATEGORY(lcConsole, "korvane.console", QtInfoMsg)

namespace platform {
namespace {

ConsoleSink &currentSink()
{
    static ConsoleSink sink;
    return sink;
}

QString withoutFinalLineFeed(const QString &line)
{
    return line.endsWith(u'\n') ? line.chopped(1) : line;
}

} // namespace

void writeConsole(const QString &line)
{
    const ConsoleSink sink = currentSink(); // a copy, for a sink that replaces itself
    if (sink)
        sink(line);
    else
        qCInfo(lcConsole).noquote() << withoutFinalLineFeed(line);
}

ConsoleSink setConsoleSink(ConsoleSink sink)
{
    return std::exchange(currentSink(), std::move(sink));
}

} // namespace platform
