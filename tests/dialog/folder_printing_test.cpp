#include "dialog/jobs/folder_printing.h"
#include "tests/support/gate.h"
#include "tests/support/print_to.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace dialog {
namespace {

using test::q;

class FolderWriting : public testing::Test
{
protected:
    FolderWriting()
    {
        QObject::connect(&printing, &FolderPrinting::finished,
                         [this](const JobFolderResult &result) { results.push_back(result); });
    }
    /// The disk hangs until the gate is opened.
    void startOnAHangingDisk()
    {
        printing.start([gate = gate, appears = appears](const FolderWatch &watch) {
            gate->pass();
            appears->push_back(watch.mayAppear());
            return JobFolderResult{q("ticket.json"), {}};
        });
    }
    [[nodiscard]] bool finish()
    {
        return QTest::qWaitFor([this] { return !results.empty(); }, 30'000);
    }

    std::shared_ptr<test::Gate> gate = std::make_shared<test::Gate>();
    std::shared_ptr<std::vector<bool>> appears = std::make_shared<std::vector<bool>>();
    FolderPrinting printing;
    std::vector<JobFolderResult> results;
};

TEST_F(FolderWriting, LetsTheEventLoopTurnWhileTheDiskHangs)
{
    constexpr int kTurns = 100;
    startOnAHangingDisk();
    int turns = 0;
    QTimer eachTurn;
    QObject::connect(&eachTurn, &QTimer::timeout, [&] {
        if (++turns == kTurns)
            gate->open();
    });
    eachTurn.start(0);
    ASSERT_TRUE(finish());
    EXPECT_GE(turns, kTurns);
    EXPECT_TEXT(results[0].ticketPath, "ticket.json");
    EXPECT_FALSE(printing.isWriting());
}

TEST_F(FolderWriting, CanBeGivenUpWhileTheDiskHangs)
{
    startOnAHangingDisk();
    ASSERT_TRUE(QTest::qWaitFor([this] { return gate->arrived() == 1; }, 30'000));
    printing.cancel();
    ASSERT_TRUE(finish());
    EXPECT_NULL(results[0].ticketPath);
    EXPECT_NULL(results[0].error);
    EXPECT_FALSE(printing.isWriting());
    gate->open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !appears->empty(); }, 30'000));
    EXPECT_FALSE(appears->front()) << "nothing appears of a job that was given up";
    QCoreApplication::processEvents();
    EXPECT_EQ(results.size(), 1U);
}

TEST_F(FolderWriting, TellsOfAJobThatHadBeenWrittenBeforeItWasGivenUp)
{
    printing.start([gate = gate](const FolderWatch &watch) {
        const bool mayAppear = watch.mayAppear();
        gate->pass();
        return JobFolderResult{mayAppear ? q("ticket.json") : QString(), {}};
    });
    ASSERT_TRUE(QTest::qWaitFor([this] { return gate->arrived() == 1; }, 30'000));
    printing.cancel();
    gate->open();
    ASSERT_TRUE(finish());
    EXPECT_TEXT(results[0].ticketPath, "ticket.json");
}

TEST_F(FolderWriting, TellsHowFarItIs)
{
    QSignalSpy progress(&printing, &FolderPrinting::progressed);
    printing.start([](const FolderWatch &watch) {
        EXPECT_TRUE(watch.goesOn(1, 2) && watch.goesOn(2, 2));
        return JobFolderResult{{}, q("no room")};
    });
    ASSERT_TRUE(finish());
    EXPECT_TEXT(results[0].error, "no room");
    ASSERT_EQ(progress.count(), 2);
    EXPECT_EQ(progress[1], QVariantList({2, 2}));
}

TEST_F(FolderWriting, OfAWindowThatGoesIsGivenUpAndWaitedFor)
{
    auto shortLived = std::make_unique<FolderPrinting>();
    bool hasCleanedUp = false;
    shortLived->start([&](const FolderWatch &watch) {
        while (watch.goesOn(0, 1))
            QThread::msleep(1);
        QThread::msleep(20); // long enough for whoever does not wait
        hasCleanedUp = true;
        return JobFolderResult{};
    });
    shortLived.reset();
    EXPECT_TRUE(hasCleanedUp);
}

TEST_F(FolderWriting, IsOneAtATime)
{
    startOnAHangingDisk();
    printing.start([](const FolderWatch &) { return JobFolderResult{{}, q("the second")}; });
    gate->open();
    ASSERT_TRUE(finish());
    EXPECT_NULL(results[0].error);
}

} // namespace
} // namespace dialog
