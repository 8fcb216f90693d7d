#include "dialog/plugins/plugin_loader.h"
#include "platform/values.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace dialog;
using test::q;

namespace {

using Reason = PathRefusal::Reason;

class PlugInPath : public testing::Test
{
protected:
    PlugInPath() { platform::setDriverRoot(driver.root()); }

    /// Checks the library's path.
    std::optional<PathRefusal> check(TrustedOwner owner = TrustedOwner::RootAndUser)
    {
        return checkDriverPath(literalLibrary(), PathKind::File, owner);
    }
    QString literalLibrary() const { return driver.library().mid(driver.root().size()); }
    /// "/Library", "/Library/Printers", ... down to the library, as real paths.
    QStringList parts() const
    {
        QStringList paths;
        QString path = driver.root();
        for (const QString &part : literalLibrary().split(u'/', Qt::SkipEmptyParts))
            paths.append(path += u'/' + part);
        return paths;
    }
    static void setMode(const QString &path, mode_t mode)
    {
        ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    test::StagedDriver driver;
};

TEST_F(PlugInPath, InGoodOrderIsAccepted)
{
    EXPECT_FALSE(check());
}

TEST_F(PlugInPath, OutsideThePrintersFolderIsRefused)
{
    for (const char *path : {"/etc/passwd", "/Library/PrintersX/a.bundle", "/Library/Printers", "a",
                             "", "Library/Printers/a.bundle", "/Library//Printers/a.bundle"}) {
        const auto refusal =
            checkDriverPath(q(path), PathKind::Directory, TrustedOwner::RootAndUser);
        ASSERT_TRUE(refusal) << path;
        EXPECT_EQ(refusal->reason, Reason::Outside) << path;
    }
}

TEST_F(PlugInPath, ThroughDotDotIsRefusedWhereverItLeads)
{
    for (const char *path : {"/Library/Printers/../Printers/Example/Panels.bundle",
                             "/Library/Printers/Example/../../../etc", "/Library/Printers/.."}) {
        const auto refusal =
            checkDriverPath(q(path), PathKind::Directory, TrustedOwner::RootAndUser);
        ASSERT_TRUE(refusal) << path;
        EXPECT_EQ(refusal->reason, Reason::DotDot) << path;
    }
}

TEST_F(PlugInPath, ThatIsNotThereIsMissing)
{
    ASSERT_TRUE(QFile::remove(driver.library()));
    ASSERT_TRUE(check());
    EXPECT_EQ(check()->reason, Reason::Missing);
    EXPECT_SAME(check()->path, driver.library());
}

TEST_F(PlugInPath, WithALinkAtAnyLevelIsRefused)
{
    for (const QString &part : parts()) {
        const QString moved = part + q(".moved");
        ASSERT_TRUE(QFile::rename(part, moved));
        ASSERT_EQ(
            symlink(QFile::encodeName(moved).constData(), QFile::encodeName(part).constData()), 0);
        const auto refusal = check();
        ASSERT_TRUE(refusal) << part.toStdString();
        EXPECT_EQ(refusal->reason, Reason::Link) << part.toStdString();
        EXPECT_SAME(refusal->path, part);
        ASSERT_TRUE(QFile::remove(part));
        ASSERT_TRUE(QFile::rename(moved, part));
    }
    EXPECT_FALSE(check()) << "all is as it was";
}

TEST_F(PlugInPath, ThatOthersMayWriteAtAnyLevelIsRefused)
{
    for (const QString &part : QStringList{driver.root()} + parts()) {
        for (const mode_t mode : {0775U, 0757U}) {
            setMode(part, mode);
            const auto refusal = check();
            ASSERT_TRUE(refusal) << part.toStdString();
            EXPECT_EQ(refusal->reason, Reason::WritableByOthers) << part.toStdString();
            EXPECT_SAME(refusal->path, part);
            setMode(part, 0755);
        }
    }
    EXPECT_FALSE(check()) << "all is as it was";
}

TEST_F(PlugInPath, OfAnotherOwnerAtAnyLevelIsRefused)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files away";
    constexpr uid_t kSomebody = 65534;
    for (const QString &part : QStringList{driver.root()} + parts()) {
        const QByteArray path = QFile::encodeName(part);
        ASSERT_EQ(chown(path.constData(), kSomebody, static_cast<gid_t>(-1)), 0);
        const auto refusal = check();
        ASSERT_TRUE(refusal) << part.toStdString();
        EXPECT_EQ(refusal->reason, Reason::Owner) << part.toStdString();
        ASSERT_EQ(chown(path.constData(), 0, static_cast<gid_t>(-1)), 0);
    }
}

TEST_F(PlugInPath, OfTheUserIsTrustedOnlyWhereTheRootWasGiven)
{
    constexpr uid_t kSomebody = 65534;
    if (geteuid() == 0) {
        for (const QString &part : QStringList{driver.root()} + parts())
            ASSERT_EQ(chown(QFile::encodeName(part).constData(), kSomebody, static_cast<gid_t>(-1)),
                      0);
        ASSERT_EQ(chmod(QFile::encodeName(QFileInfo(driver.root()).path()).constData(), 0755), 0);
        ASSERT_EQ(seteuid(kSomebody), 0);
    }
    const auto trusted = check(TrustedOwner::RootAndUser);
    const auto untrusted = check(TrustedOwner::RootOnly);
    if (getuid() == 0) {
        ASSERT_EQ(seteuid(0), 0);
    }
    EXPECT_FALSE(trusted);
    ASSERT_TRUE(untrusted);
    EXPECT_EQ(untrusted->reason, Reason::Owner);
}

TEST_F(PlugInPath, MustEndInAFileWhereAFileIsWanted)
{
    const QString folder = test::StagedDriver::bundleName();
    const auto refusal = checkDriverPath(folder, PathKind::File, TrustedOwner::RootAndUser);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->reason, Reason::NotRegular);
    EXPECT_FALSE(checkDriverPath(folder, PathKind::Directory, TrustedOwner::RootAndUser));
}

