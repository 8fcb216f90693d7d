#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

namespace test {

/// An empty driver root of the test's own, in force while it lives. Paths are literal driver paths
/// ("/Library/Printers/...").
class DriverRoot
{
public:
    DriverRoot();
    ~DriverRoot();
    DriverRoot(const DriverRoot &) = delete;
    DriverRoot &operator=(const DriverRoot &) = delete;

    [[nodiscard]] QString realPath(const QString &literalPath) const;
    void makeDirectory(const QString &literalPath) const;
    void write(const QString &literalPath, const QByteArray &bytes) const;
    /// An XML property list with that dictionary.
    void writeList(const QString &literalPath, const QVariant &list) const;

    /// The driver configuration list of P1 with General/Product Year.
    void writeProductYear(const QVariant &year,
                          const QString &literalPath = QStringLiteral(
                              "/Library/Printers/Korvane/.Config/Korvane S300.plist")) const;
    /// The model configuration list with Features/OtherPDE Support.
    void writeOtherPanelSupport(const QVariant &value, const QString &model) const;
    /// The cartridge preferences of 2009 with the two cartridges of a model.
    void writeCartridges(const QString &cart1, const QString &cart2,
                         const QString &model = QStringLiteral("Korvane S300")) const;

private:
    QTemporaryDir directory_;
    QString former_;
};

} // namespace test
