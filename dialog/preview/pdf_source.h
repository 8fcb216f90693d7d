#pragma once

#include "dialog/preview/page_source.h"

namespace dialog {

/// A PDF document, read by Poppler. Pages are read when they are asked for.
[[nodiscard]] OpenedSource openPdf(const QString &path);

} // namespace dialog
