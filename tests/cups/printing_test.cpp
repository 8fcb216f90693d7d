#include "dialog/jobs/job_messages.h"
#include "dialog/printers/server_connection.h"
#include "tests/cups/queue_session.h"
#include "tests/support/print_to.h"

#include <cups/cups.h>

#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <gtest/gtest.h>

using namespace dialog;
using test::FaultKind;
using test::Pressed;
using test::q;
using test::QueueSession;

namespace {

constexpr int kLimit = 300;
constexpr int kPatient = 20'000;

class QueuePrintingTest : public testing::Test
{
protected:
    /// As the server has it.
    [[nodiscard]] static QString tokenOf(int jobId)
    {
        const Connection http = connectToServer({kPatient});
        ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
        const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(jobId);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
        ipp_t *response = cupsDoRequest(http.get(), request, "/");
        const QString token = QString::fromUtf8(
            ippGetString(ippFindAttribute(response, "job-uuid", IPP_TAG_URI), 0, nullptr));
        ippDelete(response);
        return token;
    }
    [[nodiscard]] int printedJobs(const QString &title) const
    {
        int count = 0;
        const auto jobs = session.jobs();
        const auto [first, last] = jobs.equal_range(title);
        for (auto job = first; job != last; ++job)
            count += job->second.state == IPP_JSTATE_COMPLETED;
        return count;
    }
    /// A job as a program leaves it that is killed at that stage.
    JobTrace leftBehind(SendStage stage) const
    {
        JobTrace trace{newJobToken(), QueueSession::queue()};
        const Connection http = connectToServer({kPatient});
        const CreatedJob created = createJob(http.get(), trace, q("left"), {});
        EXPECT_GT(created.jobId, 0) << created.detail.toStdString();
        trace.jobId = created.jobId;
        trace.stage = stage;
        if (stage == SendStage::Sent) {
            QFile document(session.document());
            EXPECT_TRUE(document.open(QIODevice::ReadOnly));
            const SendOutcome outcome = sendDocument(
                http.get(), trace, q("left"), document, [](qint64) {}, [] {});
            EXPECT_EQ(outcome.fault, JobFault::None) << outcome.detail.toStdString();
        }
        JobJournal journal(journalFolder());
        EXPECT_TRUE(journal.write({trace, serverName(), q("left"), QDateTime::currentDateTime()}));
        return trace;
    }
    [[nodiscard]] QString messageOfNextStart() const
    {
        const auto printing = session.printing(kPatient);
        QString told;
        QEventLoop loop;
        QObject::connect(printing.get(), &QueuePrinting::earlierSettled, &loop,
                         [&](const QString &message) {
                             told = message;
                             loop.quit();
                         });
        QTimer::singleShot(kPatient, &loop, &QEventLoop::quit);
        printing->settleEarlier();
        loop.exec();
        return told;
    }

    QueueSession session;
};

} // namespace

TEST_F(QueuePrintingTest, ReadsBackWhatTheServerKept)
{
    const auto printing = session.printing(kPatient);
    const Pressed pressed = session.press(*printing, q("plain"));
    ASSERT_GT(pressed.result.jobId, 0) << pressed.result.detail.toStdString();
    EXPECT_TRUE(pressed.result.differences.empty());
    EXPECT_EQ(session.journal(), QStringList());
    EXPECT_TRUE(session.server().waitForJob(pressed.result.jobId));
}

TEST_F(QueuePrintingTest, TellsSettingsThatTheServerChangedOrDropped)
{
    const auto printing = session.printing(kPatient);
    const Pressed pressed = session.press(*printing, q("plain"));
    JobTrace trace{{}, QueueSession::queue(), pressed.result.jobId, SendStage::Sent};
    trace.token = tokenOf(trace.jobId);
    const Connection http = connectToServer({kPatient});
    const JobStatus status = jobStatus(
        http.get(), trace,
        {{q("MediaType"), q("Plain")}, {q("PrintQuality"), q("Best")}, {q("Missing"), q("x")}});
    const std::vector<OptionDifference> expected{{q("MediaType"), q("Plain"), q("IronOn")},
                                                 {q("Missing"), q("x"), QString()}};
    ASSERT_EQ(status.differences, expected);
    EXPECT_NULL(status.differences[1].kept);
    QueueJobResult result = pressed.result;
    result.differences = status.differences;
    EXPECT_EQ(remarks(result, QueueSession::queue()).size(), 2);
}

TEST_F(QueuePrintingTest, SendsOnceWhenPrintIsPressedTwice)
{
    const auto printing = session.printing(kPatient);
    printing->send({q("twice"), session.document(), {}});
    const Pressed pressed = session.press(*printing, q("twice"));
    ASSERT_TRUE(session.server().waitForJob(pressed.result.jobId));
    EXPECT_EQ(session.jobs().count(q("twice")), 1U);
}

TEST_F(QueuePrintingTest, KeepsTheMainThreadAliveBesideASilentServerAndTellsOfIt)
{
    const auto printing = session.printing(kLimit);
    session.faults().misbehave({FaultKind::Silence, 1});
    const Pressed pressed = session.press(*printing, q("silent"));
    EXPECT_EQ(pressed.result.fault, JobFault::Silent);
    EXPECT_GE(pressed.ticks, 5) << "the main thread has waited for the server";
    RecordProperty("longestGapMilliseconds", pressed.longestGap);
    EXPECT_EQ(session.journal().size(), 1);
    EXPECT_FALSE(faultMessage(pressed.result, QueueSession::queue()).isNull());
}

