#include "diag/debug_log.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/print_to.h"
#include "tests/support/stderr_capture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using test::DebugLog;
using test::q;

QVariantMap entry(qlonglong level, qlonglong module, const char *file = "x.log")
{
    return {{q("debugLevel"), level}, {q("moduleNumber"), module}, {q("debugFile"), q(file)}};
}

QVariantMap without(QVariantMap entry, const char *key)
{
    entry.remove(q(key));
    return entry;
}

QVariantMap with(QVariantMap entry, const char *key, const QVariant &value)
{
    entry.insert(q(key), value);
    return entry;
}

QByteArray tmpLine(const DebugLog &log)
{
    return "tmp at " + log.directory().toUtf8() + "//Debug/.DebugPlist/kvDebug.plist \n";
}

QByteArray pathLine(const DebugLog &log, const QByteArray &name)
{
    return "debugFilePath " + log.directory().toUtf8() + '/' + name + '\n';
}

QByteArray errorLine(int number)
{
    return "ERROR: Unable to open log file (errno " + QByteArray::number(number) + ' ' +
           std::strerror(number) + ")\n";
}

QStringList briefs(const QList<test::LogRecord> &records)
{
    QStringList texts;
    for (const test::LogRecord &record : records)
        texts.append(record.brief());
    return texts;
}

/// What set-up and one info record write to standard error.
QByteArray stderrOfOneRecord()
{
    const test::StderrCapture capture;
    LogInfoBody("op", 5, "hi");
    return capture.text();
}

QStringList filesOf(const DebugLog &log)
{
    return QDir(log.directory()).entryList(QDir::Files | QDir::System | QDir::Hidden);
}

mode_t permissionsOf(const QString &path)
{
    struct stat status
    {
    };
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_mode & 07777;
}

void expectOff(const DebugLog &log, const QByteArray &text, const QByteArray &expected)
{
    EXPECT_EQ(text, expected);
    EXPECT_EQ(filesOf(log), QStringList());
    EXPECT_EQ(logDebugLevel, 0);
    EXPECT_EQ(logDebugFilePtr, nullptr);
}

TEST(DebugLog, Log_01_WithoutAListOnlyTheTmpLineIsWrittenOnce)
{
    const DebugLog log;
    const test::StderrCapture capture;
    LogInfoBody("op", 5, "hi");
    LogInfoBody("op", 6, "hi");
    expectOff(log, capture.text(), tmpLine(log));
    EXPECT_TRUE(logDoneSetup);
    EXPECT_EQ(logCurrentPID, ::getpid());
}

TEST(DebugLog, Log_02_AtLevel7SetUpRecordsComeBeforeTheFirstRecord)
{
    const DebugLog log;
    log.writeEntry(entry(7, 1));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log"));

    QList<test::LogRecord> records = log.records();
    ASSERT_EQ(records.size(), 11);
    const test::LogRecord dump = records.takeAt(9);
    EXPECT_EQ(briefs(records),
              QStringList({q("A logger L0 DEBUG GO"), q("N logger L0 file OK"),
                           q("N logger L0 bID   \"PDE-REFRESH\""), q("N logger L0 level 7"),
                           q("N logger L0 mID   65"), q("N logger L0 I OK"), q("N logger L0 E OK"),
                           q("N logger L0 D OK"), q("N logger L0 setup OK"), q("I op L5 hi")}));
    EXPECT_TRUE(dump.brief().startsWith(
        q("D setupDebug L519 setupDebug L519: debugPlist\n<?xml version=\"1.0\"")))
        << dump.brief().toStdString();
    EXPECT_TRUE(dump.message.contains(q("<key>PDE-REFRESH</key>")));
    EXPECT_EQ(permissionsOf(log.logPath()), 0666u);
}

TEST(DebugLog, Log_03_AtLevel2OnlyErrorsFollowTheSetUpRecords)
{
    const DebugLog log;
    log.writeEntry(entry(2, 1));
    static_cast<void>(stderrOfOneRecord());
    LogErrorBody("op", 6, "bad");
    dumpBytesBody("op", 7, "buf", "x", 1);
    EXPECT_EQ(briefs(log.records()),
              QStringList({q("A logger L0 DEBUG GO"), q("N logger L0 file OK"),
                           q("N logger L0 bID   \"PDE-REFRESH\""), q("N logger L0 level 2"),
                           q("N logger L0 mID   65"), q("N logger L0 E OK"),
                           q("N logger L0 setup OK"), q("E op L6 bad")}));
}

