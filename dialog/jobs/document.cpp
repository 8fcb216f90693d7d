#include "dialog/jobs/document.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace dialog {
namespace {

class DocumentTexts
{
    Q_DECLARE_TR_FUNCTIONS(DocumentTexts)
};

} // namespace

QString documentProblem(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return DocumentTexts::tr(
                   "There is no document %1. Nothing was sent; choose another document.")
            .arg(path);
    // A FIFO would block; only a regular file is opened at all.
    if (!info.isFile() || !QFile(path).open(QIODevice::ReadOnly))
        return DocumentTexts::tr("The document %1 cannot be read. Nothing was sent; choose another "
                                 "document or allow reading it.")
            .arg(path);
    return {};
}

QString documentName(const QString &path)
{
    return path.isNull() ? QString() : QFileInfo(path).fileName();
}

} // namespace dialog
