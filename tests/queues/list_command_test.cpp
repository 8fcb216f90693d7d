#include "tests/dialog/program_run.h"
#include "tests/queues/silent_server.h"
#include "tests/queues/user_folders.h"
#include "tests/support/private_cupsd.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace test;

TEST(ListCommand, PrintsQueuesWithTheirStates)
{
    const UserFolders user;
    PrivateCupsd server;
    server.addQueue(q("ink"), samplePpd("Korvane-S300.ppd"));
    server.run(q("lpadmin"), {q("-p"), q("office"), q("-E"), q("-v"), q("keep:/x"), q("-D"),
                              q("Front desk"), q("-L"), q("Hall")});
    server.run(q("cupsdisable"), {q("-r"), q("Paper jam"), q("office")});
    server.run(q("lpadmin"), {q("-d"), q("office")});

    const ProgramRun run = runPrint({q("--list")});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_EQ(run.output.toStdString(), "office  Paused: Paper jam  Front desk, Hall (default)\n"
                                        "ink     Idle  ink\n");
    EXPECT_TRUE(
        runPrint({q("--list"), q("--language"), q("de")}).output.contains("Angehalten: Paper jam"));
}

TEST(ListCommand, WritesJsonForPrograms)
{
    const UserFolders user;
    PrivateCupsd server;
    server.addQueue(q("ink"), samplePpd("Korvane-S300.ppd"));
    const ProgramRun run = runPrint({q("--list"), q("--json"), q("--language"), q("de")});
    EXPECT_EQ(run.status, 0);
    const QJsonArray queues = QJsonDocument::fromJson(run.output).array();
    ASSERT_EQ(queues.size(), 1);
    EXPECT_EQ(queues[0][q("name")].toString(), q("ink"));
    EXPECT_EQ(queues[0][q("state")].toString(), q("idle"));
    EXPECT_EQ(queues[0][q("stateText")].toString(), q("Bereit"));
    EXPECT_FALSE(queues[0][q("default")].toBool(true));
}

TEST(ListCommand, SaysWhenNoServerAnswers)
{
    const UserFolders user;
    SilentServer server;
    server.die();
    const ProgramRun run = runPrint({q("--list")});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.output.isEmpty());
    EXPECT_TRUE(run.errors.contains("No print server answers at " + server.address()));
    EXPECT_TRUE(run.errors.contains("try again"));
}

TEST(ListCommand, RefusesWordsThatItDoesNotKnow)
{
    EXPECT_EQ(runPrint({q("--list"), q("document.pdf")}).status, 2);
    EXPECT_EQ(runPrint({q("--list"), q("--nonsense")}).status, 2);
}
