#include "platform/driver_file.h"

#include "platform/property_list.h"
#include "platform/values.h"

#include <QFileInfo>

namespace platform {
namespace {

/// The file's own path, without links and "..", when it lies in that folder; else null.
QString ownPathIn(const QString &literalFolder, const QString &literalPath)
{
    QString folder = QFileInfo(resolved(literalFolder)).canonicalFilePath();
    const QString file = QFileInfo(resolved(literalPath)).canonicalFilePath();
    if (!folder.isEmpty() && !folder.endsWith(u'/'))
        folder += u'/';
    const bool isInside = !folder.isEmpty() && file.startsWith(folder);
    return isInside ? file : QString();
}

QString ownPathInDriverFolder(const QString &literalPath)
{
    return ownPathIn(QStringLiteral("/Library/Printers"), literalPath);
}

} // namespace

bool isInDriverFolder(const QString &literalPath)
{
    return !ownPathInDriverFolder(literalPath).isNull();
}

QVariant readDriverPropertyList(const QString &literalPath)
{
    return readPropertyList(ownPathInDriverFolder(literalPath));
}

QVariant readPropertyListInRoot(const QString &literalPath)
{
    return readPropertyList(ownPathIn(QStringLiteral("/"), literalPath));
}

} // namespace platform
