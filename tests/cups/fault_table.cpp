#include "tests/cups/fault_table.h"

#include "tests/cups/queue_session.h"
#include "tests/support/print_to.h"

#include <cups/ipp.h>

#include <QFileInfo>

#include <gtest/gtest.h>

#include <algorithm>

namespace test {
namespace {

constexpr int kLimitMilliseconds = 250;
constexpr int kHealthyMilliseconds = 20'000;
constexpr int kMostPresses = 6;
constexpr int kHttpStatus[] = {400, 401, 403, 404, 413, 426, 500, 501, 503, 505};
constexpr int kIppStatus[] = {
    IPP_STATUS_ERROR_FORBIDDEN,           IPP_STATUS_ERROR_NOT_POSSIBLE,
    IPP_STATUS_ERROR_NOT_FOUND,           IPP_STATUS_ERROR_REQUEST_ENTITY,
    IPP_STATUS_ERROR_TOO_MANY_JOBS,       IPP_STATUS_ERROR_INTERNAL,
    IPP_STATUS_ERROR_SERVICE_UNAVAILABLE, IPP_STATUS_ERROR_DEVICE,
    IPP_STATUS_ERROR_TEMPORARY,           IPP_STATUS_ERROR_BUSY,
};

bool countsRequests(FaultKind kind)
{
    return kind == FaultKind::CutRequests || kind == FaultKind::Deafness;
}

int statusOf(FaultKind kind, int number)
{
    const auto &table = kind == FaultKind::IppError ? kIppStatus : kHttpStatus;
    static_assert(sizeof kIppStatus == sizeof kHttpStatus);
    return table[static_cast<std::size_t>(number) % std::size(table)];
}

/// A cut connection is told at once, so that no time runs out on a busy machine.
int limitFor(FaultKind kind)
{
    const bool isCut = kind == FaultKind::CutAnswers || kind == FaultKind::CutRequests ||
                       kind == FaultKind::CloseAtOnce;
    return isCut ? kHealthyMilliseconds : kLimitMilliseconds;
}

/// What a healthy job takes at least: on a busy machine the server is asked more often how the job
/// does.
Exchange measured(QueueSession &session)
{
    constexpr int kRounds = 3;
    const auto printing = session.printing(kHealthyMilliseconds);
    Exchange least{INT64_MAX, INT64_MAX};
    for (int i = 0; i < kRounds; ++i) {
        session.faults().misbehave({});
        const Pressed pressed = session.press(*printing, q("measured"));
        EXPECT_GT(pressed.result.jobId, 0) << pressed.result.detail.toStdString();
        least.requestBytes = std::min(least.requestBytes, session.faults().requestBytes());
        least.answerBytes = std::min(least.answerBytes, session.faults().answerBytes());
    }
    return least;
}

struct Ended
{
    QString title;
    int jobId;
};

/// Presses until the job is made; answers its number, 0 when it never is.
int pressUntilMade(QueueSession &session, dialog::QueuePrinting &printing, const QString &title)
{
    for (int i = 0; i < kMostPresses; ++i) {
        const Pressed pressed = session.press(printing, title);
        if (pressed.result.jobId > 0)
            return pressed.result.jobId;
        EXPECT_NE(pressed.result.fault, dialog::JobFault::None);
    }
    return 0;
}

void expectWhole(QueueSession &session, const Ended &ended)
{
    ASSERT_TRUE(session.server().waitForJob(ended.jobId));
    const FilterOptions arrived = session.server().options(ended.jobId);
    for (const auto &option : QueueSession::options())
        EXPECT_EQ(std::count(arrived.begin(), arrived.end(), option), 1)
            << option.first.toStdString();
    EXPECT_EQ(session.server().document(ended.jobId).size(), QFileInfo(session.document()).size());
}

void expectOnce(const std::multimap<QString, QueueSession::KnownJob> &jobs, const Ended &ended)
{
    int printed = 0;
    const auto [first, last] = jobs.equal_range(ended.title);
    for (auto job = first; job != last; ++job) {
        int state = job->second.state;
        if (state == IPP_JSTATE_PROCESSING) // the printer has it; the server has not noticed yet
            state = IPP_JSTATE_COMPLETED;
        printed += state == IPP_JSTATE_COMPLETED;
        EXPECT_TRUE(state == IPP_JSTATE_COMPLETED || state == IPP_JSTATE_CANCELED ||
                    state == IPP_JSTATE_ABORTED)
            << "job " << job->second.id << " is left in state " << state;
    }
    EXPECT_EQ(printed, 1);
}

} // namespace

std::vector<Fault> spread(FaultKind kind, int count, const Exchange &exchange)
{
    const std::int64_t bytes = countsRequests(kind) ? exchange.requestBytes : exchange.answerBytes;
    std::vector<Fault> faults;
    for (int i = 0; i < count; ++i)
        faults.push_back({kind, 1 + (bytes - 1) * i / std::max(count - 1, 1), statusOf(kind, i)});
    return faults;
}

void expectOneJobEach(FaultKind kind, int count)
{
    QueueSession session;
    const std::vector<Fault> faults = spread(kind, count, measured(session));
    std::vector<Ended> made;
    int happened = 0;
    for (const Fault &fault : faults) {
        SCOPED_TRACE(testing::PrintToString(fault));
        const QString title = QStringLiteral("case %1").arg(made.size());
        const auto printing = session.printing(limitFor(kind));
        session.faults().misbehave(fault);
        made.push_back({title, pressUntilMade(session, *printing, title)});
        EXPECT_GT(made.back().jobId, 0);
        happened += session.faults().hasMisbehaved();
        EXPECT_EQ(session.journal(), QStringList());
    }
    EXPECT_GE(happened, count - 1) << "faults that did not happen test nothing";
    for (std::size_t i = 0; i < made.size(); ++i) {
        SCOPED_TRACE(testing::PrintToString(faults[i]));
        expectWhole(session, made[i]);
    }
    const auto jobs = session.jobs();
    for (std::size_t i = 0; i < made.size(); ++i) {
        SCOPED_TRACE(testing::PrintToString(faults[i]));
        expectOnce(jobs, made[i]);
    }
}

} // namespace test
