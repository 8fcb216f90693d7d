#include "dialog/print_dialog.h"
#include "tests/dialog/program_run.h"
#include "tests/queues/counting_proxy.h"
#include "tests/queues/silent_server.h"
#include "tests/queues/user_folders.h"
#include "tests/support/private_cupsd.h"

#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

using namespace dialog;
using namespace test;

namespace {

/// What came of opening a case, and how often the main thread got a turn meanwhile.
struct Opening
{
    std::unique_ptr<PrintDialog> dialog;
    QString problem;
    int turns = 0;
};

Opening open(const PrintCase &printCase)
{
    Opening opening;
    QEventLoop loop;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] { ++opening.turns; });
    beat.start(1);
    PrintDialog::openLater(&loop, printCase, [&](PrintDialog::Opened opened) {
        if (const auto *problem = std::get_if<QString>(&opened))
            opening.problem = *problem;
        else
            opening.dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        loop.quit();
    });
    loop.exec();
    return opening;
}

PrintCase caseOf(const char *queue)
{
    PrintCase printCase;
    printCase.root = q(KORVANE_ROOT_DIR);
    printCase.queue = q(queue);
    return printCase;
}

class QueueOpening : public testing::Test
{
protected:
    QueueOpening() { server.addQueue(q("ink"), samplePpd("Korvane-S300.ppd")); }

    UserFolders user;
    PrivateCupsd server;
};

} // namespace

TEST_F(QueueOpening, TakesThePpdFromTheCacheOutsideAWindowToo)
{
    QThread::msleep(1'100); // the server's clock counts seconds
    const CountingProxy proxy(server.address());
    const Opening first = open(caseOf("ink"));
    ASSERT_TRUE(first.dialog) << first.problem.toStdString();
    EXPECT_TEXT(first.dialog->printer().nickName(), "Korvane S300");
    EXPECT_EQ(proxy.downloads(), 1);
    ASSERT_TRUE(open(caseOf("ink")).dialog);
    EXPECT_EQ(proxy.downloads(), 1);
}

TEST_F(QueueOpening, MarksWhatTheUserHasSaved)
{
    ASSERT_TRUE(QDir().mkpath(user.path("home/.cups")));
    QFile saved(user.path("home/.cups/lpoptions"));
    ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
    saved.write("Dest ink MediaType=IronOn\n");
    saved.close();
    const Opening opened = open(caseOf("ink"));
    ASSERT_TRUE(opened.dialog);
    EXPECT_SAME(opened.dialog->printer().marked(q("MediaType")), q("IronOn"));
}

TEST_F(QueueOpening, TellsAQueueThatIsNotThere)
{
    const Opening opened = open(caseOf("nobody"));
    EXPECT_FALSE(opened.dialog);
    EXPECT_TRUE(opened.problem.contains(q("nobody"))) << opened.problem.toStdString();
}

TEST_F(QueueOpening, AnswersFromTheEventLoopForAPpdAndForNothingToo)
{
    PrintCase ppd;
    ppd.ppd = q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/Korvane-S300.ppd");
    EXPECT_TRUE(open(ppd).dialog);
    EXPECT_TRUE(open({}).problem.contains(q("--queue NAME")));
    PrintCase without = caseOf("ink");
    without.document = q("/nowhere/page.pdf");
    EXPECT_TRUE(open(without).problem.contains(q("/nowhere/page.pdf")));
}

TEST_F(QueueOpening, CanBeAbandoned)
{
    bool isTold = false;
    {
        QObject scope;
        PrintDialog::openLater(&scope, caseOf("ink"), [&](PrintDialog::Opened) { isTold = true; });
    }
    ASSERT_TRUE(open(caseOf("ink")).dialog);
    EXPECT_FALSE(isTold);
}

TEST_F(QueueOpening, ReplaysAScenarioOnAQueue)
{
    QFile scenario(user.path("queue.scenario"));
    ASSERT_TRUE(scenario.open(QIODevice::WriteOnly));
    scenario.write("queue ink\nmark MediaType IronOn\nexpect /marked/MediaType IronOn\n");
    scenario.close();
    const QStringList root{q("--root"), q(KORVANE_ROOT_DIR)};
    const ProgramRun run = runPrint(QStringList{q("replay"), scenario.fileName()} + root);
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    const ProgramRun gone =
        runPrint(QStringList{q("replay"), scenario.fileName(), q("--queue"), q("sold")} + root);
    EXPECT_EQ(gone.status, 0) << "the scenario's own queue counts";
}

TEST_F(QueueOpening, RecordsAPrinterThatReplaysWithoutTheQueue)
{
    QFile scenario(user.path("queue.scenario"));
    ASSERT_TRUE(scenario.open(QIODevice::WriteOnly));
    scenario.write("show 0\n");
    scenario.close();
    for (const bool hasCache : {true, false}) {
        if (!hasCache) {
            QDir(user.path("cache")).removeRecursively();
            QFile inTheWay(user.path("cache"));
            ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
        }
        const QString record =
            user.path(hasCache ? "recorded.scenario" : "recorded-without-cache.scenario");
        const ProgramRun run = runPrint({q("replay"), scenario.fileName(), q("--queue"), q("ink"),
                                         q("--root"), q(KORVANE_ROOT_DIR), q("--record"), record});
        EXPECT_EQ(run.status, 1) << "there is no panel of that name";
        const QByteArray recorded = fileBytes(record);
        EXPECT_FALSE(recorded.contains("ink")) << "queues have people's names";
        EXPECT_FALSE(recorded.contains("could not be copied")) << recorded.toStdString();
        EXPECT_TRUE(fileBytes(record + q(".ppd")).contains("*NickName: \"Korvane S300\""));
    }
}

TEST(QueueOpeningFaults, AreToldWithinThreeAndAHalfSecondsByDefault)
{
    using namespace std::chrono_literals;
    const ServerTimes times;
    EXPECT_LE(times.connect, 3'500ms);
    EXPECT_LE(times.silence + 1'000ms, 3'500ms) << "libcups waits for a second first";
    EXPECT_LE(times.list, 3'500ms);
    EXPECT_LE(ServerLimits().answerMilliseconds, 3'500);
}

TEST(QueueOpeningFaults, AreToldWhileTheMainThreadLives)
{
    const UserFolders user;
    const SilentServer server;
    PrintCase printCase = caseOf("ink");
    printCase.serverTimes.connect = printCase.serverTimes.silence = std::chrono::milliseconds(300);
    const Opening opened = open(printCase);
    EXPECT_FALSE(opened.dialog);
    EXPECT_TRUE(opened.problem.contains(q("does not answer"))) << opened.problem.toStdString();
    EXPECT_GT(opened.turns, 10);
}
