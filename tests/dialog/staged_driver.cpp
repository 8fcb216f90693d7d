#include "tests/dialog/staged_driver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace test {
namespace {

void makeFolder(const QString &path)
{
    ASSERT_TRUE(QDir().mkpath(path));
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0755), 0);
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
    file.close();
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0644), 0);
}

} // namespace

StagedDriver::StagedDriver()
{
    QString path = root();
    makeFolder(path);
    for (const QString &part :
         (bundleName() + QStringLiteral("/Contents/Linux")).split(u'/', Qt::SkipEmptyParts)) {
        path += u'/' + part;
        makeFolder(path);
    }
    replaceLibraryBy(QStringLiteral(DIALOG_TEST_MODULE));
}

QString StagedDriver::bundleName()
{
    return QStringLiteral("/Library/Printers/Example/Panels.bundle");
}

QString StagedDriver::library() const
{
    return bundle() + QStringLiteral("/Contents/Linux/libkorvane-panels.so");
}

QString StagedDriver::write(const QString &name, const QByteArray &bytes) const
{
    writeBytes(path(name), bytes);
    return path(name);
}

QString StagedDriver::writePrinter() const
{
    return write(QStringLiteral("printer.ppd"),
                 constrained().withAttribute("APDialogExtension", bundleName().toUtf8()).bytes());
}

void StagedDriver::replaceLibrary(const QByteArray &bytes) const
{
    QFile::remove(library());
    writeBytes(library(), bytes);
}

void StagedDriver::replaceLibraryBy(const QString &module) const
{
    replaceLibrary(fileBytes(module));
}

PpdText constrained()
{
    PpdText ppd = p1();
    ppd.withLine("*UIConstraints: *MediaType IronOn *PrintQuality Draft")
        .withLine("*UIConstraints: *PrintQuality Draft *MediaType IronOn")
        .withLine("*UIConstraints: *MediaType Transparency *Mirror On");
    return ppd;
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

} // namespace test
