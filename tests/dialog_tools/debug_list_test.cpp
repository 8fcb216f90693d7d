#include "dialog/log/debug_list.h"
#include "platform/property_list.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace dialog::debuglog;
using test::q;

namespace {

/// The temporary directory of a user, and what lies in it.
class DebugList : public testing::Test
{
protected:
    QString temporary() const { return directory_.path(); }
    QString path(const char *name) const { return directory_.filePath(q(name)); }
    QString list() const { return path("Debug/.DebugPlist/kvDebug.plist"); }

    QString on(const LogSettings &settings = {})
    {
        return answer(switchLogOn(settings, temporary()));
    }
    QString off() { return answer(switchLogOff(temporary())); }
    /// Of the latest call.
    bool isDone() const { return isDone_; }

    void makeFolder(const char *name, mode_t mode = 0700) const
    {
        ASSERT_EQ(::mkdir(QFile::encodeName(path(name)).constData(), mode), 0) << name;
        ASSERT_EQ(::chmod(QFile::encodeName(path(name)).constData(), mode), 0);
    }
    void link(const char *target, const char *name) const
    {
        ASSERT_EQ(::symlink(target, QFile::encodeName(path(name)).constData()), 0);
    }
    void writeList(const QByteArray &bytes) const
    {
        QFile file(list());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static mode_t modeOf(const QString &path)
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
        EXPECT_EQ(status.st_uid, ::geteuid());
        return status.st_mode & 07777;
    }
    QVariantMap entry() const
    {
        return platform::readPropertyList(list()).toMap()[q("PDE-REFRESH")].toMap();
    }

private:
    QString answer(const ListOutcome &outcome)
    {
        isDone_ = std::holds_alternative<Done>(outcome);
        return isDone_ ? std::get<Done>(outcome).message : std::get<NotDone>(outcome).message;
    }
    QTemporaryDir directory_;
    bool isDone_ = false;
};

TEST_F(DebugList, OnWritesTheListForThisUserAloneAndSaysWhereTheLogWillBe)
{
    ::umask(0);
    const QString message = on({.level = 7, .file = q("x.log")});
    EXPECT_TRUE(isDone());
    EXPECT_TRUE(message.endsWith(temporary() + q("/x.log"))) << message.toStdString();
    EXPECT_EQ(modeOf(path("Debug")), 0700U);
    EXPECT_EQ(modeOf(path("Debug/.DebugPlist")), 0700U);
    EXPECT_EQ(modeOf(list()), 0600U);
    EXPECT_EQ(entry(),
              (QVariantMap{
                  {q("debugLevel"), 7LL}, {q("moduleNumber"), 1LL}, {q("debugFile"), q("x.log")}}));
    EXPECT_EQ(QDir(path("Debug/.DebugPlist")).entryList(QDir::Files),
              QStringList{q("kvDebug.plist")});
}

TEST_F(DebugList, OnAgainReplacesTheSettingsAndKeepsOtherModules)
{
    on();
    writeList("<plist><dict><key>Other</key><dict/><key>traceAll</key><true/></dict></plist>");
    on({.level = 2, .file = q("y.log")});
    EXPECT_TRUE(isDone());
    const QVariantMap whole = platform::readPropertyList(list()).toMap();
    EXPECT_EQ(whole.keys(), (QStringList{q("Other"), q("PDE-REFRESH"), q("traceAll")}));
    EXPECT_EQ(entry()[q("debugFile")], q("y.log"));
}

TEST_F(DebugList, OffRemovesTheListThatHoldsNothingElse)
{
    on();
    EXPECT_TRUE(off().contains(q("is off")));
    EXPECT_FALSE(QFile::exists(list()));
    EXPECT_TRUE(off().contains(q("was not on")));
    EXPECT_TRUE(isDone());
}

TEST_F(DebugList, OffKeepsOtherModules)
{
    on();
    writeList("<plist><dict><key>Other</key><dict/></dict></plist>");
    EXPECT_TRUE(off().contains(q("was not on")));
    on();
    off();
    EXPECT_TRUE(isDone());
    EXPECT_EQ(platform::readPropertyList(list()).toMap().keys(), QStringList{q("Other")});
}

TEST_F(DebugList, OffWithoutAnyFolderMakesNone)
{
    EXPECT_TRUE(off().contains(q("was not on")));
    EXPECT_TRUE(isDone());
    EXPECT_TRUE(QDir(temporary()).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot));
}

TEST_F(DebugList, AListThatIsNoListIsLeftAlone)
{
    on();
    writeList("something else");
    EXPECT_TRUE(on().contains(q("no property list")));
    EXPECT_FALSE(isDone());
    off();
    EXPECT_FALSE(isDone());
    QFile file(list());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "something else");
}

TEST_F(DebugList, NoFolderOnTheWayMayBeALink)
{
    makeFolder("elsewhere");
    link("elsewhere", "Debug");
    EXPECT_TRUE(on().contains(q("/Debug: this is a link"))) << on().toStdString();
    EXPECT_FALSE(isDone());
    EXPECT_TRUE(QDir(path("elsewhere")).isEmpty());
    off();
    EXPECT_FALSE(isDone());
}

