#include "dialog/threads/background_work.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace dialog {

struct BackgroundWork::Queue
{
    std::mutex mutex;
    std::condition_variable idle;
    std::deque<std::function<void()>> waiting;
    bool isRunning = false;

    /// On the thread, until there is nothing more to do.
    void run()
    {
        std::unique_lock lock(mutex);
        while (!waiting.empty()) {
            const std::function<void()> work = std::move(waiting.front());
            waiting.pop_front();
            lock.unlock();
            work();
            lock.lock();
        }
        isRunning = false;
        idle.notify_all();
    }
};

BackgroundWork::BackgroundWork(std::chrono::milliseconds patience)
    : queue_(std::make_shared<Queue>()), patience_(patience)
{
}

BackgroundWork::~BackgroundWork()
{
    std::unique_lock lock(queue_->mutex);
    queue_->idle.wait_for(lock, patience_, [this] { return !queue_->isRunning; });
}

void BackgroundWork::add(std::function<void()> work)
{
    const std::lock_guard lock(queue_->mutex);
    queue_->waiting.push_back(std::move(work));
    if (!std::exchange(queue_->isRunning, true))
        std::thread([queue = queue_] { queue->run(); }).detach();
}

std::function<void()> BackgroundWork::waiter() const
{
    return [queue = queue_] {
        std::unique_lock lock(queue->mutex);
        queue->idle.wait(lock, [&] { return !queue->isRunning; });
    };
}

} // namespace dialog
