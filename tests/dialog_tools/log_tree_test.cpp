#include "dialog/log/log_text.h"
#include "tests/dialog_tools/log_lines.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog::debuglog;
using test::brace;
using test::q;
using test::readLog;
using test::ReadLog;
using test::record;

namespace {

constexpr char kShow[] = "-[MainPDE2 willShow]";
constexpr char kUpdate[] = "-[KorPDEController2 updateControls]";
constexpr char kOne[] = "-[KorPDEController2 updateControl:]";

QByteArray nested()
{
    return brace("{", "14:03:07.042", kShow) + brace("{", "14:03:07.043", kUpdate) +
           record('E', "14:03:07.044", kUpdate, 92, "wrong\nindeed") +
           brace("{", "14:03:07.044", kOne) + brace("}", "14:03:07.044", kOne) +
           brace("}", "14:03:07.046", kUpdate) + brace("}", "14:03:07.050", kShow);
}

TEST(LogTree, IndentsCallsAndTellsTheirTimes)
{
    const ReadLog log = readLog(nested());
    EXPECT_TEXT(log.tree(), "14:03:07.042  -[MainPDE2 willShow]  (8 ms)\n"
                            "14:03:07.043    -[KorPDEController2 updateControls]  (3 ms)\n"
                            "14:03:07.044      E L92  wrong\n"
                            "                    indeed\n"
                            "14:03:07.044      -[KorPDEController2 updateControl:]  (0 ms)\n");
    EXPECT_EQ(log.unbalanced.firstLine, 0);
}

TEST(LogTree, NamesTheOperationOfARecordThatItsCallDidNotWrite)
{
    const ReadLog log = readLog(brace("{", "10:00:00.000", kShow) +
                                record('I', "10:00:00.000", "LogFileAccessBody", 158, "/a") +
                                brace("}", "10:00:00.000", kShow) +
                                record('N', "10:00:00.000", "logger", 0, "file OK"));
    EXPECT_TEXT(log.tree(), "10:00:00.000  -[MainPDE2 willShow]  (0 ms)\n"
                            "10:00:00.000    I LogFileAccessBody L158  /a\n"
                            "10:00:00.000  N logger L0  file OK\n");
}

TEST(LogTree, CallsMayLastOverMidnight)
{
    const ReadLog log =
        readLog(brace("{", "23:59:59.990", kShow) + brace("}", "00:00:00.010", kShow));
    ASSERT_EQ(log.actions.size(), 1U);
    EXPECT_EQ(log.actions[0].entries[0].duration, 20);
}

TEST(LogTree, ACallOfItselfEndsInnermostFirst)
{
    const ReadLog log =
        readLog(brace("{", "10:00:00.000", kShow) + brace("{", "10:00:00.001", kShow) +
                brace("}", "10:00:00.002", kShow) + brace("}", "10:00:00.005", kShow));
    ASSERT_EQ(log.actions.size(), 1U);
    EXPECT_EQ(log.actions[0].entries[0].duration, 5);
    EXPECT_EQ(log.actions[0].entries[1].duration, 1);
}

TEST(LogTree, ProcessesAreKeptApartHoweverTheirRecordsMix)
{
    const ReadLog log =
        readLog(brace("{", "10:00:00.000", kShow, 1) + brace("{", "10:00:00.001", kUpdate, 2) +
                brace("{", "10:00:00.002", kOne, 1) + brace("}", "10:00:00.003", kUpdate, 2) +
                brace("}", "10:00:00.004", kOne, 1) + brace("}", "10:00:00.005", kShow, 1));
    ASSERT_EQ(log.actions.size(), 2U);
    EXPECT_EQ(log.actions[0].process, 2);
    EXPECT_EQ(log.actions[0].number, 2);
    EXPECT_EQ(log.actions[0].entries.size(), 1U);
    EXPECT_EQ(log.actions[1].process, 1);
    EXPECT_EQ(log.actions[1].number, 1);
    EXPECT_EQ(log.actions[1].entries.size(), 2U);
    EXPECT_EQ(log.unbalanced.firstLine, 0);
}

TEST(LogTree, AProcessIdThatStartsALogAnewIsAnotherProcess)
{
    const ReadLog log = readLog(
        brace("{", "10:00:00.000", kShow) + record('A', "11:00:00.000", "logger", 0, "DEBUG GO") +
        brace("{", "11:00:00.001", kUpdate) + brace("}", "11:00:00.002", kUpdate));
    ASSERT_EQ(log.actions.size(), 3U);
    EXPECT_FALSE(log.actions[0].entries[0].duration);
    EXPECT_EQ(log.actions[2].entries[0].depth, 0);
    EXPECT_EQ(log.unbalanced.callsWithoutEnd, 1);
}

TEST(LogTree, CallsWhoseEndIsMissingSaySoAndSpoilNoOther)
{
    const ReadLog log =
        readLog(brace("{", "10:00:00.000", kShow) + brace("{", "10:00:00.001", kUpdate) +
                brace("{", "10:00:00.002", kOne) + brace("}", "10:00:00.009", kShow));
    EXPECT_TEXT(log.tree(), "10:00:00.000  -[MainPDE2 willShow]  (9 ms)\n"
                            "10:00:00.001    -[KorPDEController2 updateControls]  (no end)\n"
                            "10:00:00.002      -[KorPDEController2 updateControl:]  (no end)\n");
    EXPECT_EQ(log.unbalanced.callsWithoutEnd, 2);
    EXPECT_EQ(log.unbalanced.firstLine, 2);
}

TEST(LogTree, EndsWithoutACallAreCountedAndLeftOut)
{
    const ReadLog log =
        readLog(brace("}", "10:00:00.000", kShow) + brace("{", "10:00:00.001", kUpdate) +
                brace("}", "10:00:00.002", kOne) + brace("}", "10:00:00.003", kUpdate));
    EXPECT_TEXT(log.tree(), "10:00:00.001  -[KorPDEController2 updateControls]  (2 ms)\n");
    EXPECT_EQ(log.unbalanced.endsWithoutCall, 2);
    EXPECT_EQ(log.unbalanced.firstLine, 1);
}

TEST(LogTree, WhatIsOpenWhenTheLogEndsIsShown)
{
    const ReadLog log =
        readLog(brace("{", "10:00:00.000", kShow) + record('E', "10:00:00.001", kShow, 5, "last"));
    EXPECT_TEXT(log.tree(), "10:00:00.000  -[MainPDE2 willShow]  (no end)\n"
                            "10:00:00.001    E L5  last\n");
}

TEST(LogTree, AnActionThatIsTooLongComesInPartsAndKeepsItsCalls)
{
    QByteArray bytes = brace("{", "10:00:00.000", kShow) + brace("{", "10:00:00.001", kUpdate);
    for (int i = 0; i < 5; ++i)
        bytes += record('I', "10:00:00.002", kUpdate, i, "x");
    bytes += brace("}", "10:00:00.008", kUpdate) + brace("}", "10:00:00.009", kShow);
    const ReadLog log = readLog(bytes, {.entries = 5});
    ASSERT_EQ(log.actions.size(), 2U);
    EXPECT_TRUE(log.actions[0].goesOn);
    EXPECT_FALSE(log.actions[1].goesOn);
    EXPECT_EQ(log.actions[0].number, log.actions[1].number);
    EXPECT_TEXT(log.tree(), "10:00:00.000  -[MainPDE2 willShow]  (goes on)\n"
                            "10:00:00.001    -[KorPDEController2 updateControls]  (goes on)\n"
                            "10:00:00.002      I L0  x\n"
                            "10:00:00.002      I L1  x\n"
                            "10:00:00.002      I L2  x\n"
                            "10:00:00.002      I L3  x\n"
                            "10:00:00.000  ... -[MainPDE2 willShow]  (9 ms)\n"
                            "10:00:00.001    ... -[KorPDEController2 updateControls]  (7 ms)\n"
                            "10:00:00.002      I L4  x\n");
    EXPECT_EQ(log.unbalanced.firstLine, 0);
}

TEST(LogTree, CallsBeyondTheDepthLimitStandAsRecordsAndSpoilNothing)
{
    QByteArray bytes;
    for (int i = 0; i < 5; ++i)
        bytes += brace("{", "10:00:00.000", kOne);
    for (int i = 0; i < 5; ++i)
        bytes += brace("}", "10:00:00.001", kOne);
    const ReadLog log = readLog(bytes, {.depth = 3});
    ASSERT_EQ(log.actions.size(), 1U);
    EXPECT_EQ(log.actions[0].entries.size(), 5U);
    EXPECT_EQ(log.actions[0].entries[4].kind, Entry::Kind::Message);
    EXPECT_EQ(log.actions[0].entries[0].duration, 1);
    EXPECT_EQ(log.unbalanced.firstLine, 0);
}

TEST(LogTree, TooManyOpenProcessesAreHandedOverAndCounted)
{
    QByteArray bytes;
    for (int i = 1; i <= 5; ++i)
        bytes += brace("{", "10:00:00.000", kShow, i);
    const ReadLog log = readLog(bytes, {.processes = 3});
    EXPECT_EQ(log.actions.size(), 5U);
    EXPECT_EQ(log.unbalanced.callsWithoutEnd, 5);
}

// Filters.

TEST(LogFilter, ShowsWhatItAdmitsWithTheCallsAround)
{
    const ReadLog log = readLog(nested());
    EXPECT_TEXT(log.tree({.kinds = "E"}),
                "14:03:07.042  -[MainPDE2 willShow]  (8 ms)\n"
                "14:03:07.043    -[KorPDEController2 updateControls]  (3 ms)\n"
                "14:03:07.044      E L92  wrong\n"
                "                    indeed\n");
    EXPECT_TEXT(log.tree({.className = "MainPDE2"}),
                "14:03:07.042  -[MainPDE2 willShow]  (8 ms)\n");
    EXPECT_TRUE(log.tree({.kinds = "D"}).isEmpty());
}

TEST(LogFilter, OperationIsASelectorOrItsFirstPieceOrAWholeName)
{
    const ReadLog log = readLog(nested() + record('N', "14:03:08.000", "logger", 0, "file OK"));
    const auto lines = [&](const char *operation) {
        return log.tree({.operation = operation}).count(u'\n');
    };
    EXPECT_EQ(lines("willShow"), 1);
    EXPECT_EQ(lines("updateControl"), 3);
    EXPECT_EQ(lines("updateControl:"), 3);
    EXPECT_EQ(lines(kOne), 3);
    EXPECT_EQ(lines("logger"), 1);
    EXPECT_EQ(lines("Show"), 0);
    EXPECT_EQ(lines("updateC"), 0);
}

TEST(LogFilter, AClassAdmitsItsCategories)
{
    const ReadLog log =
        readLog(brace("{", "10:00:00.000", "-[NSPopUpButton(KVExtendedPopUpButton) fill:]") +
                brace("}", "10:00:00.000", "-[NSPopUpButton(KVExtendedPopUpButton) fill:]"));
    EXPECT_FALSE(log.tree({.className = "NSPopUpButton"}).isEmpty());
    EXPECT_FALSE(log.tree({.className = "NSPopUpButton(KVExtendedPopUpButton)"}).isEmpty());
    EXPECT_TRUE(log.tree({.className = "NSPopUp"}).isEmpty());
}

TEST(LogFilter, TextIsLookedForInMessagesOnly)
{
    const ReadLog log = readLog(nested());
    EXPECT_EQ(log.tree({.text = "indeed"}).count(u'\n'), 4);
    EXPECT_TRUE(log.tree({.text = "willShow"}).isEmpty());
    EXPECT_TRUE(log.tree({.text = "{"}).isEmpty());
}

TEST(LogFilter, EveryPartHasToAgree)
{
    const ReadLog log = readLog(nested());
    EXPECT_FALSE(log.tree({.className = "KorPDEController2", .kinds = "E"}).isEmpty());
    EXPECT_TRUE(log.tree({.className = "MainPDE2", .kinds = "E"}).isEmpty());
}

TEST(LogFilter, SplitsSelectorsAndLeavesOtherNamesWhole)
{
    EXPECT_EQ(splitOperation("-[A b:c:]").className, "A");
    EXPECT_EQ(splitOperation("-[A b:c:]").selector, "b:c:");
    EXPECT_EQ(splitOperation("+[A b]").selector, "b");
    for (const char *odd : {"", "-", "-[", "-[]", "-[A]", "logger", "[A b]", "-[A b"}) {
        EXPECT_EQ(splitOperation(odd).className, "") << odd;
        EXPECT_EQ(splitOperation(odd).selector, odd);
    }
}

// Texts.

TEST(LogText, AnActionIsOneLine)
{
    const ReadLog log = readLog(nested());
    EXPECT_TEXT(actionLine(log.actions.at(0)),
                "    1  14:03:07.042  -[MainPDE2 willShow]  (8 ms, process 4711)\n");
}

TEST(LogText, ControlCharactersNeverReachTheTerminal)
{
    EXPECT_TEXT(shown("a\x1b[2Jb\x07\r\n\tc"), "a\\x1b[2Jb\\x07\\x0d\n\tc");
    EXPECT_TEXT(shown("\xc2\x9b"), "\\x9b");
    EXPECT_TEXT(shown("\xff"), "\xEF\xBF\xBD");
    EXPECT_TEXT(shown("\xe3\x83\x97"), "プ");
}

TEST(LogText, DamageIsCountedAndPlaced)
{
    EXPECT_TRUE(damageText(q("a.log"), {}, {}).isEmpty());
    EXPECT_TEXT(damageText(q("a.log"), {.lines = 1, .firstPlaces = {7}}, {}),
                "a.log: 1 line is damaged: line 7\n");
    EXPECT_TEXT(damageText(q("a.log"), {.lines = 3, .firstPlaces = {7, 8}},
                           {.callsWithoutEnd = 1, .endsWithoutCall = 2, .firstLine = 5}),
                "a.log: 3 lines are damaged: lines 7, 8, ...\n"
                "a.log:5: 1 call has no end, 2 ends have no call; this is the first\n");
}

} // namespace
