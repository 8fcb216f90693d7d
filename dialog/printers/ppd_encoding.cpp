#include "dialog/printers/ppd_encoding.h"

#include <algorithm>
#include <iterator>

namespace dialog {
namespace {

struct Encoding
{
    const char *word;
    const char *name;
};

// clang-format off
constexpr Encoding kEncodings[] = {
    {"ISOLatin1",   "ISO-8859-1"},
    {"ISOLatin2",   "ISO-8859-2"},
    {"ISOLatin5",   "ISO-8859-5"},
    {"JIS83-RKSJ",  "Shift_JIS"},
    {"MacStandard", "macintosh"},
    {"WindowsANSI", "windows-1252"},
    {"UTF-8",       "UTF-8"},
};
// clang-format on

} // namespace

const char *encodingName(const QByteArray &word)
{
    const auto found =
        std::find_if(std::begin(kEncodings), std::end(kEncodings),
                     [&](const Encoding &encoding) { return word == encoding.word; });
    return found == std::end(kEncodings) ? nullptr : found->name;
}

} // namespace dialog
