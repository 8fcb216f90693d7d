#include "tests/support/driver_root.h"

#include "platform/property_list.h"
#include "platform/values.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace test {

DriverRoot::DriverRoot() : former_(platform::driverRoot())
{
    platform::setDriverRoot(directory_.path());
}

DriverRoot::~DriverRoot() { platform::setDriverRoot(former_); }

QString DriverRoot::realPath(const QString &literalPath) const
{
    return directory_.path() + literalPath;
}

void DriverRoot::makeDirectory(const QString &literalPath) const
{
    ASSERT_TRUE(QDir().mkpath(realPath(literalPath)));
}

void DriverRoot::write(const QString &literalPath, const QByteArray &bytes) const
{
    const QString path = realPath(literalPath);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void DriverRoot::writeList(const QString &literalPath, const QVariant &list) const
{
    write(literalPath, platform::propertyListXml(list));
}

void DriverRoot::writeProductYear(const QVariant &year, const QString &literalPath) const
{
    const QVariantMap general{{QStringLiteral("Product Year"), year}};
    writeList(literalPath, QVariantMap{{QStringLiteral("General"), general}});
}

void DriverRoot::writeOtherPanelSupport(const QVariant &value, const QString &model) const
{
    const QString path = QStringLiteral("/Library/Printers/Korvane/Drivers/.Config/") + model +
                         QStringLiteral(".bundle/Contents/Resources/") + model +
                         QStringLiteral(".plist");
    const QVariantMap features{{QStringLiteral("OtherPDE Support"), value}};
    writeList(path, QVariantMap{{QStringLiteral("Features"), features}});
}

void DriverRoot::writeCartridges(const QString &cart1, const QString &cart2,
                                 const QString &model) const
{
    const auto cartridge = [](const QString &name) {
        return QVariantMap{{QStringLiteral("CartName"), name}};
    };
    const QVariantMap current{{QStringLiteral("Cart1"), cartridge(cart1)},
                              {QStringLiteral("Cart2"), cartridge(cart2)}};
    const QVariantMap entry{{QStringLiteral("Current"), current}};
    writeList(
        QStringLiteral("/Library/Printers/Korvane/Preferences/com.korvane.prefs.2009.plist"),
        QVariantMap{{model, entry}});
}

} // namespace test
