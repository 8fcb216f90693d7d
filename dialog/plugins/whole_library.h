#pragma once

#include <QString>

namespace dialog {

/// True for a shared library of this machine's kind that lies in its file down to the last segment
/// and section. The system's loader does not look: it maps what is not there, and the process dies
/// at the first touch.
[[nodiscard]] bool isWholeLibrary(const QString &path);

} // namespace dialog
