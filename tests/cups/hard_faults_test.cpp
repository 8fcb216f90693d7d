#include "dialog/jobs/job_messages.h"
#include "tests/cups/queue_session.h"
#include "tests/dialog/program_run.h"
#include "tests/support/print_to.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <cups/ipp.h>

#include <unistd.h>

using namespace dialog;
using test::FaultKind;
using test::Pressed;
using test::q;
using test::QueueSession;

namespace {

constexpr int kPatient = 20'000;
constexpr int kMostPresses = 6;

template <class Condition>
bool until(const Condition &condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < kPatient)
        QThread::msleep(2);
    return condition();
}

void waitForPrinted(const QueueSession &session, const QString &title)
{
    EXPECT_TRUE(until([&] { return session.printed(title) > 0; })) << title.toStdString();
}

/// Every document that came to the printer is whole.
void expectWholeDocuments(const QueueSession &session)
{
    for (const qint64 size : session.server().documentSizes())
        EXPECT_EQ(size, QFileInfo(session.document()).size());
}

/// What the next start says of jobs of programs that are gone; null when it says nothing.
QString messageOfNextStart()
{
    const auto printing = QueueSession::printing(kPatient);
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

/// Bytes of requests of one job that nothing disturbs.
std::int64_t bytesOfOneJob(QueueSession &session)
{
    session.faults().misbehave({});
    const auto printing = QueueSession::printing(kPatient);
    EXPECT_GT(session.press(*printing, q("measured")).result.jobId, 0);
    waitForPrinted(session, q("measured"));
    return session.faults().requestBytes();
}

} // namespace

TEST(CrashedServer, PrintsOnceUnlessAPersonWasWarned)
{
    constexpr int kCases = 8;
    QueueSession session;
    const std::int64_t bytes = bytesOfOneJob(session);
    session.server().restart(); // which writes the queue down
    for (int i = 0; i < kCases; ++i) {
        const QString title = QStringLiteral("crash %1").arg(i);
        SCOPED_TRACE(title.toStdString());
        const auto printing = QueueSession::printing(kPatient);
        session.faults().setWhenMisbehaving([&] { session.server().crash(); });
        session.faults().misbehave({FaultKind::CutRequests, 1 + bytes * i / kCases});
        int warnings = 0;
        int jobId = 0;
        for (int press = 0; press < kMostPresses && jobId == 0; ++press) {
            const Pressed pressed = session.press(*printing, title);
            jobId = pressed.result.jobId;
            warnings += pressed.result.fault == JobFault::MaybePrinted;
            EXPECT_NE(jobId == 0, pressed.result.fault == JobFault::None)
                << static_cast<int>(pressed.result.fault);
            if (press == 0)
                session.server().restart();
        }
        EXPECT_TRUE(session.faults().hasMisbehaved());
        ASSERT_GT(jobId, 0);
        waitForPrinted(session, title);
        EXPECT_LE(session.printed(title), 1 + warnings);
        EXPECT_EQ(session.journal(), QStringList());
        session.faults().setWhenMisbehaving({});
    }
    expectWholeDocuments(session);
}