TEST(DebugLog, Log_04_WithoutAModuleNumberTheLogFileStaysEmpty)
{
    const DebugLog log;
    log.writeEntry(without(entry(1, 1), "moduleNumber"));
    const test::StderrCapture capture;
    for (int line = 0; line < 10; ++line)
        LogInfoBody("op", line, "hi");
    EXPECT_EQ(logModuleID, 0);
    EXPECT_EQ(logDebugLevel, 1);
    ASSERT_TRUE(QFile::exists(log.logPath()));
    EXPECT_EQ(QFileInfo(log.logPath()).size(), 0);
}

TEST(DebugLog, Log_05_TheModuleNumberCountsFromTheLetterA)
{
    for (const auto &[number, start] : {std::pair{0, "@I"}, std::pair{26, "ZI"}}) {
        const DebugLog log;
        log.writeEntry(entry(1, number));
        static_cast<void>(stderrOfOneRecord());
        const QByteArray lastLine = log.bytes().trimmed().split('\n').last();
        EXPECT_TRUE(lastLine.startsWith(start)) << lastLine.toStdString();
    }
}

TEST(DebugLog, Log_06_WithoutALevelNeitherLevelNorModuleIsRead)
{
    const DebugLog log;
    log.writeEntry(without(entry(1, 1), "debugLevel"));
    expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log"));
    EXPECT_EQ(logModuleID, 0);
}

TEST(DebugLog, Log_07_ALogFileInAMissingFolderIsReportedAndSwitchesOff)
{
    const DebugLog log;
    log.writeEntry(entry(1, 1, "nodir/x.log"));
    expectOff(log, stderrOfOneRecord(),
              tmpLine(log) + pathLine(log, "nodir/x.log") +
                  "ERROR: Unable to open log file (errno 2 No such file or directory)\n");
}

TEST(DebugLog, Log_08_WithoutALogFileTheFolderItselfCannotBeOpened)
{
    const DebugLog log;
    log.writeEntry(without(entry(1, 1), "debugFile"));
    expectOff(log, stderrOfOneRecord(),
              tmpLine(log) + pathLine(log, "") +
                  "ERROR: Unable to open log file (errno 21 Is a directory)\n");
}

TEST(DebugLog, Log_09_WithoutAModuleEntryTheLogStaysOff)
{
    const DebugLog log;
    log.writeList(QVariantMap{{q("traceAll"), true}});
    expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, ""));
}

TEST(DebugLog, Log_10_AtLevel0NoFileIsOpened)
{
    const DebugLog log;
    log.writeEntry(entry(0, 1));
    expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log"));
    EXPECT_EQ(logModuleID, 65);
}

TEST(DebugLog, Log_11_ALevelWrittenAsTextIsNotRead)
{
    const DebugLog log;
    log.writeEntry(with(entry(1, 1), "debugLevel", q("1")));
    expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log"));
    EXPECT_EQ(logModuleID, 0);
}

TEST(DebugLog, Log_16_AListThatOthersMayWriteIsNotRead)
{
    for (const mode_t mode : {0666, 0620, 0602}) {
        const DebugLog log;
        log.writeEntry(entry(7, 1));
        ASSERT_EQ(::chmod(QFile::encodeName(log.listPath()).constData(), mode), 0);
        expectOff(log, stderrOfOneRecord(), tmpLine(log));
    }
}

TEST(DebugLog, Log_16_AListBehindASymbolicLinkIsNotRead)
{
    const DebugLog log;
    log.writeEntry(entry(7, 1));
    const QString target = log.directory() + q("/Debug/real.plist");
    ASSERT_TRUE(QFile::rename(log.listPath(), target));
    ASSERT_TRUE(QFile::link(target, log.listPath()));
    expectOff(log, stderrOfOneRecord(), tmpLine(log));
}

TEST(DebugLog, Log_16_AListInAFolderBehindASymbolicLinkIsNotRead)
{
    const DebugLog log;
    log.writeEntry(entry(7, 1));
    const QString folder = log.directory() + q("/Debug/.DebugPlist");
    ASSERT_TRUE(QDir().rename(folder, log.directory() + q("/Debug/real")));
    ASSERT_TRUE(QFile::link(log.directory() + q("/Debug/real"), folder));
    expectOff(log, stderrOfOneRecord(), tmpLine(log));
}

