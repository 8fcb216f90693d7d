#pragma once

#include "tests/support/ppd_fixtures.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace test {

/// A driver root of its own with the test plug-in's bundle in it, and a printer that names it.
class StagedDriver
{
public:
    StagedDriver();

    [[nodiscard]] QString root() const { return directory_.path() + QStringLiteral("/root"); }
    /// Any file beside the root.
    [[nodiscard]] QString path(const QString &name) const { return directory_.filePath(name); }
    [[nodiscard]] QString bundle() const { return root() + bundleName(); }
    [[nodiscard]] QString library() const;
    [[nodiscard]] static QString bundleName();

    /// Writes a file and answers its path.
    QString write(const QString &name, const QByteArray &bytes) const;
    /// P1 with constraints of its own (see constrained()), naming the bundle.
    QString writePrinter() const;
    /// Puts other bytes in the place of the plug-in's library.
    void replaceLibrary(const QByteArray &bytes) const;
    void replaceLibraryBy(const QString &module) const;

private:
    QTemporaryDir directory_;
};

/// P1 where iron-on paper excludes draft quality, and mirrored clear film is impossible.
[[nodiscard]] PpdText constrained();

[[nodiscard]] QByteArray fileBytes(const QString &path);

} // namespace test