TEST(KilledProgram, LeavesAJobThatTheNextStartFindsOrTakesBack)
{
    constexpr int kCases = 8;
    QueueSession session;
    const std::int64_t bytes = bytesOfOneJob(session);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(q("QT_QPA_PLATFORM"), q("offscreen"));
    int found = 0;
    for (int i = 0; i < kCases; ++i) {
        const QString document = session.copyOfDocument(QStringLiteral("kill%1.pdf").arg(i));
        const QString title = QFileInfo(document).fileName();
        SCOPED_TRACE(title.toStdString());
        QProcess program;
        program.setProcessEnvironment(environment);
        session.faults().misbehave({FaultKind::Deafness, 1 + bytes * i / kCases});
        program.start(q(KORVANE_PRINT), {q("--queue"), QueueSession::queue(), q("--print-anyway"),
                                         q("--print"), document});
        ASSERT_TRUE(until([&] { return session.faults().hasMisbehaved(); }))
            << program.readAllStandardError().toStdString();
        program.kill();
        ASSERT_TRUE(program.waitForFinished(kPatient));
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
        session.faults().misbehave({});
        if (!session.journal().isEmpty()) {
            EXPECT_FALSE(messageOfNextStart().isNull());
            ++found;
        }
        EXPECT_EQ(session.journal(), QStringList());
        EXPECT_LE(session.printed(title), 1);
        const auto jobs = session.jobs();
        const auto [first, last] = jobs.equal_range(title);
        for (auto job = first; job != last; ++job)
            EXPECT_GE(job->second.state, IPP_JSTATE_CANCELED) << "nothing half is left";
    }
    EXPECT_GE(found, kCases / 3) << "hardly any program was killed with a job on its way";
    expectWholeDocuments(session);
}

TEST(FullDisk, OfTheServersSpoolIsToldAndNothingHalfPrints)
{
    QueueSession session;
    session.growDocument(3'000'000);
    session.server().limitFiles(1'000'000);
    const auto printing = QueueSession::printing(kPatient);
    const Pressed full = session.press(*printing, q("large"));
    EXPECT_EQ(full.result.jobId, 0);
    EXPECT_NE(full.result.fault, JobFault::None);
    EXPECT_FALSE(faultMessage(full.result, QueueSession::queue()).isEmpty());
    EXPECT_EQ(session.printed(q("large")), 0);
    session.server().limitFiles(-1);
    const Pressed roomy = session.press(*printing, q("large"));
    ASSERT_GT(roomy.result.jobId, 0) << roomy.result.detail.toStdString();
    waitForPrinted(session, q("large"));
    EXPECT_EQ(session.printed(q("large")), 1);
    expectWholeDocuments(session);
}

namespace {

/// The program in a mount namespace of its own, where the folder of that variable is full. Nothing
/// where this machine does not allow it.
std::optional<test::ProgramRun> runOnFullDisk(const QueueSession &session, const char *variable)
{
    const QString folder = session.stateFolder() + q("-full");
    QDir().mkpath(folder);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(q("QT_QPA_PLATFORM"), q("offscreen"));
    environment.insert(q(variable), folder);
    program.setProcessEnvironment(environment);
    program.start(q("unshare"), {q("--mount"), q("sh"), q("-c"),
                                 q("mount -t tmpfs -o size=64k none \"$0\" || exit 99\n"
                                   "dd if=/dev/zero of=\"$0/filler\" bs=1k 2>/dev/null\n"
                                   "exec \"$@\""),
                                 folder, q(KORVANE_PRINT), q("--queue"), QueueSession::queue(),
                                 q("--print-anyway"), q("--print"), session.document()});
    if (!program.waitForFinished(kPatient) || program.exitCode() == 99)
        return std::nullopt;
    return test::ProgramRun{program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
                            program.readAllStandardOutput(), program.readAllStandardError()};
}

} // namespace

TEST(FullDisk, OfTheUsersStateSendsNothingAndSaysSo)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can mount a small disk";
    QueueSession session;
    const auto run = runOnFullDisk(session, "XDG_STATE_HOME");
    if (!run)
        GTEST_SKIP() << "this machine does not let root mount a small disk";
    EXPECT_EQ(run->status, 1) << run->errors.toStdString();
    EXPECT_TRUE(run->errors.contains("could not be noted")) << run->errors.toStdString();
    EXPECT_EQ(session.jobs().size(), 0U);
}

TEST(FullDisk, OfTheUsersCacheStillPrints)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can mount a small disk";
    QueueSession session;
    const auto run = runOnFullDisk(session, "XDG_CACHE_HOME");
    if (!run)
        GTEST_SKIP() << "this machine does not let root mount a small disk";
    EXPECT_EQ(run->status, 0) << run->errors.toStdString();
    waitForPrinted(session, QFileInfo(session.document()).fileName());
}
