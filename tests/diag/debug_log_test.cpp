#include "diag/debug_log.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/print_to.h"
#include "tests/support/stderr_capture.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using test::DebugLog;
using test::q;

/// A log that is on, with the set-up lines kept off standard error.
class DebugRecords : public testing::Test
{
protected:
    void switchOn(int level) const
    {
        const test::StderrCapture capture;
        log.switchOn(level);
        setupDebug();
    }
    /// The records after those of set-up.
    [[nodiscard]] QStringList briefs() const
    {
        QStringList texts;
        for (const test::LogRecord &record : log.ownRecords())
            texts.append(record.brief());
        return texts;
    }
    [[nodiscard]] QString writtenFile() const
    {
        const QString path = log.directory() + q("/some file");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }

    const DebugLog log;
};

/// The process as a user without privileges, where it has any.
class WithoutPrivileges
{
public:
    WithoutPrivileges() = default;
    ~WithoutPrivileges()
    {
        if (dropped_ && ::setresuid(0, 0, 0) != 0)
            ADD_FAILURE() << "privileges cannot be taken back";
    }
    WithoutPrivileges(const WithoutPrivileges &) = delete;
    WithoutPrivileges &operator=(const WithoutPrivileges &) = delete;

private:
    const bool dropped_ = ::geteuid() == 0 && ::setresuid(65534, 65534, 0) == 0;
};

TEST_F(DebugRecords, Log_12_BytesAreDumpedInUpperCaseHexadecimal)
{
    switchOn(4);
    const unsigned char bytes[] = {0x00, 0xAB, 0xFF};
    dumpBytesBody("op", 10, "buf", bytes, 3);
    dumpBytesBody("op", 10, "buf", bytes, 0);
    EXPECT_EQ(briefs(), QStringList({q("D op L10 op L10: buf 3b\n{00ABFF}"),
                                     q("D op L10 op L10: buf 0b\n{}")}));
}

TEST_F(DebugRecords, Log_13_AMissingFileIsSilentAtLevel1)
{
    switchOn(1);
    LogFileAccessBody("op", 1, "/no/such/file");
    EXPECT_EQ(briefs(), QStringList());
}

TEST_F(DebugRecords, Log_13_AMissingFileIsAnErrorAtLevel3)
{
    switchOn(3);
    LogFileAccessBody("op", 1, "/no/such/file");
    EXPECT_EQ(briefs(), QStringList(q("E LogFileAccessBody L165 /no/such/file\n\t!exist")));
}

TEST_F(DebugRecords, Log_13_AReadableFileIsReportedAtLevel1)
{
    switchOn(1);
    const QString path = writtenFile();
    LogFileAccessBody("op", 1, QFile::encodeName(path).constData());
    EXPECT_EQ(briefs(),
              QStringList(q("I LogFileAccessBody L158 ") + path + q("\n\texists\n\tread OK")));
}

TEST_F(DebugRecords, AnUnreadableFileIsAnErrorAtLevel3)
{
    switchOn(3);
    const QString path = writtenFile();
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(log.directory()).constData(), 0755), 0);
    const WithoutPrivileges guard; // the administrator can read every file
    LogFileAccessBody("op", 1, QFile::encodeName(path).constData());
    EXPECT_EQ(briefs(),
              QStringList(q("E LogFileAccessBody L161 ") + path + q("\n\texists\n\tread ERR")));
}

TEST_F(DebugRecords, AFileIsNotReportedAtLevel2)
{
    switchOn(2);
    LogFileAccessBody("op", 1, "/no/such/file");
    EXPECT_EQ(briefs(), QStringList());
}

TEST_F(DebugRecords, AFilePathIsNoFormat)
{
    switchOn(3);
    LogFileAccessBody("op", 1, "/no/%n%s");
    EXPECT_EQ(briefs(), QStringList(q("E LogFileAccessBody L165 /no/%n%s\n\t!exist")));
}

TEST_F(DebugRecords, Log_15_ClosingWritesTheEndRecordAndNothingFollows)
{
    switchOn(7);
    closeDebugSession();
    EXPECT_EQ(logDebugFilePtr, nullptr);
    EXPECT_EQ(logClientFD, 0);
    LogInfoBody("op", 1, "late");
    LogErrorBody("op", 2, "late");
    dumpBytesBody("op", 3, "late", "x", 1);
    logNote("late");
    closeDebugSession();
    EXPECT_EQ(log.records().last().brief(), q("Z logger L0 DEBUG END file"));
    EXPECT_EQ(logDebugLevel, 7);
    EXPECT_TRUE(logDoneSetup);
}

TEST_F(DebugRecords, ClosingALogThatIsOffOnlySetsItUp)
{
    const test::StderrCapture capture;
    closeDebugSession();
    EXPECT_TRUE(logDoneSetup);
    EXPECT_TRUE(log.bytes().isNull());
}

