#pragma once

#include <QString>

namespace dialog {

/// Null when the document can be printed: a regular file that may be read. Else what to tell a
/// person.
[[nodiscard]] QString documentProblem(const QString &path);

/// The document's name without its folders; null for null.
[[nodiscard]] QString documentName(const QString &path);

} // namespace dialog