TEST_F(DebugList, TheInnerFolderMayBeNoLinkEither)
{
    makeFolder("elsewhere");
    makeFolder("Debug");
    link("../elsewhere", "Debug/.DebugPlist");
    on();
    EXPECT_FALSE(isDone());
    EXPECT_TRUE(QDir(path("elsewhere")).isEmpty());
}

TEST_F(DebugList, TheTemporaryDirectoryMayBeNoLink)
{
    makeFolder("real");
    link("real", "tmp");
    const ListOutcome outcome = switchLogOn({}, path("tmp"));
    ASSERT_TRUE(std::holds_alternative<NotDone>(outcome));
    EXPECT_TRUE(QDir(path("real")).isEmpty());
}

TEST_F(DebugList, TheListMayBeNoLink)
{
    on();
    ASSERT_TRUE(QFile::remove(list()));
    link("../../target", "Debug/.DebugPlist/kvDebug.plist");
    EXPECT_TRUE(on().contains(q("this is a link")));
    EXPECT_FALSE(isDone());
    EXPECT_FALSE(QFile::exists(path("target")));
    off();
    EXPECT_FALSE(isDone());
}

TEST_F(DebugList, OthersMayWriteNeitherFolderNorList)
{
    makeFolder("Debug", 0770);
    EXPECT_TRUE(on().contains(q("others may write")));
    ::chmod(QFile::encodeName(path("Debug")).constData(), 0700);
    on();
    ASSERT_TRUE(isDone());
    ::chmod(QFile::encodeName(list()).constData(), 0622);
    EXPECT_TRUE(on().contains(q("others may write")));
    off();
    EXPECT_FALSE(isDone());
    EXPECT_TRUE(QFile::exists(list()));
}

TEST_F(DebugList, AFolderAboveMayBeWrittenByOthersOnlyIfItIsSticky)
{
    makeFolder("shared", 0777);
    makeFolder("shared/mine");
    const auto outcome = [&] { return switchLogOn({}, path("shared/mine")); };
    EXPECT_TRUE(std::holds_alternative<NotDone>(outcome()));
    ::chmod(QFile::encodeName(path("shared")).constData(), 01777);
    EXPECT_TRUE(std::holds_alternative<Done>(outcome()));
}

TEST_F(DebugList, FoldersOfAnotherUserAreRefused)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give a folder away";
    makeFolder("Debug");
    ASSERT_EQ(::chown(QFile::encodeName(path("Debug")).constData(), 1, 1), 0);
    EXPECT_TRUE(on().contains(q("another user")));
    EXPECT_FALSE(isDone());
}

TEST_F(DebugList, AFileInPlaceOfAFolderIsRefused)
{
    QFile file(path("Debug"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    on();
    EXPECT_FALSE(isDone());
}

TEST_F(DebugList, TheLogItselfMayBeNoLinkAndNoFolder)
{
    link("elsewhere", "a.log");
    EXPECT_TRUE(on({.file = q("a.log")}).contains(q("this is a link")));
    makeFolder("b.log");
    EXPECT_TRUE(on({.file = q("b.log")}).contains(q("no ordinary file")));
    EXPECT_FALSE(isDone());
    EXPECT_FALSE(QFile::exists(list()));
}

TEST_F(DebugList, NamesThatTheLogCouldNotOpenAreRefused)
{
    for (const char *name : {"", ".", "..", "a/b", "/etc/passwd", "ü.log", "a\nb"}) {
        EXPECT_FALSE(whyNoLogName(q(name), temporary()).isNull()) << name;
        on({.file = q(name)});
        EXPECT_FALSE(isDone()) << name;
    }
    EXPECT_FALSE(QFile::exists(path("Debug")));
    EXPECT_NULL(whyNoLogName(q("my log.txt"), temporary()));
}

TEST_F(DebugList, ThePathOfTheLogHasRoomForFiveHundredAndElevenBytes)
{
    const qsizetype room = 511 - 5;
    EXPECT_NULL(whyNoLogName(QString(room, u'a'), q("/tmp")));
    EXPECT_FALSE(whyNoLogName(QString(room + 1, u'a'), q("/tmp")).isNull());
    // Bytes, not characters.
    EXPECT_FALSE(whyNoLogName(QString(room, u'a'), q("/t\u00FCp")).isNull());
}

TEST_F(DebugList, AMissingTemporaryDirectoryIsReported)
{
    const ListOutcome outcome = switchLogOn({}, path("nowhere"));
    ASSERT_TRUE(std::holds_alternative<NotDone>(outcome));
    EXPECT_TRUE(std::get<NotDone>(outcome).message.contains(q("nowhere")));
    EXPECT_TRUE(std::holds_alternative<NotDone>(switchLogOn({}, q("relative"))));
}

} // namespace