TEST_F(DebugRecords, Log_17_EveryRecordBeginsWithLettersProcessAndTime)
{
    switchOn(7);
    LogInfoBody("op", 1, "i");
    LogErrorBody("op", 2, "e");
    dumpBytesBody("op", 3, "d", "x", 1);
    closeDebugSession();
    static const QRegularExpression start(
        q("^[A-Z][IEDANZ]\\d{6,7}\\t\\[\\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\]\\t"));
    const QList<test::LogRecord> records = log.records();
    ASSERT_EQ(records.size(), 14);
    EXPECT_EQ(QString::fromUtf8(log.bytes())
                  .count(QRegularExpression(start.pattern(), QRegularExpression::MultilineOption)),
              records.size());
    for (const test::LogRecord &record : records) {
        EXPECT_EQ(record.module, 'A');
        EXPECT_EQ(record.pid, ::getpid());
    }
}

TEST_F(DebugRecords, TheTimeIsTheLocalTimeOfTheCall)
{
    switchOn(1);
    // Both ends in milliseconds, cut as in the record.
    const QTime before = QTime::currentTime();
    LogInfoBody("op", 1, "hi");
    const QTime after = QTime::currentTime();
    const QTime time = QTime::fromString(log.records().last().time, q("HH:mm:ss.zzz"));
    ASSERT_TRUE(time.isValid());
    const bool crossedMidnight = after < before;
    EXPECT_TRUE(crossedMidnight || (before <= time && time <= after))
        << time.toString().toStdString();
}

TEST_F(DebugRecords, Log_18_AMessageFromDataStandsLiterally)
{
    switchOn(3);
    LogInfoBody("op", 1, "%s", "100%n");
    LogErrorBody("op%n", 2, "%s", "%s%s%d");
    logNote("%s", "%n");
    dumpBytesBody("op", 3, "%n", "x", 1);
    EXPECT_EQ(briefs(), QStringList({q("I op L1 100%n"), q("E op%n L2 %s%s%d")}));
    EXPECT_EQ(log.records().last().brief(), q("N logger L0 %n"));
}

TEST_F(DebugRecords, AFormatIsCarriedOut)
{
    switchOn(1);
    LogInfoBody("op", 1, "%d %s %05.2f %c", -7, "text", 1.5, 'x');
    EXPECT_EQ(briefs(), QStringList(q("I op L1 -7 text 01.50 x")));
}

TEST_F(DebugRecords, NullTextPrintsAsNull)
{
    switchOn(1);
    const char *volatile nothing = nullptr; // hidden from the compiler, which would warn
    LogInfoBody("op", 1, "[%s]", nothing);
    EXPECT_EQ(briefs(), QStringList(q("I op L1 [(null)]")));
}

TEST_F(DebugRecords, AMessageMayHaveSeveralLines)
{
    switchOn(1);
    LogInfoBody("op", 1, "one\ntwo\n");
    LogInfoBody("op", 2, "three");
    EXPECT_EQ(briefs(), QStringList({q("I op L1 one\ntwo\n"), q("I op L2 three")}));
}

class MessageLengths : public DebugRecords, public testing::WithParamInterface<int>
{
};

TEST_P(MessageLengths, AMessageOfAnyLengthIsWrittenWhole)
{
    switchOn(1);
    std::string message(std::size_t(GetParam()), 'x');
    if (!message.empty())
        message.back() = 'y';
    LogInfoBody("op", 1, "%s", message.c_str());
    EXPECT_EQ(log.ownRecords().first().message.toStdString(), message);
}

