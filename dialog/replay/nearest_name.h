#pragma once

#include <QString>
#include <QStringList>

namespace dialog::replay {

/// The name that a slip of the finger is likeliest to have meant, case ignored; null when none is
/// near, or the only near one is the same.
[[nodiscard]] QString nearestName(const QString &name, const QStringList &names);

/// "no WHAT NAME; did you mean NEAREST?", or without the question when none is near.
[[nodiscard]] QString noSuchName(const QString &what, const QString &name,
                                 const QStringList &names);

} // namespace dialog::replay
