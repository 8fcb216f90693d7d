#pragma once

#include <QString>

namespace conflict {

/// Literal path of the cartridge preferences, which another program of the driver writes; a null
/// year stands as "(null)".
[[nodiscard]] QString cartridgePreferencesPath(const QString &modelYear);

/// Names of the installed cartridges; null where the file, a level or a name is missing or of
/// another type.
struct Cartridges
{
    QString cart1;
    QString cart2;
};

/// Reads the preferences file for a model. The file is not trusted: reading it never blocks, and
/// outside the driver's folder it is missing.
[[nodiscard]] Cartridges installedCartridges(const QString &modelYear, const QString &modelName);

} // namespace conflict
