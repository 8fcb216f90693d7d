#include "diag/debug_log.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/print_to.h"
#include "tests/support/stderr_capture.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <string>

#include <sys/stat.h>

namespace {

using test::q;

class TraceWriter : public testing::Test
{
protected:
    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(QString::fromUtf8(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] mode_t permissions() const
    {
        struct stat status
        {
        };
        EXPECT_EQ(::stat(path.constData(), &status), 0);
        return status.st_mode & 07777;
    }
    static void expectMatch(const QByteArray &text, const char *pattern)
    {
        EXPECT_TRUE(QRegularExpression(q(pattern)).match(QString::fromUtf8(text)).hasMatch())
            << text.toStdString();
    }

    const test::DebugLog log; // a temporary directory, and the stream closed before and after
    const QByteArray path = QFile::encodeName(log.directory() + q("/trace.log"));
};

TEST_F(TraceWriter, Log_19_TheFirstLineOpensTheFileForEverybody)
{
    const test::StderrCapture capture;
    const mode_t former = ::umask(0077);
    TraceLogBody("a", "b", "src", 0, 7, path.constData(), "x%d", 1);
    ::umask(former);
    expectMatch(bytes(), "^ab<\\d\\d:\\d\\d:\\d\\d\\.\\d+> : src in line:7 ## x1\\n$");
    EXPECT_EQ(permissions(), 0666u);
    EXPECT_EQ(capture.text(), QByteArray()) << "the debug log has been set up";
}

TEST_F(TraceWriter, LinesAreAppendedAtOnceAndTheIgnoredArgumentIsIgnored)
{
    QFile file(QString::fromUtf8(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("before\n");
    file.close();
    TraceLogBody("", "", "one", 0, 1, path.constData(), "first");
    expectMatch(bytes(), "^before\\n<[\\d:.]+> : one in line:1 ## first\\n$");
    TraceLogBody("p", "q", "two", 99, 2, path.constData(), "second");
    expectMatch(bytes(), "first\\npq<[\\d:.]+> : two in line:2 ## second\\n$");
}

TEST_F(TraceWriter, TheStreamStaysTheOneThatWasOpenedFirst)
{
    TraceLogBody("", "", "s", 0, 1, path.constData(), "one");
    TraceLogBody("", "", "s", 0, 2, (path + "2").constData(), "two");
    EXPECT_EQ(bytes().count('\n'), 2);
    EXPECT_FALSE(QFile::exists(QString::fromUtf8(path + "2")));
}

TEST_F(TraceWriter, WithoutAPathItWritesToStandardError)
{
    const test::StderrCapture capture;
    TraceLogBody("a", "b", "src", 0, 7, nullptr, "%s", "100%n");
    expectMatch(capture.text(), "^ab<\\d\\d:\\d\\d:\\d\\d\\.\\d+> : src in line:7 ## 100%n\\n$");
    EXPECT_EQ(gFileStream, stderr);
}

TEST_F(TraceWriter, AFileThatCannotBeOpenedIsReplacedByStandardError)
{
    const test::StderrCapture capture;
    traceOpenLog((path + "/no/such/folder").constData());
    EXPECT_EQ(gFileStream, stderr);
    TraceLogBody("", "", "src", 0, 7, path.constData(), "x");
    expectMatch(capture.text(), "## x\\n$");
    EXPECT_EQ(bytes(), QByteArray());
}

TEST_F(TraceWriter, ALinkIsNotFollowedAndAFifoDoesNotBlock)
{
    const QByteArray target = path + ".target";
    ASSERT_TRUE(QFile::link(QString::fromUtf8(target), QString::fromUtf8(path)));
    traceOpenLog(path.constData());
    EXPECT_EQ(gFileStream, stderr);
    EXPECT_FALSE(QFile::exists(QString::fromUtf8(target)));

    const QByteArray fifo = path + ".fifo";
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    traceOpenLog(fifo.constData());
    EXPECT_EQ(gFileStream, stderr);
}

TEST_F(TraceWriter, OpeningAgainMovesToTheOtherFile)
{
    traceOpenLog((path + "1").constData());
    traceOpenLog(path.constData());
    TraceLogBody("", "", "src", 0, 7, nullptr, "x");
    expectMatch(bytes(), "## x\\n$");
}

TEST_F(TraceWriter, AMessageOfAnyLengthIsWrittenWhole)
{
    const std::string message(100'000, 'm');
    TraceLogBody("", "", "src", 0, 7, path.constData(), "%s", message.c_str());
    EXPECT_TRUE(bytes().endsWith("## " + QByteArray::fromStdString(message) + '\n'));
}

} // namespace
