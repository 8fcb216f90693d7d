#include "diag/formatted.h"

#include <array>
#include <cstdio>
#include <ctime>

#include <sys/time.h>

namespace diag {

std::string formatted(const char *format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::string text = formattedList(format, arguments);
    va_end(arguments);
    return text;
}

std::string formattedList(const char *format, std::va_list arguments)
{
    std::array<char, 512> small;
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(small.data(), small.size(), format, arguments);
    std::string text;
    if (length > 0 && std::size_t(length) < small.size()) {
        text.assign(small.data(), std::size_t(length));
    } else if (length > 0) {
        text.resize(std::size_t(length));
        std::vsnprintf(text.data(), text.size() + 1, format, again);
    }
    va_end(again);
    return text;
}

TimeOfDay currentTimeOfDay()
{
    timeval now{};
    gettimeofday(&now, nullptr);
    std::tm local{};
    localtime_r(&now.tv_sec, &local);
    return {.hours = local.tm_hour,
            .minutes = local.tm_min,
            .seconds = local.tm_sec,
            .microseconds = unsigned(now.tv_usec)};
}

} // namespace diag
