#pragma once

#include <QString>
#include <QStringList>

namespace dialog::replay {

/// A line taken apart as a POSIX shell would, without any expansion.
struct ShellWords
{
    QStringList words;
    QString error; ///< null when the line could be read
};

/// Splits at blanks; '...', "..." and a backslash quote; "#" at the beginning of a word starts a
/// comment. One oddity: in "choose CONTROL #2" the number sign is part of the index.
[[nodiscard]] ShellWords shellWords(const QString &line);

} // namespace dialog::replay
