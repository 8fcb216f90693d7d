#include "dialog/jobs/document.h"

#include "dialog/texts.h"

#include <QFile>
#include <QFileInfo>

namespace dialog {

QString documentProblem(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return text(Text::DocumentMissing, {path});
    // A FIFO would block; only a regular file is opened at all.
    if (!info.isFile() || !QFile(path).open(QIODevice::ReadOnly))
        return text(Text::DocumentUnreadable, {path});
    return {};
}

QString documentName(const QString &path)
{
    return path.isNull() ? QString() : QFileInfo(path).fileName();
}

} // namespace dialog
