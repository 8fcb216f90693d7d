#pragma once

#include "platform/export.h"

#include <QString>
#include <QVariant>

/// Text and number rules of the print panels. A null QString stands for "no string" and is never
/// the same as an empty one; QString's own operator== does not know the difference.
namespace platform {

/// Exact comparison in which null equals null only.
[[nodiscard]] PLATFORM_EXPORT bool isEqual(const QString &a, const QString &b);

/// True when both are one and the same string object: same data, size and null-ness. Two nulls are
/// the same, and so are all empty non-null strings.
[[nodiscard]] PLATFORM_EXPORT bool isSameObject(const QString &a, const QString &b);

/// The text that "%@" and "%s" print: the string itself, "(null)" for null.
[[nodiscard]] PLATFORM_EXPORT QString described(const QString &text);

/// Leading integer of a text: white space, one sign, ASCII digits up to the first other character.
/// No digits (or null) give 0; the result saturates at the limits of int. No locale.
[[nodiscard]] PLATFORM_EXPORT int integerValue(const QString &text);

/// Integer value of a property-list or print-settings value. Strings as above, reals are truncated
/// and saturate (NaN gives 0), booleans are 1 and 0. Any other type gives 0.
[[nodiscard]] PLATFORM_EXPORT int integerValue(const QVariant &value);

/// Boolean value of a property-list value: a boolean itself; a number when it is not zero (0.5 is
/// true); a string when its first character after white space is one of Y y T t, or when it reads
/// as an optional sign, zeros and then a digit 1 to 9. Anything else is false.
[[nodiscard]] PLATFORM_EXPORT bool booleanValue(const QVariant &value);

/// The path without its last component, as pure text: "/a/b" gives "/a", "/a" and "/" give "/",
/// "a/b" and "a//b" give "a", "a" and "" give "", "/a/b/" gives "/a". Null gives null.
[[nodiscard]] PLATFORM_EXPORT QString droppingLastPathComponent(const QString &path);

/// The text without the characters of @p set at either end, unit by unit and case-sensitive.
[[nodiscard]] PLATFORM_EXPORT QString trimmingCharacters(const QString &text, const QString &set);

/// True when @p text contains @p needle, case-sensitive; an empty or null needle is found nowhere.
[[nodiscard]] PLATFORM_EXPORT bool containsText(const QString &text, const QString &needle);

/// String encodings by the number that the panels store and pass on.
namespace encoding {
inline constexpr unsigned long ascii = 1;
inline constexpr unsigned long utf8 = 4;
inline constexpr unsigned long isoLatin1 = 5;
inline constexpr unsigned long shiftJis = 8;
inline constexpr unsigned long windowsLatin1 = 12;
inline constexpr unsigned long macRoman = 30;
} // namespace encoding

/// NUL-terminated bytes as text. A null pointer and an unknown encoding give null. ASCII bytes
/// above 127 make the whole result null; the other encodings replace what they cannot read by
/// U+FFFD.
[[nodiscard]] PLATFORM_EXPORT QString decoded(const char *bytes, unsigned long stringEncoding);

/// decoded() as UTF-8.
[[nodiscard]] PLATFORM_EXPORT QString decodedUtf8(const char *bytes);

} // namespace platform
