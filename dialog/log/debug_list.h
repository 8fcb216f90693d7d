#pragma once

#include <QString>

#include <variant>

/// The list that switches the debug log on, "Debug/.DebugPlist/kvDebug.plist" in the user's
/// temporary directory. It may hold entries of other modules, which stay.
namespace dialog::debuglog {

struct LogSettings
{
    int level = 3; ///< 1 calls and information, 2 errors, 4 dumps; added up
    QString file = QStringLiteral("korvane-print.log"); ///< in the temporary directory
};

/// What was done, or why nothing was, in one line.
struct Done
{
    QString message;
};
struct NotDone
{
    QString message;
};
using ListOutcome = std::variant<Done, NotDone>;

/// Null when the name can be that of the log in this temporary directory, else why not. The log is
/// opened with paths of 511 bytes at most, and takes names of ASCII letters only.
[[nodiscard]] QString whyNoLogName(const QString &name, const QString &temporaryDirectory);

[[nodiscard]] ListOutcome switchLogOn(const LogSettings &settings,
                                      const QString &temporaryDirectory);
[[nodiscard]] ListOutcome switchLogOff(const QString &temporaryDirectory);

} // namespace dialog::debuglog