INSTANTIATE_TEST_SUITE_P(Lengths, MessageLengths,
                         testing::Values(0, 1, 510, 511, 512, 513, 70'000, 10'000'000));

TEST_F(DebugRecords, WithItsLevelOffAMessageIsNotFormatted)
{
    switchOn(4);
    int formatted = 0;
    LogInfoBody("op", 1, "x%n", &formatted);
    LogErrorBody("op", 1, "x%n", &formatted);
    EXPECT_EQ(formatted, 0);
    EXPECT_EQ(briefs(), QStringList());
}

TEST_F(DebugRecords, ARecordIsInTheFileAtOnce)
{
    switchOn(1);
    LogInfoBody("op", 1, "one");
    EXPECT_EQ(briefs(), QStringList(q("I op L1 one")));
    LogInfoBody("op", 2, "two");
    EXPECT_EQ(briefs(), QStringList({q("I op L1 one"), q("I op L2 two")}));
}

TEST_F(DebugRecords, ANoteNeedsNoLevelAndNoSetUp)
{
    const test::StderrCapture capture;
    logNote("%d", 1);
    EXPECT_FALSE(logDoneSetup);
    EXPECT_EQ(capture.text(), QByteArray());
    log.switchOn(8);
    setupDebug();
    logNote("%d", 2);
    EXPECT_EQ(log.records().last().brief(), q("N logger L0 2"));
}

TEST_F(DebugRecords, EachLogCallSetsTheLogUp)
{
    const auto expectSetsUp = [](const char *name, auto call) {
        const DebugLog fresh;
        const test::StderrCapture capture;
        call();
        EXPECT_TRUE(logDoneSetup) << name;
    };
    expectSetsUp("LogInfoBody", [] { LogInfoBody("op", 1, "x"); });
    expectSetsUp("LogErrorBody", [] { LogErrorBody("op", 1, "x"); });
    expectSetsUp("dumpBytesBody", [] { dumpBytesBody("op", 1, "x", "x", 1); });
    expectSetsUp("dumpDataBody", [] { dumpDataBody("op", 1, "x", QByteArray()); });
    expectSetsUp("dumpDictBody", [] { dumpDictBody("op", 1, "x", QVariant()); });
    expectSetsUp("LogFileAccessBody", [] { LogFileAccessBody("op", 1, "x"); });
    expectSetsUp("closeDebugSession", [] { closeDebugSession(); });
    expectSetsUp("isInfoEnabled", [] { EXPECT_FALSE(diag::isInfoEnabled()); });
}

TEST_F(DebugRecords, ADataObjectIsDumpedWithItsBytesAndLength)
{
    switchOn(4);
    dumpDataBody("op", 11, "data", QByteArray("A\0B", 3));
    dumpDataBody("op", 12, "none", QByteArray());
    EXPECT_EQ(briefs(), QStringList({q("D op L11 op L11: data 3b\n{410042}"),
                                     q("D op L12 op L12: none 0b\n{}")}));
}

TEST_F(DebugRecords, BytesThatAreNotThereAreAnErrorAndDumpedAsNone)
{
    switchOn(6);
    dumpBytesBody("op", 13, "gone", nullptr, 2);
    EXPECT_EQ(briefs(), QStringList({q("E dumpBytesBody L216 ERR cstr ERR"),
                                     q("D op L13 op L13: gone 2b\n{}")}));
}

TEST_F(DebugRecords, APropertyListIsDumpedAsXml)
{
    switchOn(4);
    dumpDictBody("op", 14, "list", QVariantMap{{q("key"), q("value")}, {q("number"), 7LL}});
    ASSERT_EQ(log.ownRecords().size(), 1);
    const QString message = log.ownRecords().first().message;
    EXPECT_TRUE(message.startsWith(q("op L14: list\n<?xml version=\"1.0\" encoding=\"UTF-8\"?>")))
        << message.toStdString();
    QString packed = message;
    packed.remove(QRegularExpression(q("\\s")));
    EXPECT_TRUE(packed.contains(q("<dict><key>key</key><string>value</string>"
                                  "<key>number</key><integer>7</integer></dict></plist>")))
        << message.toStdString();
    EXPECT_EQ(log.ownRecords().first().operation, q("op"));
    EXPECT_EQ(log.ownRecords().first().line, 14);
}

TEST_F(DebugRecords, WhatIsNoPropertyListIsAnErrorAndDumpedAsNull)
{
    switchOn(6);
    dumpDictBody("op", 15, "list", QVariant());
    EXPECT_EQ(briefs(), QStringList({q("E dumpDictBody L236 ERR cstr ERR"),
                                     q("D op L15 op L15: list\n(null)")}));
}

TEST_F(DebugRecords, DumpsAreSilentWithoutTheirLevel)
{
    switchOn(3);
    dumpBytesBody("op", 1, "x", nullptr, 2);
    dumpDataBody("op", 1, "x", QByteArray("x"));
    dumpDictBody("op", 1, "x", QVariant());
    EXPECT_EQ(briefs(), QStringList());
}

TEST_F(DebugRecords, ARecordCanBeSentByItself)
{
    switchOn(1);
    LogFormatAndSend("-[X y:z:]", 321, 'I', "{");
    sendToDebugApp("raw\0cut\n", 8);
    EXPECT_TRUE(log.bytes().endsWith("\t-[X y:z:]\tL321\t{\nraw")) << log.bytes().toStdString();
}

TEST_F(DebugRecords, WithoutAFileNothingIsSent)
{
    sendToDebugApp("raw\n", 4);
    LogFormatAndSend("op", 1, 'I', "x");
    EXPECT_TRUE(log.bytes().isNull());
    EXPECT_FALSE(logDoneSetup);
}

TEST_F(DebugRecords, TheProcessIdHasAtLeastSixDigits)
{
    switchOn(1);
    logCurrentPID = 4711;
    LogInfoBody("op", 1, "x");
    EXPECT_TRUE(log.bytes().contains("\nAI004711\t[")) << log.bytes().toStdString();
    logCurrentPID = 4194304;
    LogInfoBody("op", 1, "x");
    EXPECT_TRUE(log.bytes().contains("\nAI4194304\t[")) << log.bytes().toStdString();
}

} // namespace
