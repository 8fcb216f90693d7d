#pragma once

#include "platform/export.h"

#include <QString>
#include <QStringList>

#include <cstdint>

/// What the operating system says about itself and its user. The host may set each value, before
/// the first panel is created; every value has a default taken from the running system.
namespace platform {

/// Folder under which every absolute driver path ("/Library/Printers/...") is looked up; "" is the
/// real root. resolved() is the only place where the root is joined to a path: operations return
/// the literal path and resolve it when they open it. A null or relative path stays as it is.
[[nodiscard]] PLATFORM_EXPORT QString driverRoot();
PLATFORM_EXPORT void setDriverRoot(const QString &root);
[[nodiscard]] PLATFORM_EXPORT QString resolved(const QString &literalPath);

/// System version in binary-coded decimal; 0x1060 (10.6.0) until the host sets another.
[[nodiscard]] PLATFORM_EXPORT int systemVersion();
PLATFORM_EXPORT void setSystemVersion(int version);

/// The user's languages, most wanted first; those of the environment until the host sets others.
[[nodiscard]] PLATFORM_EXPORT QStringList preferredLanguages();
PLATFORM_EXPORT void setPreferredLanguages(const QStringList &languages);
/// From LANGUAGE, LC_ALL, LC_MESSAGES, LANG, the first of them that names any, in POSIX form
/// without encoding and modifier ("zh_CN"); C, POSIX and an empty environment give "en".
[[nodiscard]] PLATFORM_EXPORT QStringList languagesOfEnvironment();
/// The first preferred language; null when there is none.
[[nodiscard]] PLATFORM_EXPORT QString firstPreferredLanguage();

/// Identifier of the current locale, such as "de_AT", and its language code, such as "de".
[[nodiscard]] PLATFORM_EXPORT QString localeIdentifier();
[[nodiscard]] PLATFORM_EXPORT QString localeLanguageCode();
/// A null identifier goes back to the user's own locale.
PLATFORM_EXPORT void setLocaleIdentifier(const QString &identifier);

/// The user's temporary directory: TMPDIR, else XDG_RUNTIME_DIR, else "/tmp"; read at each call.
[[nodiscard]] PLATFORM_EXPORT QString temporaryDirectory();

} // namespace platform

using OSStatus = std::int32_t;
using OSType = std::uint32_t;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus paramErr = -50;
inline constexpr OSStatus gestaltUndefSelectorErr = -5551;
/// The four characters "sysv".
inline constexpr OSType gestaltSystemVersion = 0x73797376;

/// Stores systemVersion() for gestaltSystemVersion. Any other selector leaves the response alone
/// and returns gestaltUndefSelectorErr.
PLATFORM_EXPORT OSStatus Gestalt(OSType selector, std::int32_t *response);
