#include "dialog/jobs/folder_printing.h"

#include "dialog/threads/thread_link.h"

#include <atomic>
#include <chrono>

namespace dialog {
namespace {

// As long as a person does not wonder where the window stays.
constexpr auto kPatience = std::chrono::seconds(1);

enum class Stage { Writing, GivenUp, Settled };

} // namespace

struct FolderPrinting::Work : ThreadLink<FolderPrinting>
{
    using ThreadLink::ThreadLink;

    std::atomic<Stage> stage = Stage::Writing;

    /// The first of both counts, so that no job appears that was given up.
    bool giveUp() { return reach(Stage::GivenUp); }
    bool settle() { return reach(Stage::Settled); }

    /// Whether the job may appear so far; passes on how far it is.
    bool goesOn(qint64 copied, qint64 all)
    {
        post([copied, all](FolderPrinting &printing) { Q_EMIT printing.progressed(copied, all); });
        return stage == Stage::Writing;
    }

private:
    bool reach(Stage end)
    {
        Stage before = Stage::Writing;
        return stage.compare_exchange_strong(before, end) || before == end;
    }
};

FolderPrinting::FolderPrinting(QObject *parent) : QObject(parent) {}

FolderPrinting::~FolderPrinting()
{
    if (work_) {
        work_->hangUp();
        work_->giveUp();
        givenUp_.push_back(work_);
    }
    for (const auto &work : givenUp_)
        work->waitForEnd(kPatience);
}

void FolderPrinting::start(const Writer &write)
{
    if (work_)
        return;
    work_ = std::make_shared<Work>(this);
    work_->start([work = work_, write] {
        const JobFolderResult result =
            write({[&](qint64 copied, qint64 all) { return work->goesOn(copied, all); },
                   [&] { return work->settle(); }});
        if (work->settle())
            work->post([result](FolderPrinting &printing) { printing.finish(result); });
    });
}

void FolderPrinting::cancel()
{
    if (!work_ || work_->stage != Stage::Writing || !work_->giveUp())
        return;
    givenUp_.push_back(work_);
    work_->post([](FolderPrinting &printing) { printing.finish({}); });
}

void FolderPrinting::finish(const JobFolderResult &result)
{
    work_.reset();
    Q_EMIT finished(result);
}

} // namespace dialog
