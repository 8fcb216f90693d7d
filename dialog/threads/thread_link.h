#pragma once

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace dialog {

/// Between an object of the main thread and a thread that works for it. Either may end first, so
/// that each holds the link with a shared_ptr of its own.
template <class Owner>
class ThreadLink : public std::enable_shared_from_this<ThreadLink<Owner>>
{
public:
    explicit ThreadLink(Owner *owner) : owner_(owner) {}
    ThreadLink(const ThreadLink &) = delete;
    ThreadLink &operator=(const ThreadLink &) = delete;

    /// Does the work on a thread of its own, which nobody can interrupt. Main thread, once.
    void start(std::function<void()> work)
    {
        std::thread([link = this->shared_from_this(), work = std::move(work)] {
            work();
            const std::lock_guard lock(link->mutex_);
            link->hasEnded_ = true;
            link->ending_.notify_all();
        }).detach();
    }

    /// From any thread: has @p tell called on the main thread, unless the owner has hung up by
    /// then.
    template <class Tell>
    void post(Tell tell)
    {
        const std::lock_guard lock(mutex_);
        if (!owner_)
            return;
        auto call = [link = this->shared_from_this(), tell = std::move(tell)]() mutable {
            if (link->owner_)
                tell(*link->owner_);
        };
        QMetaObject::invokeMethod(owner_, std::move(call), Qt::QueuedConnection);
    }

    // On the main thread, by the owner.

    [[nodiscard]] bool isListening() const { return owner_ != nullptr; }
    /// What has been posted and not told is dropped. Must come before the owner goes.
    void hangUp()
    {
        const std::lock_guard lock(mutex_);
        owner_ = nullptr;
    }
    /// Gives the thread that long to end.
    void waitForEnd(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(mutex_);
        ending_.wait_for(lock, patience, [this] { return hasEnded_; });
    }

private:
    std::mutex mutex_;
    std::condition_variable ending_;
    Owner *owner_; ///< null once nobody listens; written by the main thread alone
    bool hasEnded_ = false;
};

} // namespace dialog
