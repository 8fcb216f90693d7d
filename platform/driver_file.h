#pragma once

#include "platform/export.h"

#include <QString>
#include <QVariant>

/// Files of the driver whose paths are put together from texts of a PPD. PPDs come from servers.
namespace platform {

/// Whether the file or folder itself, with every ".." and link on the way followed, lies below the
/// driver root's "/Library/Printers". False where there is none.
[[nodiscard]] PLATFORM_EXPORT bool isInDriverFolder(const QString &literalPath);

/// Reads the property list at a literal driver path (see platform::resolved()). It is opened only
/// when it isInDriverFolder(); anywhere else it reads as missing.
[[nodiscard]] PLATFORM_EXPORT QVariant readDriverPropertyList(const QString &literalPath);

/// The same for a list whose folder the PPD itself names: it may lie anywhere below the driver
/// root.
[[nodiscard]] PLATFORM_EXPORT QVariant readPropertyListInRoot(const QString &literalPath);

} // namespace platform
