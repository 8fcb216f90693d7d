#pragma once

#include <cstdarg>
#include <string>

namespace diag {

/// The printf text, of any length. Empty when the format cannot be carried out.
[[nodiscard]] std::string formatted(const char *format, ...) __attribute__((format(printf, 1, 2)));
[[nodiscard]] std::string formattedList(const char *format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));

/// Local wall-clock time.
struct TimeOfDay
{
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    unsigned microseconds = 0; ///< of the current second
};
[[nodiscard]] TimeOfDay currentTimeOfDay();

} // namespace diag