class PlugInLoading : public PlugInPath
{
protected:
    /// The notice of a failed load; null when it succeeded.
    static QString failureOf(const QString &bundle = test::StagedDriver::bundleName())
    {
        const auto loaded = loadPlugIn(bundle, TrustedOwner::RootAndUser);
        const auto *failure = std::get_if<PlugInFailure>(&loaded);
        return failure ? failure->notice : QString();
    }
};

TEST_F(PlugInLoading, GivesThePrincipalObject)
{
    const auto loaded = loadPlugIn(test::StagedDriver::bundleName(), TrustedOwner::RootAndUser);
    ASSERT_TRUE(std::holds_alternative<PlugIn>(loaded)) << failureOf().toStdString();
    EXPECT_TRUE(std::get<PlugIn>(loaded).principal);
}

TEST_F(PlugInLoading, SaysThatAForeignInterfaceDoesNotFit)
{
    driver.replaceLibraryBy(q(DIALOG_FOREIGN_MODULE));
    EXPECT_TRUE(failureOf().contains(q("do not fit this dialog"))) << failureOf().toStdString();
}

TEST_F(PlugInLoading, SaysThatATruncatedLibraryIsDamagedWhereverItEnds)
{
    const QByteArray whole = test::fileBytes(q(DIALOG_TEST_MODULE));
    for (int part = 0; part < 64; ++part) {
        const qsizetype length = whole.size() * part / 64;
        driver.replaceLibrary(whole.left(length));
        EXPECT_TRUE(failureOf().contains(q("is damaged"))) << "cut at " << length;
    }
    driver.replaceLibrary(whole.chopped(1));
    EXPECT_TRUE(failureOf().contains(q("is damaged"))) << "cut by one byte";
    driver.replaceLibrary(whole);
    EXPECT_NULL(failureOf());
}

TEST_F(PlugInLoading, SaysThatWhatIsNoLibraryIsDamaged)
{
    constexpr int kOffsetOfSectionList = 0x28;
    QByteArray beyondTheEnd = test::fileBytes(q(DIALOG_TEST_MODULE));
    beyondTheEnd.replace(kOffsetOfSectionList, 8, QByteArray(8, '\xff'));
    for (const QByteArray &bytes :
         {QByteArray("#!/bin/sh\n"), QByteArray(5000, '\0'), beyondTheEnd}) {
        driver.replaceLibrary(bytes);
        EXPECT_TRUE(failureOf().contains(q("is damaged"))) << bytes.size();
    }
}

TEST_F(PlugInLoading, SaysThatNothingIsInstalled)
{
    EXPECT_TRUE(failureOf(q("/Library/Printers/Other.bundle")).contains(q("not installed")));
}

TEST_F(PlugInLoading, SaysWhatWasRefusedAndWhatToDo)
{
    setMode(driver.library(), 0666);
    const QString notice = failureOf();
    EXPECT_TRUE(notice.contains(driver.library())) << notice.toStdString();
    EXPECT_TRUE(notice.contains(q("others may write it"))) << notice.toStdString();
    EXPECT_TRUE(notice.contains(q("Install the maker's driver again"))) << notice.toStdString();
}

TEST_F(PlugInLoading, RefusesAnInformationListThatOthersMayWrite)
{
    QFile list(driver.bundle() + q("/Contents/Info.plist"));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly));
    list.close();
    setMode(list.fileName(), 0644);
    EXPECT_NULL(failureOf());
    setMode(list.fileName(), 0646);
    EXPECT_TRUE(failureOf().contains(q("Info.plist"))) << failureOf().toStdString();
}

TEST_F(PlugInLoading, TakesTheLibraryThatTheInformationListNames)
{
    QFile list(driver.bundle() + q("/Contents/Info.plist"));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly));
    list.write("<plist version=\"1.0\"><dict><key>CFBundleExecutable</key>"
               "<string>panels.so</string></dict></plist>");
    list.close();
    setMode(list.fileName(), 0644);
    const QString named = driver.bundle() + q("/Contents/Linux/panels.so");
    ASSERT_TRUE(QFile::copy(q(DIALOG_FOREIGN_MODULE), named));
    setMode(named, 0644);
    EXPECT_TRUE(failureOf().contains(q("panels.so"))) << failureOf().toStdString();
}

} // namespace
