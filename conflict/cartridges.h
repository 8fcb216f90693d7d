#pragma once

#include <QString>

namespace conflict {

/// Literal path of the cartridge preferences, which another program of the driver writes; a null
/// year stands as "(null)".
[[nodiscard]] QString cartridgePreferencesPath(const QString &modelYear);

/// Name of the cartridge that the preferences file gives for a model and a slot ("Cart1", "Cart2");
/// null when the file, a level or a name is missing or of another type. Not trusted, never
/// blocking.
[[nodiscard]] QString installedCartridge(const QString &modelYear, const QString &modelName,
                                         const QString &slot);

} // namespace conflict
