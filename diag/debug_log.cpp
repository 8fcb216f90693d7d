#include "diag/debug_log.h"

#include "diag/formatted.h"

#include <string>
#include <string_view>
#include <utility>

#include <unistd.h>

bool logDoneSetup = false;
std::int32_t logCurrentPID = 0;
std::int32_t logDebugLevel = 0;
std::int32_t logModuleID = 0;
std::FILE *logDebugFilePtr = nullptr;
std::int32_t logClientFD = 0;
sockaddr logSocketFile{};
std::uint32_t logSocketFileSize = sizeof(sockaddr);

using diag::formatted;
using diag::formattedList;

namespace {

std::string plainRecord(const char *operation, int line, char kind, const char *message)
{
    const diag::TimeOfDay now = diag::currentTimeOfDay();
    return formatted("%c%c%06d\t[%02d:%02d:%02d.%03u]\t%s\tL%d\t%s\n", logModuleID, kind,
                     logCurrentPID, now.hours, now.minutes, now.seconds, now.microseconds / 1000,
                     operation, line, message);
}

/// The form in which a debug viewer receives dumps: with the record's length instead of operation
/// and line. The length counts six digits of the process id; of a longer one, the record loses its
/// last byte.
std::string dumpRecordForViewer(char kind, const char *message)
{
    constexpr std::size_t lengthOffset = 2;
    constexpr std::size_t fixedLength = 29;
    const diag::TimeOfDay now = diag::currentTimeOfDay();
    std::string record =
        formatted("%c%cXXXX%06d\t[%02d:%02d:%02d.%03u]\t%s\n", logModuleID, kind, logCurrentPID,
                  now.hours, now.minutes, now.seconds, now.microseconds / 1000, message);
    record.resize(std::string_view(message).size() + fixedLength);
    for (std::size_t i = 0; i < 4; ++i)
        record[lengthOffset + i] = char(record.size() >> (24 - 8 * i));
    return record;
}

/// The whole record, unless the viewer is gone. A datagram is one call.
void sendToSocket(const char *buffer, std::size_t length)
{
    if (logSocketFile.sa_family != 0) {
        ::sendto(logClientFD, buffer, length, MSG_NOSIGNAL, &logSocketFile, logSocketFileSize);
        return;
    }
    ssize_t sent = 0;
    do {
        sent = ::send(logClientFD, buffer, length, MSG_NOSIGNAL);
        if (sent > 0) {
            buffer += sent;
            length -= std::size_t(sent);
        }
    } while (sent > 0 && length > 0);
}

void closeLogFile()
{
    if (logDebugFilePtr)
        std::fclose(std::exchange(logDebugFilePtr, nullptr));
}

} // namespace

void LogInfoBody(const char *operation, int line, const char *format, ...)
{
    if (!diag::isLevelOn(diag::kInfoLevel))
        return;
    std::va_list arguments;
    va_start(arguments, format);
    LogFormatAndSend(operation, line, 'I', formattedList(format, arguments).c_str());
    va_end(arguments);
}

void LogErrorBody(const char *operation, int line, const char *format, ...)
{
    if (!diag::isLevelOn(diag::kErrorLevel))
        return;
    std::va_list arguments;
    va_start(arguments, format);
    LogFormatAndSend(operation, line, 'E', formattedList(format, arguments).c_str());
    va_end(arguments);
}

void LogFileAccessBody(const char *, int, const char *path)
{
    constexpr const char *operation = "LogFileAccessBody";
    if (!diag::isLevelOn(diag::kInfoLevel))
        return;
    if (::access(path, F_OK) != 0)
        LogErrorBody(operation, 165, "%s\n\t!exist", path);
    else if (::access(path, R_OK) == 0)
        LogInfoBody(operation, 158, "%s\n\texists\n\tread OK", path);
    else
        LogErrorBody(operation, 161, "%s\n\texists\n\tread ERR", path);
}

void logNote(const char *format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    LogFormatAndSend("logger", 0, 'N', formattedList(format, arguments).c_str());
    va_end(arguments);
}

void closeDebugSession()
{
    setupDebug();
    if (diag::isSocketMode()) {
        LogFormatAndSend("logger", 0, 'Z', "DEBUG END fd");
        ::close(std::exchange(logClientFD, 0));
    }
    if (logDebugFilePtr)
        LogFormatAndSend("logger", 0, 'Z', "DEBUG END file");
    closeLogFile();
}

void LogFormatAndSend(const char *operation, int line, char kind, const char *message)
{
    const std::string record = kind == 'D' && diag::isSocketMode()
                                   ? dumpRecordForViewer(kind, message)
                                   : plainRecord(operation, line, kind, message);
    sendToDebugApp(record.data(), record.size());
}

void sendToDebugApp(const char *buffer, std::size_t length)
{
    if (diag::isSocketMode()) {
        sendToSocket(buffer, length);
    } else if (logDebugFilePtr) {
        std::fputs(buffer, logDebugFilePtr);
        std::fflush(logDebugFilePtr);
    }
}

namespace diag {

bool isSocketMode()
{
    return logClientFD >= 2;
}

void resetDebugLog()
{
    closeLogFile();
    closeTraceStream();
    logDoneSetup = false;
    logCurrentPID = 0;
    logDebugLevel = 0;
    logModuleID = 0;
    logClientFD = 0;
    logSocketFile = {};
    logSocketFileSize = sizeof(sockaddr);
    setPollSleep({});
}

} // namespace diag
