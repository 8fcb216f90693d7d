#include "conflict/cartridges.h"

#include "platform/driver_file.h"
#include "platform/property_list.h"
#include "platform/strings.h"

namespace conflict {
namespace {

QString nameIn(const QVariant &current, const QString &slot)
{
    const QVariant name =
        platform::valueForKey(platform::valueForKey(current, slot), QStringLiteral("CartName"));
    return name.typeId() == QMetaType::QString ? name.toString() : QString();
}

} // namespace

QString cartridgePreferencesPath(const QString &modelYear)
{
    return QStringLiteral("/Library/Printers/Korvane/Preferences/com.korvane.prefs.") +
           platform::described(modelYear) + QStringLiteral(".plist");
}

Cartridges installedCartridges(const QString &modelYear, const QString &modelName)
{
    const QVariant preferences =
        platform::readDriverPropertyList(cartridgePreferencesPath(modelYear));
    const QVariant current = platform::valueForKey(platform::valueForKey(preferences, modelName),
                                                   QStringLiteral("Current"));
    return {nameIn(current, QStringLiteral("Cart1")), nameIn(current, QStringLiteral("Cart2"))};
}

} // namespace conflict
