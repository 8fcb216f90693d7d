#pragma once

#include <QByteArray>

#include <cstdio>
#include <optional>
#include <string>

/// Files in a folder that other users may share: what is opened is a regular file of the effective
/// user, found without following links. Nothing here blocks on a FIFO.
namespace diag {

/// The content of @p name, a path relative to @p folder. Nothing when it is no such file, when
/// anybody else may write it, or when it is larger than @p maximum bytes.
[[nodiscard]] std::optional<QByteArray> readGuardedFile(const std::string &folder,
                                                        const std::string &name, qint64 maximum);

/// Opens @p name, relative to @p folder, for appending; everybody may read and write it afterwards.
/// Null, with the reason in errno, when that fails or when the file is not as described above.
[[nodiscard]] std::FILE *openGuardedLog(const std::string &folder, const std::string &name);
/// The same for a path of its own; only the file itself must be no link.
[[nodiscard]] std::FILE *openGuardedLog(const std::string &path);

} // namespace diag