TEST_F(QueuePrintingTest, TakesACancelledJobBack)
{
    const auto printing = session.printing(kPatient);
    session.faults().misbehave({FaultKind::Deafness, 1500});
    QTimer::singleShot(kLimit, printing.get(), &QueuePrinting::cancel);
    const Pressed pressed = session.press(*printing, q("cancelled"));
    EXPECT_EQ(pressed.result.fault, JobFault::Cancelled);
    EXPECT_EQ(session.journal(), QStringList());
    EXPECT_EQ(printedJobs(q("cancelled")), 0);
    EXPECT_GT(session.press(*printing, q("again")).result.jobId, 0);
}

TEST_F(QueuePrintingTest, TellsEachFaultOfAQueueAndKeepsNothingInTheJournal)
{
    const auto printing = session.printing(kPatient);
    session.server().run(q("cupsreject"), {QueueSession::queue()});
    EXPECT_EQ(session.press(*printing, q("a")).result.fault, JobFault::NotAccepting);
    session.server().run(q("cupsaccept"), {QueueSession::queue()});
    session.server().run(q("cupsdisable"), {QueueSession::queue()});
    const Pressed waits = session.press(*printing, q("b"));
    EXPECT_GT(waits.result.jobId, 0);
    EXPECT_EQ(waits.result.state, JobState::WaitingForQueue);
    EXPECT_EQ(remarks(waits.result, QueueSession::queue()).size(), 1);
    session.server().run(q("lpadmin"), {q("-x"), QueueSession::queue()});
    EXPECT_EQ(session.press(*printing, q("c")).result.fault, JobFault::NoQueue);
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(QueuePrintingTest, TellsThatThereIsNoServer)
{
    const auto printing = session.printing(kPatient);
    qputenv("CUPS_SERVER", "127.0.0.1:1");
    const Pressed pressed = session.press(*printing, q("nobody"));
    EXPECT_EQ(pressed.result.fault, JobFault::NoServer);
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(QueuePrintingTest, PrintsOnceWhenTheServerWasAwayMeanwhile)
{
    const auto printing = session.printing(kPatient);
    session.server().stop();
    EXPECT_NE(session.press(*printing, q("away")).result.fault, JobFault::None);
    session.server().restart();
    const Pressed pressed = session.press(*printing, q("away"));
    ASSERT_TRUE(session.server().waitForJob(pressed.result.jobId));
    EXPECT_EQ(session.jobs().count(q("away")), 1U);
}

TEST_F(QueuePrintingTest, TellsThatTheDocumentHasVanished)
{
    const auto printing = session.printing(kPatient);
    const Pressed pressed =
        session.press(*printing, {q("gone"), q("/nowhere/gone.pdf"), QueueSession::options()});
    EXPECT_EQ(pressed.result.fault, JobFault::DocumentLost);
    EXPECT_FALSE(pressed.result.detail.isEmpty());
}

TEST_F(QueuePrintingTest, SendsNothingThatTheJournalCannotRemember)
{
    QFile inTheWay(session.stateFolder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const auto printing = session.printing(kPatient);
    EXPECT_EQ(session.press(*printing, q("x")).result.fault, JobFault::NotRemembered);
    EXPECT_EQ(session.jobs().count(q("x")), 0U);
}

TEST_F(QueuePrintingTest, RefusesASettingThatLibcupsLeavesOut)
{
    const auto printing = session.printing(kPatient);
    const Pressed pressed =
        session.press(*printing, {q("x"), session.document(), {{q(""), q("a")}}});
    EXPECT_EQ(pressed.result.fault, JobFault::SettingLost);
    EXPECT_EQ(session.jobs().size(), 0U);
}

TEST_F(QueuePrintingTest, WithdrawsAnEmptyJobOfAKilledProgramAtTheNextStart)
{
    const JobTrace trace = leftBehind(SendStage::Sending);
    EXPECT_TRUE(messageOfNextStart().contains(q("nothing of it prints")));
    EXPECT_EQ(session.jobs().begin()->second.state, IPP_JSTATE_CANCELED);
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(QueuePrintingTest, FindsAnEmptyJobWhoseNumberWasLost)
{
    JobTrace trace = leftBehind(SendStage::Creating);
    JobJournal journal(journalFolder());
    trace.jobId = 0;
    ASSERT_TRUE(journal.write({trace, serverName(), q("left"), QDateTime::currentDateTime()}));
    const Connection http = connectToServer({kPatient});
    EXPECT_EQ(settleJob(http.get(), trace).outcome, Settled::Withdrawn);
}

TEST_F(QueuePrintingTest, FindsAWholeJobOfAKilledProgramAtTheNextStart)
{
    const JobTrace trace = leftBehind(SendStage::Sent);
    const QString told = messageOfNextStart();
    EXPECT_TRUE(told.contains(QString::number(trace.jobId))) << told.toStdString();
    ASSERT_TRUE(session.server().waitForJob(trace.jobId));
    EXPECT_EQ(session.jobs().size(), 1U);
    EXPECT_EQ(session.journal(), QStringList());
}

TEST_F(QueuePrintingTest, TakesAJobOfThatNumberWithAnotherTokenForNone)
{
    JobTrace trace = leftBehind(SendStage::Sent);
    trace.token = newJobToken();
    const Connection http = connectToServer({kPatient});
    EXPECT_EQ(settleJob(http.get(), trace).outcome, Settled::Vanished);
    trace.stage = SendStage::Sending;
    EXPECT_EQ(settleJob(http.get(), trace).outcome, Settled::Absent);
}
