#pragma once

#include "dialog/preview/page_source.h"

namespace dialog {

/// Where the module is: seen from the program's folder, in the build as where it is installed, so
/// that nobody can name another one.
[[nodiscard]] QString pdfModule();

/// A PDF document, read by Poppler. Pages are read when they are asked for.
///
/// Poppler and the twenty libraries that come with it are in a module beside the program, loaded
/// with the first document: a window that opens does not wait for them, and without the module
/// (DocumentProblem::NoReader) everything but the preview of PDF works.
[[nodiscard]] OpenedSource openPdf(const QString &path, const QString &module = pdfModule());

} // namespace dialog
