#include "dialog/preview/pdf_source.h"

#include "dialog/preview/pdf_module.h"

#include <QCoreApplication>
#include <QLibrary>

namespace dialog {

QString pdfModule()
{
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/../lib/korvane/korvane-pdf.so");
}

OpenedSource openPdf(const QString &path, const QString &module)
{
    OpenedSource opened{{}, DocumentProblem::NoReader};
    QLibrary library(module); // stays loaded, and is asked anew at no cost
    if (const auto open =
            reinterpret_cast<decltype(&korvaneOpenPdf)>(library.resolve("korvaneOpenPdf")))
        open(path, opened);
    return opened;
}

} // namespace dialog
