#include "conflict/cartridges.h"

#include "platform/property_list.h"
#include "platform/strings.h"
#include "platform/values.h"

namespace conflict {

QString cartridgePreferencesPath(const QString &modelYear)
{
    return QStringLiteral("/Library/Printers/Korvane/Preferences/com.korvane.prefs.") +
           platform::described(modelYear) + QStringLiteral(".plist");
}

QString installedCartridge(const QString &modelYear, const QString &modelName, const QString &slot)
{
    QVariant level =
        platform::readPropertyList(platform::resolved(cartridgePreferencesPath(modelYear)));
    for (const QString &key :
         {modelName, QStringLiteral("Current"), slot, QStringLiteral("CartName")})
        level = platform::valueForKey(level, key);
    return level.typeId() == QMetaType::QString ? level.toString() : QString();
}

} // namespace conflict
