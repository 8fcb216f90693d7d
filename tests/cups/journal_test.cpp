#include "dialog/jobs/job_journal.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace dialog;
using test::q;

namespace {

class Journal : public testing::Test
{
protected:
    [[nodiscard]] QString folder() const { return files.filePath(q("jobs")); }
    [[nodiscard]] QStringList names() const
    {
        return QDir(folder()).entryList({q("*.json")}, QDir::Files);
    }
    static JournalEntry entry(const char *token, qint64 time = 0)
    {
        return {{q(token), q("ink"), 7, SendStage::Sending},
                q("server:631"),
                q("Letter"),
                QDateTime::fromMSecsSinceEpoch(time, Qt::UTC)};
    }

    QTemporaryDir files;
};

} // namespace

TEST_F(Journal, HandsItsEntriesToTheNextStartInTheirOrder)
{
    {
        JobJournal journal(folder());
        ASSERT_TRUE(journal.write(entry("urn:uuid:b", 1)));
        ASSERT_TRUE(journal.write(entry("urn:uuid:a", 2)));
    }
    JobJournal next(folder());
    const auto entries = next.takeOver(q("server:631"));
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_TEXT(entries[0].trace.token, "urn:uuid:b");
    EXPECT_TEXT(entries[0].trace.queue, "ink");
    EXPECT_EQ(entries[0].trace.jobId, 7);
    EXPECT_EQ(entries[0].trace.stage, SendStage::Sending);
    EXPECT_TEXT(entries[0].title, "Letter");
    EXPECT_TRUE(next.takeOver(q("server:631")).empty()) << "each is taken once";
}

TEST_F(Journal, KeepsTheEntriesOfAProgramThatRuns)
{
    JobJournal running(folder());
    ASSERT_TRUE(running.write(entry("urn:uuid:a")));
    JobJournal other(folder());
    EXPECT_TRUE(other.takeOver(q("server:631")).empty());
}

TEST_F(Journal, KeepsTheEntriesOfAnotherServer)
{
    {
        JobJournal journal(folder());
        ASSERT_TRUE(journal.write(entry("urn:uuid:a")));
    }
    JobJournal next(folder());
    EXPECT_TRUE(next.takeOver(q("elsewhere:631")).empty());
    EXPECT_EQ(names().size(), 1);
}

TEST_F(Journal, ForgetsForGood)
{
    JobJournal journal(folder());
    ASSERT_TRUE(journal.write(entry("urn:uuid:a")));
    journal.forget(q("urn:uuid:a"));
    EXPECT_EQ(names(), QStringList());
    EXPECT_FALSE(journal.write(entry("urn:uuid:a"))) << "by a worker that comes late";
    EXPECT_EQ(names(), QStringList());
}

TEST_F(Journal, LeavesAloneWhatIsNoEntry)
{
    ASSERT_TRUE(QDir().mkpath(folder()));
    for (const char *bytes : {"", "{", "[]", "{\"version\":1}", "{\"version\":2,\"token\":\"x\"}",
                              "{\"version\":1,\"token\":\"../x\",\"stage\":1}"}) {
        QFile file(folder() + q("/x.json"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        JobJournal journal(folder());
        EXPECT_TRUE(journal.takeOver({}).empty()) << bytes;
        EXPECT_EQ(names().size(), 1);
    }
}

TEST_F(Journal, IsForThisUserOnly)
{
    JobJournal journal(folder());
    ASSERT_TRUE(journal.write(entry("urn:uuid:a")));
    struct stat status
    {
    };
    ASSERT_EQ(stat(QFile::encodeName(folder()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    ASSERT_EQ(stat(QFile::encodeName(folder() + u'/' + names().first()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}
