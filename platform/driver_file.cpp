#include "platform/driver_file.h"

#include "platform/property_list.h"
#include "platform/values.h"

#include <QFileInfo>

namespace platform {
namespace {

/// The file's own path, without links and "..", when it lies in the driver's folder; else null.
QString ownPathInDriverFolder(const QString &literalPath)
{
    const QString folder =
        QFileInfo(resolved(QStringLiteral("/Library/Printers"))).canonicalFilePath();
    const QString file = QFileInfo(resolved(literalPath)).canonicalFilePath();
    const bool isInside = !folder.isEmpty() && file.startsWith(folder + u'/');
    return isInside ? file : QString();
}

} // namespace

QVariant readDriverPropertyList(const QString &literalPath)
{
    return readPropertyList(ownPathInDriverFolder(literalPath));
}

} // namespace platform
