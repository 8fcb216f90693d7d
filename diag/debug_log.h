#pragma once

#include <QByteArray>
#include <QVariant>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>

#include <sys/socket.h>

/// The debug log: process-wide, silent until a debug property list in the user's temporary
/// directory switches it on. Called from the main thread only.

// Process-wide state; it starts at zero or null unless it says otherwise. It belongs to the program
// or loadable module that the log is linked into.
#pragma GCC visibility push(hidden)
extern bool logDoneSetup;
extern std::int32_t logCurrentPID;
/// Bit set of LogLevel; 0 is silent.
extern std::int32_t logDebugLevel;
/// The module letter: the list's module number plus 64 (1 gives 'A').
extern std::int32_t logModuleID;
extern std::FILE *logDebugFilePtr;
/// Descriptor of a debug viewer's socket; below 2 there is none and records go to the file.
extern std::int32_t logClientFD;
/// Destination of datagrams; family 0 stands for a connected socket.
extern sockaddr logSocketFile;
/// Length of that address, 16 from the start.
extern std::uint32_t logSocketFileSize;
/// Stream of the separate trace writer.
extern std::FILE *gFileStream;
#pragma GCC visibility pop

/// Reads the debug list and opens the log; runs once per process.
void setupDebug();

namespace diag {

enum LogLevel : std::int32_t { kInfoLevel = 1, kErrorLevel = 2, kDumpLevel = 4 };

/// True when records of that level are written; sets the log up at the first call of the process.
/// Two tests when the level is off.
[[nodiscard]] inline bool isLevelOn(LogLevel level)
{
    if (!logDoneSetup) [[unlikely]]
        setupDebug();
    return (logDebugLevel & level) != 0;
}
[[nodiscard]] inline bool isInfoEnabled()
{
    return isLevelOn(kInfoLevel);
}
/// True when records go to a debug viewer's socket instead of the file.
[[nodiscard]] bool isSocketMode();

/// Replaces how set-up waits between two looks at the debug list; empty restores the real wait.
using PollSleep = std::function<void(std::chrono::microseconds)>;
void setPollSleep(PollSleep sleep);

/// Closes the separate trace writer's stream; the next line opens it again.
void closeTraceStream();

/// Closes both files and forgets everything, as in a new process. A socket stays open: it belongs
/// to whoever connected it. For tests.
void resetDebugLog();

} // namespace diag

// A record of kind I, E or D, when its level is on. The format is printf's; messages have any
// length.
void LogInfoBody(const char *operation, int line, const char *format, ...)
    __attribute__((format(printf, 3, 4)));
void LogErrorBody(const char *operation, int line, const char *format, ...)
    __attribute__((format(printf, 3, 4)));
void dumpBytesBody(const char *operation, int line, const char *label, const void *bytes,
                   std::size_t count);
void dumpDataBody(const char *operation, int line, const char *label, const QByteArray &data);
void dumpDictBody(const char *operation, int line, const char *label, const QVariant &list);

/// Reports whether a file exists and can be read.
void LogFileAccessBody(const char *operation, int line, const char *path);

/// A record of kind N, without any level test.
void logNote(const char *format, ...) __attribute__((format(printf, 1, 2)));

/// Writes the end records and closes socket and file. Level and once-flag stay as they are.
void closeDebugSession();

/// Builds a record and sends it, whatever the level.
void LogFormatAndSend(const char *operation, int line, char kind, const char *message);
/// Writes to the socket; without one, up to the first NUL to the file, if it is open.
void sendToDebugApp(const char *buffer, std::size_t length);

/// Opens the separate trace writer's stream for appending; standard error without a path or when it
/// cannot be opened.
void traceOpenLog(const char *path);
/// One line of the separate trace writer. @p ignored has no effect.
void TraceLogBody(const char *prefix1, const char *prefix2, const char *source, int ignored,
                  int line, const char *path, const char *format, ...)
    __attribute__((format(printf, 7, 8)));