TEST(DebugLog, Log_16_AListOfAnotherUserIsNotRead)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give files away";
    const DebugLog log;
    log.writeEntry(entry(7, 1));
    ASSERT_EQ(::chown(QFile::encodeName(log.listPath()).constData(), 65534, 65534), 0);
    expectOff(log, stderrOfOneRecord(), tmpLine(log));
}

TEST(DebugLog, AReadableListOfTheUserIsReadWhateverTheOthersMayRead)
{
    const DebugLog log;
    log.writeEntry(entry(1, 1));
    ASSERT_EQ(::chmod(QFile::encodeName(log.listPath()).constData(), 0644), 0);
    static_cast<void>(stderrOfOneRecord());
    EXPECT_EQ(briefs(log.ownRecords()), QStringList(q("I op L5 hi")));
}

TEST(DebugLog, AListThatIsAFifoDoesNotBlock)
{
    const DebugLog log;
    ASSERT_EQ(::mkfifo(QFile::encodeName(log.listPath()).constData(), 0600), 0);
    expectOff(log, stderrOfOneRecord(), tmpLine(log));
}

TEST(DebugLog, AListThatIsAFolderIsNotRead)
{
    const DebugLog log;
    ASSERT_TRUE(QDir().mkpath(log.listPath()));
    expectOff(log, stderrOfOneRecord(), tmpLine(log));
}

TEST(DebugLog, AListOfMoreThanAMebibyteIsNotRead)
{
    const DebugLog log;
    log.writeEntry(with(entry(7, 1), "padding", QString(1024 * 1024, QLatin1Char('x'))));
    expectOff(log, stderrOfOneRecord(), tmpLine(log));
}

TEST(DebugLog, AListThatIsNoDictionaryOrNoListIsNotRead)
{
    for (const char *bytes : {"", "hello", "<plist><dict><key>PDE-REFRESH</key>",
                              "<plist version=\"1.0\"><string>PDE-REFRESH</string></plist>"}) {
        const DebugLog log;
        log.writeListBytes(bytes);
        expectOff(log, stderrOfOneRecord(), tmpLine(log));
    }
}

TEST(DebugLog, AModuleEntryThatIsNoDictionaryCountsAsMissing)
{
    const DebugLog log;
    log.writeList(QVariantMap{{q("PDE-REFRESH"), q("on")}});
    expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, ""));
}

TEST(DebugLog, ALevelThatIsNoIntegerOf32BitsIsNotRead)
{
    for (const QVariant &level :
         {QVariant(1.0), QVariant(true), QVariant(4294967297LL), QVariant(QVariantList{1LL})}) {
        const DebugLog log;
        log.writeEntry(with(entry(1, 1), "debugLevel", level));
        expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log"));
        EXPECT_EQ(logModuleID, 0);
    }
}

TEST(DebugLog, ANegativeLevelBecomes0)
{
    const DebugLog log;
    log.writeEntry(entry(-1, 1));
    expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log"));
    EXPECT_EQ(logModuleID, 65);
}

TEST(DebugLog, Level8GivesTheSetUpRecordsOnly)
{
    const DebugLog log;
    log.writeEntry(entry(8, 1));
    static_cast<void>(stderrOfOneRecord());
    LogErrorBody("op", 6, "bad");
    dumpBytesBody("op", 7, "buf", "x", 1);
    EXPECT_EQ(briefs(log.records()),
              QStringList({q("A logger L0 DEBUG GO"), q("N logger L0 file OK"),
                           q("N logger L0 bID   \"PDE-REFRESH\""), q("N logger L0 level 8"),
                           q("N logger L0 mID   65"), q("N logger L0 setup OK")}));
}

TEST(DebugLog, ALogFileNameThatIsNotAsciiCountsAsMissing)
{
    const DebugLog log;
    log.writeEntry(entry(1, 1, "prüf.log"));
    expectOff(log, stderrOfOneRecord(), tmpLine(log) + pathLine(log, "") + errorLine(EISDIR));
}

TEST(DebugLog, ALogFileNameIsNoFormat)
{
    const DebugLog log;
    log.writeEntry(entry(1, 1, "%n%s.log"));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "%n%s.log"));
    EXPECT_EQ(filesOf(log), QStringList(q("%n%s.log")));
}

