#include "diag/debug_log.h"
#include "diag/formatted.h"
#include "diag/guarded_file.h"

#include <utility>

std::FILE *gFileStream = nullptr;

void diag::closeTraceStream()
{
    std::FILE *stream = std::exchange(gFileStream, nullptr);
    if (stream && stream != stderr)
        std::fclose(stream);
}

void traceOpenLog(const char *path)
{
    diag::closeTraceStream();
    if (path)
        gFileStream = diag::openGuardedLog(path);
    if (!gFileStream)
        gFileStream = stderr;
}

void TraceLogBody(const char *prefix1, const char *prefix2, const char *source, int, int line,
                  const char *path, const char *format, ...)
{
    if (!gFileStream)
        traceOpenLog(path);
    if (!gFileStream)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    const std::string message = diag::formattedList(format, arguments);
    va_end(arguments);
    const diag::TimeOfDay now = diag::currentTimeOfDay();
    std::fprintf(gFileStream, "%s%s<%2.2d:%2.2d:%2.2d.%u> : %s in line:%d ## %s%s\n", prefix1,
                 prefix2, now.hours, now.minutes, now.seconds, now.microseconds, source, line,
                 message.c_str(), "");
    std::fflush(gFileStream);
}
