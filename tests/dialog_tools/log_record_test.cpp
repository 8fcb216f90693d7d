#include "tests/dialog_tools/log_lines.h"

#include <gtest/gtest.h>

#include <random>

using dialog::debuglog::LineEnd;
using dialog::debuglog::Record;
using dialog::debuglog::RecordReader;
using test::brace;
using test::readLog;
using test::ReadLog;
using test::record;

namespace {

const QByteArray kWhole = record('I', "14:03:07.042", "-[MainPDE2 willShow]", 321, "{");

std::vector<qint64> places(const ReadLog &log)
{
    return log.damage.firstPlaces;
}

TEST(LogRecord, HasAllPartsOfItsLine)
{
    const ReadLog log = readLog("AI004711\t[14:03:07.042]\t-[MainPDE2 willShow]\tL321\t{\n");
    ASSERT_EQ(log.records.size(), 1U);
    const Record &read = log.records.front();
    EXPECT_EQ(read.module, 'A');
    EXPECT_EQ(read.kind, 'I');
    EXPECT_EQ(read.process, 4711);
    EXPECT_EQ(read.milliseconds, ((14 * 60 + 3) * 60 + 7) * 1000 + 42);
    EXPECT_EQ(read.operation, "-[MainPDE2 willShow]");
    EXPECT_EQ(read.sourceLine, 321);
    EXPECT_EQ(read.message, "{");
    EXPECT_EQ(read.fileLine, 1);
    EXPECT_TRUE(read.isBegin());
    EXPECT_EQ(log.damage.lines, 0);
}

TEST(LogRecord, TakesEveryModuleLetterAndLongProcessIds)
{
    const ReadLog log = readLog("@E1234567\t[00:00:00.000]\top\tL-1\t\n"
                                "ZN000001\t[23:59:60.999]\tlogger\tL0\tfile OK\n");
    ASSERT_EQ(log.records.size(), 2U);
    EXPECT_EQ(log.records[0].process, 1234567);
    EXPECT_EQ(log.records[0].sourceLine, -1);
    EXPECT_EQ(log.records[0].message, "");
    EXPECT_EQ(log.records[1].module, 'Z');
    EXPECT_EQ(log.damage.lines, 0);
}

TEST(LogRecord, MessageMayHaveSeveralLinesAndTabs)
{
    const ReadLog log = readLog(
        record('E', "10:00:00.000", "LogFileAccessBody", 165, "/a\n\t!exist\n\n\tL7\tx") + kWhole);
    ASSERT_EQ(log.records.size(), 2U);
    EXPECT_EQ(log.records[0].message, "/a\n\t!exist\n\n\tL7\tx");
    EXPECT_EQ(log.records[1].fileLine, 5);
    EXPECT_EQ(log.damage.lines, 0);
}

TEST(LogRecord, NothingGoesOnAfterABraceOrANoteOfTheLog)
{
    const ReadLog log = readLog(kWhole + "more\n" + record('N', "10:00:00.000", "logger", 0, "x") +
                                "more\n" + brace("}", "10:00:00.000", "op") + "more\n");
    ASSERT_EQ(log.records.size(), 3U);
    EXPECT_EQ(log.records[0].message, "{");
    EXPECT_EQ(log.damage.lines, 3);
    EXPECT_EQ(places(log), (std::vector<qint64>{2, 4, 6}));
}

TEST(LogRecord, LinesBeforeTheFirstRecordAreDamage)
{
    const ReadLog log = readLog("garbage\n\xFF\xFE\n" + kWhole);
    EXPECT_EQ(log.records.size(), 1U);
    EXPECT_EQ(places(log), (std::vector<qint64>{1, 2}));
}

TEST(LogRecord, OnlyTheFirstPlacesOfDamageAreKept)
{
    const ReadLog log = readLog(QByteArray("x\n").repeated(1000));
    EXPECT_EQ(log.damage.lines, 1000);
    EXPECT_EQ(places(log), (std::vector<qint64>{1, 2, 3, 4, 5}));
}

TEST(LogRecord, TheRestOfATornRecordDoesNotBelongToTheMessageBeforeIt)
{
    const ReadLog log = readLog(record('I', "10:00:00.000", "op", 1, "text") +
                                "711\t[14:03:07.042]\t-[MainPDE2 willShow]\tL321\t{\n");
    ASSERT_EQ(log.records.size(), 1U);
    EXPECT_EQ(log.records[0].message, "text");
    EXPECT_EQ(places(log), (std::vector<qint64>{2}));
}

TEST(LogRecord, ARecordBehindARunOfNulsIsReadAndTheLineReported)
{
    const ReadLog log = readLog(QByteArray(4096, '\0') + kWhole + kWhole);
    ASSERT_EQ(log.records.size(), 2U);
    EXPECT_EQ(log.records[0].operation, "-[MainPDE2 willShow]");
    EXPECT_EQ(places(log), (std::vector<qint64>{1}));
}

TEST(LogRecord, ALineWithANulContinuesNoMessage)
{
    const ReadLog log =
        readLog(record('I', "10:00:00.000", "op", 1, "text") + QByteArray("a\0b\n", 4));
    ASSERT_EQ(log.records.size(), 1U);
    EXPECT_EQ(log.records[0].message, "text");
    EXPECT_EQ(places(log), (std::vector<qint64>{2}));
}

TEST(LogRecord, ALogThatEndsWithinALineSaysSo)
{
    const ReadLog log = readLog(kWhole + "AE004711\t[14:03:07.042]\top\tL1\tabc");
    ASSERT_EQ(log.records.size(), 2U);
    EXPECT_TRUE(log.records[1].isCut);
    EXPECT_EQ(log.records[1].message, "abc");
    EXPECT_EQ(places(log), (std::vector<qint64>{2}));
    EXPECT_EQ(readLog(kWhole + "AE0047").records.size(), 1U);
}

TEST(LogRecord, NoPartMayBeMissingOrOutOfRange)
{
    for (const char *line : {
             "",
             "A",
             "AI",
             "AX004711\t[14:03:07.042]\top\tL1\tx",
             "AI04711\t[14:03:07.042]\top\tL1\tx",
             "AI00000004711\t[14:03:07.042]\top\tL1\tx",
             "AI004711 [14:03:07.042]\top\tL1\tx",
             "AI004711\t[24:03:07.042]\top\tL1\tx",
             "AI004711\t[14:60:07.042]\top\tL1\tx",
             "AI004711\t[14:03:61.042]\top\tL1\tx",
             "AI004711\t[14:03:07.42]\top\tL1\tx",
             "AI004711\t[14:03:07.042\top\tL1\tx",
             "AI004711\t[14:03:07.042]\top\t1\tx",
             "AI004711\t[14:03:07.042]\top\tL\tx",
             "AI004711\t[14:03:07.042]\top\tL1",
             "AI004711\t[14:03:07.042]\top\tL99999999999\tx",
         }) {
        const ReadLog log = readLog(QByteArray(line) + '\n');
        EXPECT_EQ(log.records.size(), 0U) << line;
        EXPECT_EQ(log.damage.lines, 1) << line;
    }
}

TEST(LogRecord, MessagesBeyondTheLimitAreCut)
{
    const QByteArray longLine(1000, 'x');
    QByteArray bytes = record('D', "10:00:00.000", "op", 1, "dump");
    for (int i = 0; i < 100; ++i)
        bytes += longLine + '\n';
    const ReadLog log = readLog(bytes);
    ASSERT_EQ(log.records.size(), 1U);
    EXPECT_TRUE(log.records[0].isCut);
    EXPECT_EQ(log.records[0].message.size(), RecordReader::kLongestMessage);
    EXPECT_EQ(log.damage.lines, 0);
}

TEST(LogRecord, ALineThatWasTooLongMarksItsRecordAsCut)
{
    std::vector<Record> records;
    RecordReader reader([&](Record &&read) { records.push_back(read); });
    reader.takeLine(record('I', "10:00:00.000", "op", 1, "text").chopped(1), LineEnd::TooLong);
    reader.finish();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_TRUE(records[0].isCut);
    EXPECT_EQ(reader.damage().lines, 0);
}

/// A log of several processes with nested calls, errors and dumps.
QByteArray sampleLog()
{
    QByteArray bytes = record('A', "10:00:00.000", "logger", 0, "DEBUG GO");
    for (int i = 0; i < 20; ++i) {
        const int process = 4711 + i % 3;
        bytes += brace("{", "10:00:00.001", "-[MainPDE2 willShow]", process);
        bytes += brace("{", "10:00:00.002", "-[KorPDEController2 updateControls]", process);
        bytes += record('E', "10:00:00.003", "op", 9, "two\nlines", process);
        bytes += brace("}", "10:00:00.004", "-[KorPDEController2 updateControls]", process);
        bytes += brace("}", "10:00:00.005", "-[MainPDE2 willShow]", process);
    }
    return bytes;
}

/// One to four bytes replaced, removed or put in.
QByteArray mutated(QByteArray bytes, std::mt19937 &random)
{
    const auto below = [&](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<quint32>(limit));
    };
    static constexpr char kInteresting[] = "\0\n\t[]{}AIEDNZL:09\xFF";
    for (qsizetype i = 0; i <= below(4); ++i) {
        const qsizetype place = below(bytes.size());
        const char byte = kInteresting[below(sizeof kInteresting - 1)];
        switch (below(3)) {
        case 0:
            bytes[place] = byte;
            break;
        case 1:
            bytes.remove(place, 1 + below(40));
            break;
        default:
            bytes.insert(place, byte);
            break;
        }
    }
    return bytes;
}

TEST(LogRecord, DamagedLogsAreReadAsFarAsTheyGo)
{
    std::mt19937 random(20090215);
    const QByteArray whole = sampleLog();
    const std::size_t wholeRecords = readLog(whole).records.size();
    ASSERT_EQ(wholeRecords, 101U);
    for (int i = 0; i < 3000; ++i) {
        const QByteArray bytes = mutated(whole, random);
        const ReadLog log =
            readLog(bytes, {.entries = 10, .bytes = 400, .depth = 2, .processes = 2});
        // Four changes touch a line each, or join or split two.
        EXPECT_GE(log.records.size() + 12, wholeRecords) << bytes.constData();
        EXPECT_LE(log.damage.lines, 12) << bytes.constData();
        std::size_t shown = 0;
        for (const auto &action : log.actions)
            shown += action.entries.size();
        EXPECT_GT(shown, 0U);
        EXPECT_FALSE(log.tree().isEmpty());
        if (HasFailure())
            return;
    }
}

} // namespace