TEST(DebugLog, ALogFileMayLieInAFolderOfTheTemporaryDirectory)
{
    const DebugLog log;
    ASSERT_TRUE(QDir(log.directory()).mkpath(q("logs/today")));
    log.writeEntry(entry(1, 1, "logs//today/x.log"));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "logs//today/x.log"));
    EXPECT_GT(QFileInfo(log.directory() + q("/logs/today/x.log")).size(), 0);
}

TEST(DebugLog, ALogFileThatExistsIsAppendedToAndOpenedToEverybody)
{
    const DebugLog log;
    QFile file(log.logPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("before\n");
    file.close();
    ASSERT_EQ(::chmod(QFile::encodeName(log.logPath()).constData(), 0600), 0);
    log.writeEntry(entry(1, 1));
    static_cast<void>(stderrOfOneRecord());
    EXPECT_TRUE(log.bytes().startsWith("before\nAA")) << log.bytes().toStdString();
    EXPECT_EQ(permissionsOf(log.logPath()), 0666u);
}

TEST(DebugLog, TheCreationMaskDoesNotNarrowTheLogFile)
{
    const DebugLog log;
    log.writeEntry(entry(1, 1));
    const mode_t former = ::umask(0077);
    static_cast<void>(stderrOfOneRecord());
    ::umask(former);
    EXPECT_EQ(permissionsOf(log.logPath()), 0666u);
}

TEST(DebugLog, ALogFileBehindASymbolicLinkIsRefusedAndItsTargetUntouched)
{
    const DebugLog log;
    const QString target = log.directory() + q("/Debug/target");
    QFile file(target);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ASSERT_EQ(::chmod(QFile::encodeName(target).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(target, log.logPath()));
    log.writeEntry(entry(1, 1));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log") + errorLine(ELOOP));
    EXPECT_EQ(logDebugLevel, 0);
    EXPECT_EQ(permissionsOf(target), 0600u);
    EXPECT_EQ(QFileInfo(target).size(), 0);
}

TEST(DebugLog, ALogFileInAFolderBehindASymbolicLinkIsRefused)
{
    const DebugLog log;
    ASSERT_TRUE(QDir(log.directory()).mkpath(q("Debug/real")));
    ASSERT_TRUE(QFile::link(log.directory() + q("/Debug/real"), log.directory() + q("/logs")));
    log.writeEntry(entry(1, 1, "logs/x.log"));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "logs/x.log") + errorLine(ENOTDIR));
    EXPECT_FALSE(QFile::exists(log.directory() + q("/Debug/real/x.log")));
}

TEST(DebugLog, ALogFileThatIsAFifoDoesNotBlock)
{
    const DebugLog log;
    ASSERT_EQ(::mkfifo(QFile::encodeName(log.logPath()).constData(), 0600), 0);
    log.writeEntry(entry(1, 1));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log") + errorLine(ENXIO));
    EXPECT_EQ(logDebugLevel, 0);
}

TEST(DebugLog, ALogFileThatIsAFifoIsRefusedAlsoWhenSomebodyReadsIt)
{
    const DebugLog log;
    const QByteArray path = QFile::encodeName(log.logPath());
    ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
    const int reader = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    log.writeEntry(entry(1, 1));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log") + errorLine(EACCES));
    ::close(reader);
    EXPECT_EQ(permissionsOf(log.logPath()), 0600u);
}

TEST(DebugLog, ALogFileThatIsAFolderIsRefused)
{
    const DebugLog log;
    ASSERT_TRUE(QDir().mkpath(log.logPath()));
    log.writeEntry(entry(1, 1));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log") + errorLine(EISDIR));
}

TEST(DebugLog, ALogFileOfAnotherUserIsRefused)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give files away";
    const DebugLog log;
    QFile file(log.logPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ASSERT_EQ(::chmod(QFile::encodeName(log.logPath()).constData(), 0644), 0);
    ASSERT_EQ(::chown(QFile::encodeName(log.logPath()).constData(), 65534, 65534), 0);
    log.writeEntry(entry(1, 1));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, "x.log") + errorLine(EACCES));
    EXPECT_EQ(permissionsOf(log.logPath()), 0644u);
}

/// A way of that length to stay in a folder.
QString detour(qsizetype length)
{
    return q("./").repeated(length / 2) + (length % 2 == 1 ? q("/") : QString());
}

