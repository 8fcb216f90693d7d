#pragma once

#include "platform/export.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Files that other programs wrote, read without trust: never blocking, never more than a limit.
namespace platform {

/// The contents of a regular file at a real path; links are followed. Nothing for a null path, for
/// anything but a regular file, and for a file of more than @p limit bytes.
[[nodiscard]] PLATFORM_EXPORT std::optional<QByteArray> readRegularFile(const QString &realPath,
                                                                        qint64 limit);

/// The same from an open descriptor, which stays open. The caller opened it with O_NONBLOCK.
[[nodiscard]] PLATFORM_EXPORT std::optional<QByteArray> readRegularFile(int descriptor,
                                                                        qint64 limit);

} // namespace platform
