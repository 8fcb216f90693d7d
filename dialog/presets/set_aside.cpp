#include "dialog/presets/set_aside.h"

#include <QDateTime>

#include <cerrno>

namespace dialog {

SetAside setAside(const PrivateFolder &folder, const QString &name)
{
    const QString wanted =
        name + QStringLiteral(".damaged-") +
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString to = wanted;
    for (int number = 2; folder.hasFile(to); ++number)
        to = QStringLiteral("%1-%2").arg(wanted).arg(number);
    if (auto refused = folder.rename(name, to))
        return {.refused = std::move(refused)};
    return {.path = folder.pathOf(to)};
}

} // namespace dialog
