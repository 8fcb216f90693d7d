#pragma once

#include "platform/export.h"

#include <QString>

#include <functional>

/// The system console: free-text lines for whoever watches the process, apart from the debug log.
namespace platform {

using ConsoleSink = std::function<void(const QString &line)>;

/// Writes one line, which stands as it is: no format is read from it, and a line feed at its end,
/// if any, belongs to it.
PLATFORM_EXPORT void writeConsole(const QString &line);

/// Replaces where lines go and returns the former sink. An empty sink restores the default, the Qt
/// logging category "korvane.console".
PLATFORM_EXPORT ConsoleSink setConsoleSink(ConsoleSink sink);

} // namespace platform
