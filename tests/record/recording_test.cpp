#include "dialog/record/recording.h"
#include "tests/support/print_to.h"
#include "tests/support/stderr_capture.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using dialog::record::Recording;
using test::q;

namespace {

class RecordingFile : public testing::Test
{
protected:
    QString path(const char *name = "out") const { return folder.filePath(q(name)); }
    QByteArray bytes(const char *name = "out") const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    void write(const char *name, const QByteArray &content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    std::unique_ptr<Recording> create(const char *name = "out") const
    {
        auto opened = Recording::create(path(name));
        auto *recording = std::get_if<std::unique_ptr<Recording>>(&opened);
        return recording ? std::move(*recording) : nullptr;
    }
    QString problem(const char *name = "out") const
    {
        const auto opened = Recording::create(path(name));
        const auto *text = std::get_if<QString>(&opened);
        return text ? *text : QString();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(RecordingFile, HasEachLineAtOnce)
{
    const auto recording = create();
    ASSERT_TRUE(recording);
    recording->add(q("one"));
    EXPECT_EQ(bytes(), "one\n");
    recording->addTentative(q("t\u00e4ntative"));
    EXPECT_EQ(bytes(), "one\nt\u00e4ntative\n");
}

TEST_F(RecordingFile, ReplacesATentativeLineByALongerAndAShorterOne)
{
    const auto recording = create();
    recording->add(q("one"));
    recording->addTentative(q("four"));
    recording->addTentative(q("forty-four"));
    EXPECT_EQ(bytes(), "one\nforty-four\n");
    recording->addTentative(q("4"));
    EXPECT_EQ(bytes(), "one\n4\n");
    recording->keep();
    recording->add(q("five"));
    EXPECT_EQ(bytes(), "one\n4\nfive\n");
}

TEST_F(RecordingFile, TakesBackOnlyWhatIsTentative)
{
    const auto recording = create();
    recording->add(q("one"));
    recording->takeBack();
    EXPECT_EQ(bytes(), "one\n");
    recording->addTentative(q("two"));
    recording->takeBack();
    recording->takeBack();
    EXPECT_EQ(bytes(), "one\n");
}

TEST_F(RecordingFile, IsForTheUserAlone)
{
    const auto recording = create();
    struct stat status;
    ASSERT_EQ(stat(QFile::encodeName(path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(RecordingFile, TakesAnEmptyFileAndKeepsAnyOther)
{
    write("empty", "");
    EXPECT_TRUE(create("empty"));
    write("full", "dear");
    EXPECT_EQ(problem("full"), path("full") + q(": is there already and is kept; name a new file"));
    EXPECT_EQ(bytes("full"), "dear");
}

TEST_F(RecordingFile, FollowsNoLinkAndWaitsForNoFifo)
{
    write("empty", "");
    ASSERT_EQ(symlink(qPrintable(path("empty")), qPrintable(path("link"))), 0);
    ASSERT_EQ(link(qPrintable(path("empty")), qPrintable(path("second name"))), 0);
    ASSERT_EQ(mkfifo(qPrintable(path("fifo")), 0600), 0);
    EXPECT_FALSE(problem("link").isNull());
    EXPECT_FALSE(problem("second name").isNull());
    EXPECT_FALSE(problem("fifo").isNull());
    EXPECT_FALSE(problem(".").isNull());
    EXPECT_TRUE(problem("no/folder").endsWith(q("No such file or directory")));
}
