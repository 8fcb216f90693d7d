#include "dialog/preview/preview_document.h"

#include "dialog/threads/thread_link.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>

namespace dialog {
namespace {

// A thread that draws notices soon that nobody waits any more; one that hangs never does.
constexpr std::chrono::milliseconds kPatience{500};

} // namespace

struct PreviewDocument::Channel : ThreadLink<PreviewDocument>
{
    using ThreadLink::ThreadLink;

    std::atomic<int> latest = 0; ///< counts requests; drawing for an older one stops

    /// Stops drawing for the former one; nothing is no request.
    void put(std::optional<SideRequest> request)
    {
        const std::lock_guard lock(mutex_);
        next_ = std::move(request);
        ++latest;
        news_.notify_all();
    }
    /// No request follows, and nobody listens any more.
    void leave()
    {
        hangUp();
        const std::lock_guard lock(mutex_);
        isLeft_ = true;
        ++latest;
        news_.notify_all();
    }
    /// The next request and its number; nothing when none follows.
    std::optional<std::pair<SideRequest, int>> take()
    {
        std::unique_lock lock(mutex_);
        news_.wait(lock, [&] { return next_ || isLeft_; });
        if (isLeft_)
            return std::nullopt;
        const SideRequest request = *std::exchange(next_, std::nullopt);
        return std::pair(request, latest.load());
    }

private:
    std::mutex mutex_;
    std::condition_variable news_;
    std::optional<SideRequest> next_;
    bool isLeft_ = false;
};

PreviewDocument::PreviewDocument(SourceOpener opener, QObject *parent)
    : QObject(parent), opener_(std::move(opener))
{
}

PreviewDocument::~PreviewDocument()
{
    leaveDocument();
    if (!channel_)
        return;
    // In the usual case no thread outlives the program's end.
    channel_->waitForEnd(kPatience);
}

void PreviewDocument::leaveDocument()
{
    if (channel_)
        channel_->leave();
}

void PreviewDocument::open(const QString &path)
{
    leaveDocument();
    channel_ = std::make_shared<Channel>(this);
    channel_->start([channel = channel_, opener = opener_, path] { work(channel, opener, path); });
}

void PreviewDocument::request(const SideRequest &request)
{
    if (channel_)
        channel_->put(request);
}

void PreviewDocument::withdraw()
{
    if (channel_)
        channel_->put(std::nullopt);
}

void PreviewDocument::work(const std::shared_ptr<Channel> &channel, const SourceOpener &opener,
                           const QString &path)
{
    const OpenedSource opened = opener(path);
    DocumentFacts facts{opened.problem, 0, false};
    if (opened.source)
        facts = {DocumentProblem::None, opened.source->pageCount(), opened.source->isPicture()};
    channel->post([facts](PreviewDocument &reader) { Q_EMIT reader.opened(facts); });
    while (opened.source) {
        const auto taken = channel->take();
        if (!taken)
            return;
        const auto &[request, number] = *taken;
        const ShouldStop isStale = [&] { return channel->latest != number; };
        const SidePicture picture =
            drawSide(*opened.source, request.look, request.side, request.pixelsPerPoint, isStale);
        if (isStale())
            continue;
        channel->post([picture, channel, number = number](PreviewDocument &reader) {
            if (channel->latest == number)
                Q_EMIT reader.drawn(picture);
        });
    }
}

} // namespace dialog
