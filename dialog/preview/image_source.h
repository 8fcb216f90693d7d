#pragma once

#include "dialog/preview/page_source.h"

namespace dialog {

/// A picture as a document of one page.
[[nodiscard]] OpenedSource openImage(const QString &path);

} // namespace dialog