/// A log file name that makes the whole path that long.
QString nameForPathOfLength(const DebugLog &log, qsizetype length)
{
    return detour(length - log.logPath().size()) + q("x.log");
}

TEST(DebugLog, APathOf511BytesIsOpened)
{
    const DebugLog log;
    const QString name = nameForPathOfLength(log, 511);
    log.writeEntry(with(entry(1, 1), "debugFile", name));
    EXPECT_EQ(stderrOfOneRecord(), tmpLine(log) + pathLine(log, name.toLatin1()));
    EXPECT_EQ(filesOf(log).size(), 1);
}

TEST(DebugLog, APathThatDoesNotFit512BytesIsShownCutAndNotOpened)
{
    const DebugLog log;
    const QString name = nameForPathOfLength(log, 512);
    log.writeEntry(with(entry(1, 1), "debugFile", name));
    expectOff(log, stderrOfOneRecord(),
              tmpLine(log) + pathLine(log, name.chopped(1).toLatin1()) + errorLine(ENAMETOOLONG));
}

class LongTemporaryDirectory : public testing::TestWithParam<qsizetype>
{
protected:
    /// Set-up with a temporary directory that makes the path of the debug list that long.
    void setUp()
    {
        log.writeEntry(entry(1, 1));
        const QString suffix = q("//Debug/.DebugPlist/kvDebug.plist");
        const QString start = log.directory() + q("/");
        folder = start + detour(GetParam() - start.size() - suffix.size());
        qputenv("TMPDIR", folder.toUtf8());
        text = stderrOfOneRecord();
        listPath = (folder + suffix).toUtf8();
    }

    const DebugLog log;
    QString folder;
    QByteArray listPath;
    QByteArray text;
};

class TemporaryDirectoryThatFits : public LongTemporaryDirectory
{
};
class TemporaryDirectoryThatDoesNotFit : public LongTemporaryDirectory
{
};

TEST_P(TemporaryDirectoryThatFits, LeavesTheListReadable)
{
    setUp();
    ASSERT_EQ(listPath.size(), GetParam());
    EXPECT_TRUE(text.startsWith("tmp at " + listPath + " \ndebugFilePath ")) << text.toStdString();
    EXPECT_EQ(logDebugLevel, 1);
}
INSTANTIATE_TEST_SUITE_P(Lengths, TemporaryDirectoryThatFits, testing::Values(510, 511));

TEST_P(TemporaryDirectoryThatDoesNotFit, IsShownCutAndTheListNotRead)
{
    setUp();
    ASSERT_EQ(listPath.size(), GetParam());
    EXPECT_EQ(text, "tmp at " + listPath.left(511) + " \n");
    EXPECT_EQ(logDebugLevel, 0);
}
INSTANTIATE_TEST_SUITE_P(Lengths, TemporaryDirectoryThatDoesNotFit,
                         testing::Values(512, 513, 2000));

TEST(DebugLog, TheListIsReadOnceInAProcess)
{
    const DebugLog log;
    const test::StderrCapture capture;
    LogInfoBody("op", 1, "early");
    log.writeEntry(entry(7, 1));
    LogInfoBody("op", 2, "late");
    setupDebug();
    expectOff(log, capture.text(), tmpLine(log));
}

TEST(DebugLog, ABinaryListIsReadAsWell)
{
    // {"PDE-REFRESH": {"debugLevel": 1, "moduleNumber": 2, "debugFile": "x.log"}}
    static const unsigned char bytes[] =
        "bplist00"
        "\xD1\x01\x02"
        "\x5BPDE-REFRESH"
        "\xD3\x03\x05\x07\x04\x06\x08"
        "\x5A"
        "debugLevel"
        "\x10\x01"
        "\x5C"
        "moduleNumber"
        "\x10\x02"
        "\x59"
        "debugFile"
        "\x55"
        "x.log"
        "\x08\x0B\x17\x1E\x29\x2B\x38\x3A\x44"
        "\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x09\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x4A";
    const DebugLog log;
    log.writeListBytes(QByteArray(reinterpret_cast<const char *>(bytes), sizeof bytes - 1));
    static_cast<void>(stderrOfOneRecord());
    EXPECT_EQ(logModuleID, 66);
    EXPECT_EQ(briefs(log.ownRecords()), QStringList(q("I op L5 hi")));
}

} // namespace
