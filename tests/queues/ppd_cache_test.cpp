#include "dialog/printers/ppd_cache.h"
#include "tests/queues/counting_proxy.h"
#include "tests/queues/silent_server.h"
#include "tests/queues/user_folders.h"
#include "tests/support/private_cupsd.h"

#include <QDir>
#include <QThread>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace dialog;
using namespace test;
using Outcome = QueuePrinter::Outcome;

namespace {

class Cache : public testing::Test
{
protected:
    [[nodiscard]] QString keep(const QByteArray &bytes) const
    {
        return PpdCache().keep(q("server:631"), q("ink"), bytes, 1'000);
    }
    [[nodiscard]] std::optional<PpdCache::Entry> found() const
    {
        return PpdCache().find(q("server:631"), q("ink"));
    }
    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    [[nodiscard]] QStringList files() const
    {
        return QDir(user.path("cache/korvane-print/ppd")).entryList(QDir::Files);
    }

    UserFolders user;
    QByteArray ppd = samplePpd("Korvane-S300.ppd");
};

class CachedQueue : public Cache
{
protected:
    CachedQueue() { server.addQueue(q("ink"), ppd); }

    static QueuePrinter open() { return openQueuePrinter(q("ink"), {}); }

    PrivateCupsd server;
};

} // namespace

TEST_F(Cache, KeepsAPpdAsAFileOfTheUserAloneThatIsStillAPpd)
{
    const QString path = keep(ppd);
    ASSERT_FALSE(path.isNull());
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(QFileInfo(path).path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    EXPECT_TRUE(fileBytes(path).startsWith(ppd));
    EXPECT_TRUE(std::holds_alternative<std::unique_ptr<PpdDocument>>(PpdDocument::open(path)));
    ASSERT_TRUE(found());
    EXPECT_EQ(found()->path, path);
    EXPECT_EQ(found()->modified, 1'000);
}

TEST_F(Cache, DropsWhateverIsNotAsItWasWritten)
{
    const QByteArray whole = fileBytes(keep(ppd));
    QByteArray changed = whole;
    changed[100] = static_cast<char>(changed[100] ^ 1);
    QByteArray otherTime = whole;
    otherTime.replace("korvane-print 1000 ", "korvane-print 9000 ");
    ASSERT_NE(otherTime, whole);
    for (const QByteArray &damaged : {changed, otherTime, whole.chopped(1),
                                      whole.left(whole.size() / 2), ppd, QByteArray("")}) {
        const QString path = keep(ppd);
        write(path, damaged);
        EXPECT_FALSE(found());
        EXPECT_FALSE(QFile::exists(path)) << "a damaged file stays no longer";
    }
}

TEST_F(Cache, FollowsNoLinkAndReadsNoFileThatOthersMayWrite)
{
    const QString path = keep(ppd);
    ASSERT_TRUE(QFile::rename(path, user.path("elsewhere")));
    ASSERT_TRUE(QFile::link(user.path("elsewhere"), path));
    EXPECT_FALSE(found());
    EXPECT_TRUE(QFile::exists(user.path("elsewhere")));
    ASSERT_FALSE(keep(ppd).isNull()) << "the link gives way to a file";
    EXPECT_FALSE(QFileInfo(path).isSymLink());
    EXPECT_TRUE(found());
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0666), 0);
    EXPECT_FALSE(found());
}

TEST_F(Cache, NamesLeadNowhereAndDifferForEveryServerAndQueue)
{
    QStringList names;
    for (const char *server : {"a:631", "b:631"}) {
        for (const char *queue : {"ink", "Ink", "../../etc", "a/b", "a_b", "ä", ""})
            names.append(PpdCache::fileName(q(server), q(queue)));
    }
    EXPECT_EQ(names.removeDuplicates(), 0);
    for (const QString &name : names) {
        EXPECT_FALSE(name.contains(u'/')) << name.toStdString();
        EXPECT_FALSE(name.startsWith(u'.'));
        EXPECT_TRUE(name.endsWith(q(".ppd")));
    }
    EXPECT_LT(PpdCache::fileName(q("s"), QString(1'000, u'x')).size(), 100);
    EXPECT_TRUE(names.first().startsWith(q("ink-")));
}

TEST_F(Cache, GivesUpWhatWasUsedLongestAgoWhenItGetsTooLarge)
{
    const PpdCache few({3, 1'000'000});
    const auto keepAs = [&](const char *queue) {
        ASSERT_FALSE(few.keep(q("s"), q(queue), "*PPD-Adobe: \"4.3\"\n", 1).isNull());
        QThread::msleep(20); // files' times have steps
    };
    for (const char *queue : {"a", "b", "c"})
        keepAs(queue);
    EXPECT_EQ(files().size(), 3);
    ASSERT_TRUE(few.find(q("s"), q("a"))) << "used again";
    QThread::msleep(20);
    keepAs("d");
    EXPECT_EQ(files().size(), 3);
    EXPECT_TRUE(few.find(q("s"), q("a")));
    EXPECT_FALSE(few.find(q("s"), q("b")));

    const PpdCache small({100, 1});
    ASSERT_FALSE(small.keep(q("s"), q("e"), QByteArray(1'000, '*'), 1).isNull());
    EXPECT_EQ(files().size(), 1) << "one is kept, however large";
    EXPECT_TRUE(small.find(q("s"), q("e")));
}

TEST_F(Cache, IsDoneWithoutWhereThereCanBeNone)
{
    write(user.path("cache"), "a file where the folder would be");
    EXPECT_NULL(keep(ppd));
    EXPECT_FALSE(found());
}

TEST_F(CachedQueue, DownloadsOnceAndAsksForNewerOnesAfterwards)
{
    QThread::msleep(1'100); // the server's clock counts seconds
    const CountingProxy proxy(server.address());
    ASSERT_EQ(open().outcome, Outcome::Opened);
    EXPECT_EQ(proxy.downloads(), 1);
    EXPECT_EQ(files().size(), 1);
    const QueuePrinter second = open();
    ASSERT_EQ(second.outcome, Outcome::Opened);
    EXPECT_EQ(proxy.downloads(), 1) << proxy.requests().join(u'\n').toStdString();
    EXPECT_TEXT(second.printer->nickName(), "Korvane S300");
}

TEST_F(CachedQueue, FetchesAPpdThatHasChanged)
{
    ASSERT_EQ(open().outcome, Outcome::Opened);
    server.addQueue(q("ink"), samplePpd("Korvane-T500.ppd"));
    EXPECT_TEXT(open().printer->nickName(), "Korvane T500") << "even within the same second";
    EXPECT_EQ(files().size(), 1) << "one per queue";
}

TEST_F(CachedQueue, ReplacesADamagedEntry)
{
    ASSERT_EQ(open().outcome, Outcome::Opened);
    const QString path = user.path("cache/korvane-print/ppd/") + files().first();
    write(path, fileBytes(path).replace("S300", "S301"));
    EXPECT_TEXT(open().printer->nickName(), "Korvane S300");
    EXPECT_FALSE(fileBytes(path).contains("S301"));
}

TEST_F(CachedQueue, OpensWithoutAnyCache)
{
    write(user.path("cache"), "a file where the folder would be");
    EXPECT_EQ(open().outcome, Outcome::Opened);
}

TEST_F(CachedQueue, HasInstalledOptionsAndSavedChoicesAsTheQueueHasThem)
{
    EXPECT_SAME(open().printer->marked(q("Tray2Option")), q("True"));
    server.run(q("lpadmin"), {q("-p"), q("ink"), q("-o"), q("Tray2Option=False")});
    ASSERT_TRUE(QDir().mkpath(user.path("home/.cups")));
    write(user.path("home/.cups/lpoptions"), "Dest ink MediaType=IronOn\n");
    const QueuePrinter opened = open();
    ASSERT_EQ(opened.outcome, Outcome::Opened);
    EXPECT_SAME(opened.printer->marked(q("Tray2Option")), q("False"));
    EXPECT_SAME(opened.printer->marked(q("MediaType")), q("IronOn")) << "the user's own default";
}

TEST_F(CachedQueue, OpensAQueueWithoutPpdAsAPrinterWithoutOptions)
{
    server.run(q("lpadmin"), {q("-p"), q("raw"), q("-E"), q("-v"), q("keep:/raw")});
    const QueuePrinter raw = openQueuePrinter(q("raw"), {});
    ASSERT_EQ(raw.outcome, Outcome::NoPpd);
    ASSERT_TRUE(raw.printer);
    EXPECT_TEXT(raw.printer->nickName(), "raw");
    EXPECT_TRUE(raw.printer->options().isEmpty());
    EXPECT_NULL(raw.printer->path());
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(CachedQueue, TellsAQueueThatIsNotThereAndAPpdThatIsBroken)
{
    EXPECT_EQ(openQueuePrinter(q("nobody"), {}).outcome, Outcome::NoQueue);
    write(server.folder() + q("/root/ppd/ink.ppd"),
          "*PPD-Adobe: \"4.3\"\n*Comment: \"" + QByteArray(300, 'x') + "\"\n");
    const QueuePrinter broken = open();
    EXPECT_EQ(broken.outcome, Outcome::BrokenPpd);
    EXPECT_FALSE(broken.reason.isEmpty());
}

TEST(QueuePrinterFaults, AreToldWithinTheTimeThatTheServerGets)
{
    const UserFolders user;
    const ServerTimes times{std::chrono::milliseconds(500), std::chrono::milliseconds(200), {}, {}};
    SilentServer server;
    EXPECT_EQ(openQueuePrinter(q("ink"), times).problem.fault, ServerFault::Silent);
    server.die();
    EXPECT_EQ(openQueuePrinter(q("ink"), times).problem.fault, ServerFault::Unreachable);
}
