#include "tests/dialog_tools/command_run.h"
#include "tests/dialog_tools/log_lines.h"
#include "tests/support/print_to.h"

#include <QFile>

#include <gtest/gtest.h>

using test::brace;
using test::CommandRun;
using test::q;
using test::record;

namespace {

class LogCommand : public testing::Test
{
protected:
    CommandRun log(const QStringList &words) const
    {
        return room.print(QStringList{q("log")} + words);
    }
    /// Expects the command to succeed.
    QByteArray shown(const QByteArray &bytes, const QStringList &words = {}) const
    {
        const CommandRun run = log(words + QStringList{room.write("a.log", bytes)});
        EXPECT_EQ(run.status, 0) << run.errors.constData();
        EXPECT_EQ(run.errors, "");
        return run.output;
    }

    test::CommandRoom room;
    const QByteArray twoActions =
        brace("{", "10:00:00.000", "-[A a]") + record('E', "10:00:00.001", "-[A a]", 7, "wrong") +
        brace("}", "10:00:00.002", "-[A a]") + brace("{", "10:00:00.003", "-[B b:]", 9) +
        brace("}", "10:00:00.005", "-[B b:]", 9);
};

TEST_F(LogCommand, PrintsTheTreeOfEachProcess)
{
    EXPECT_EQ(shown(twoActions), "process 4711\n"
                                 "10:00:00.000  -[A a]  (2 ms)\n"
                                 "10:00:00.001    E L7  wrong\n"
                                 "process 9\n"
                                 "10:00:00.003  -[B b:]  (2 ms)\n");
}

TEST_F(LogCommand, ListsActionsAndShowsOneOfThem)
{
    EXPECT_EQ(shown(twoActions, {q("--actions")}),
              "    1  10:00:00.000  -[A a]  (2 ms, process 4711)\n"
              "    2  10:00:00.003  -[B b:]  (2 ms, process 9)\n");
    EXPECT_EQ(shown(twoActions, {q("--action"), q("2")}),
              "process 9\n10:00:00.003  -[B b:]  (2 ms)\n");
    EXPECT_EQ(shown(twoActions, {q("--actions"), q("--kind"), q("e")}),
              "    1  10:00:00.000  -[A a]  (2 ms, process 4711)\n");
}

TEST_F(LogCommand, FiltersByEachOption)
{
    EXPECT_EQ(shown(twoActions, {q("--class"), q("B")}),
              "process 9\n10:00:00.003  -[B b:]  (2 ms)\n");
    EXPECT_EQ(shown(twoActions, {q("--operation"), q("b")}),
              "process 9\n10:00:00.003  -[B b:]  (2 ms)\n");
    EXPECT_EQ(shown(twoActions, {q("--text"), q("wro")}).count('\n'), 3);
    EXPECT_EQ(shown(twoActions, {q("--kind"), q("D")}), "");
}

TEST_F(LogCommand, ReadsDamagedLogsAsFarAsTheyGo)
{
    const QString path = room.write("a.log", "garbage\n" + twoActions + "AI0047");
    const CommandRun run = log({path});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.output.contains("-[B b:]"));
    EXPECT_EQ(run.errors,
              "korvane-print: " + path.toUtf8() + ": 2 lines are damaged: lines 1, 7\n");
}

TEST_F(LogCommand, EndsWithoutACallAreDamageAndOpenCallsAreNot)
{
    const CommandRun open = log({room.write("a.log", brace("{", "10:00:00.000", "-[A a]"))});
    EXPECT_EQ(open.status, 0);
    EXPECT_TRUE(open.errors.contains("1 call has no end"));
    EXPECT_EQ(log({room.write("b.log", brace("}", "10:00:00.000", "-[A a]"))}).status, 1);
}

TEST_F(LogCommand, ReadsPastLinesThatAreTooLong)
{
    const QByteArray huge(3 * 1024 * 1024, 'x');
    const QByteArray output = shown(record('I', "10:00:00.000", "op", 1, huge) +
                                    record('I', "10:00:00.001", "op", 2, "end"));
    EXPECT_TRUE(output.contains("(cut)\n"));
    EXPECT_TRUE(output.endsWith("10:00:00.001  I op L2  end\n"));
    EXPECT_LT(output.size(), 200 * 1024);
}

TEST_F(LogCommand, EmptyLogsAreWhole)
{
    EXPECT_EQ(shown(""), "");
}

TEST_F(LogCommand, WordsThatMakeNoSenseAreRefused)
{
    const QString file = room.write("a.log", twoActions);
    const std::vector<QStringList> all{{},
                                       {file, file},
                                       {q("--on"), q("--off")},
                                       {q("--on"), file},
                                       {q("--off"), q("--level"), q("1")},
                                       {q("--on"), q("--level"), q("0")},
                                       {q("--on"), q("--level"), q("8")},
                                       {q("--on"), q("--level"), q("two")},
                                       {q("--on"), q("--file"), q("a/b")},
                                       {q("--kind"), q("X"), file},
                                       {q("--action"), q("0"), file},
                                       {q("--action"), q("1"), q("--actions"), file},
                                       {q("--level"), q("1"), file},
                                       {q("--nonsense"), file},
                                       {room.path("missing")},
                                       {room.path(".")}};
    for (const QStringList &words : all) {
        const CommandRun run = log(words);
        EXPECT_EQ(run.status, 2) << words.join(u' ').toStdString();
        EXPECT_TRUE(run.errors.startsWith("korvane-print: ")) << run.errors.constData();
    }
}

TEST_F(LogCommand, WhatItSwitchesOnIsWrittenAndWhatItSwitchesOffIsNot)
{
    const QString sample = q(KORVANE_SOURCE_DIR "/driver/ppd/Korvane-S300.ppd");
    const QStringList useOfThePanels{q("check-ppd"), q("--root"), q(KORVANE_ROOT_DIR), sample};
    const CommandRun on = log({q("--on"), q("--level"), q("1"), q("--file"), q("x.log")});
    EXPECT_EQ(on.status, 0) << on.errors.constData();
    EXPECT_TRUE(on.output.contains(room.path("x.log").toUtf8()));
    EXPECT_EQ(room.print(useOfThePanels).status, 0);
    ASSERT_TRUE(QFile::exists(room.path("x.log")));
    const CommandRun tree = log({room.path("x.log")});
    EXPECT_EQ(tree.status, 0) << tree.errors.constData();
    EXPECT_TRUE(tree.output.contains("-[PDETools2 getProductYear:]")) << tree.output.constData();

    EXPECT_EQ(log({q("--off")}).status, 0);
    QFile::remove(room.path("x.log"));
    EXPECT_EQ(room.print(useOfThePanels).status, 0);
    EXPECT_FALSE(QFile::exists(room.path("x.log")));
}

} // namespace
