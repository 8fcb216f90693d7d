#include "dialog/preview/preview_document.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace dialog {
namespace {

// A thread that draws notices soon that nobody waits any more; one that hangs never does.
constexpr std::chrono::milliseconds kPatience{500};

} // namespace

/// What a document and its thread share; lives as long as either.
struct PreviewDocument::Channel
{
    std::mutex mutex;
    std::condition_variable news;
    PreviewDocument *reader = nullptr; ///< null once nobody listens
    std::optional<SideRequest> next;
    std::atomic<int> latest = 0; ///< counts requests; drawing for an older one stops
    bool hasEnded = false;

    /// Has @p tell called on the main thread, unless nobody listens by then.
    void post(std::function<void(PreviewDocument &)> tell)
    {
        const std::lock_guard lock(mutex);
        if (!reader)
            return;
        QMetaObject::invokeMethod(
            reader, [reader = reader, tell = std::move(tell)] { tell(*reader); },
            Qt::QueuedConnection);
    }

    /// The next request and its number; nothing when nobody listens any more.
    std::optional<std::pair<SideRequest, int>> take()
    {
        std::unique_lock lock(mutex);
        news.wait(lock, [&] { return next || !reader; });
        if (!reader)
            return std::nullopt;
        const SideRequest request = *std::exchange(next, std::nullopt);
        return std::pair(request, latest.load());
    }
};

PreviewDocument::PreviewDocument(Opener opener, QObject *parent)
    : QObject(parent), opener_(std::move(opener))
{
}

PreviewDocument::~PreviewDocument()
{
    leaveDocument();
    if (!channel_)
        return;
    // In the usual case no thread outlives the program's end.
    std::unique_lock lock(channel_->mutex);
    channel_->news.wait_for(lock, kPatience, [&] { return channel_->hasEnded; });
}

void PreviewDocument::leaveDocument()
{
    if (!channel_)
        return;
    const std::lock_guard lock(channel_->mutex);
    channel_->reader = nullptr;
    ++channel_->latest;
    channel_->news.notify_all();
}

void PreviewDocument::open(const QString &path)
{
    leaveDocument();
    channel_ = std::make_shared<Channel>();
    channel_->reader = this;
    std::thread([channel = channel_, opener = opener_, path] {
        work(channel, opener, path);
        const std::lock_guard lock(channel->mutex);
        channel->hasEnded = true;
        channel->news.notify_all();
    }).detach();
}

void PreviewDocument::request(const SideRequest &request)
{
    if (!channel_)
        return;
    const std::lock_guard lock(channel_->mutex);
    channel_->next = request;
    ++channel_->latest;
    channel_->news.notify_all();
}

void PreviewDocument::withdraw()
{
    if (!channel_)
        return;
    const std::lock_guard lock(channel_->mutex);
    channel_->next.reset();
    ++channel_->latest;
}

void PreviewDocument::work(const std::shared_ptr<Channel> &channel, const Opener &opener,
                           const QString &path)
{
    const OpenedSource opened = opener(path);
    DocumentFacts facts{opened.problem, 0, false};
    if (opened.source)
        facts = {DocumentProblem::None, opened.source->pageCount(), opened.source->isPicture()};
    channel->post([facts, channel](PreviewDocument &reader) {
        if (reader.channel_ == channel)
            Q_EMIT reader.opened(facts);
    });
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
