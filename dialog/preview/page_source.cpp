#include "dialog/preview/page_source.h"

#include "dialog/preview/image_source.h"
#include "dialog/preview/pdf_source.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace dialog {
namespace {

/// Readers of PDF look for its mark this far into the file.
constexpr qint64 kMarkWithin = 1024;

} // namespace

OpenedSource openPageSource(const QString &path)
{
    if (path.isNull())
        return {{}, DocumentProblem::NoDocument};
    QFile file(path);
    // A FIFO would block for as long as nobody writes to it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {{}, DocumentProblem::Unreadable};
    if (file.peek(kMarkWithin).contains("%PDF-"))
        return openPdf(path);
    if (QImageReader(&file).canRead())
        return openImage(path);
    return {{}, DocumentProblem::UnknownKind};
}

} // namespace dialog
