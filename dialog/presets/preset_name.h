#pragma once

#include <QString>
#include <QStringList>

namespace dialog {

/// Characters of the longest name of a preset.
inline constexpr qsizetype kLongestPresetName = 80;

enum class NameFault { None, Empty, TooLong, Taken };

/// A typed name as it is kept: composed, without white space at its ends or twice in a row.
[[nodiscard]] QString cleanPresetName(const QString &typed);

/// Whether two names are one to a person: in any case.
[[nodiscard]] bool isSamePresetName(const QString &a, const QString &b);

/// Of a typed name among those that are taken. A name of characters that nobody sees is empty.
[[nodiscard]] NameFault nameFault(const QString &typed, const QStringList &taken);

/// @p wanted, or with the first number behind it that makes it free, cut to fit.
[[nodiscard]] QString freePresetName(const QString &wanted, const QStringList &taken);

} // namespace dialog
