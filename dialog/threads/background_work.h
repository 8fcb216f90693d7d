#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace dialog {

/// Work that may block for as long as a disk likes, done on a thread of its own, one after the
/// other in order. What is not done when the object goes is waited for, but no longer than its
/// patience; after that nobody waits, and it shares nothing that goes.
class BackgroundWork
{
public:
    explicit BackgroundWork(std::chrono::milliseconds patience);
    ~BackgroundWork();
    BackgroundWork(const BackgroundWork &) = delete;
    BackgroundWork &operator=(const BackgroundWork &) = delete;

    void add(std::function<void()> work);
    /// Waits until all is done that has been added; to be called on any thread, which may outlive
    /// the object.
    [[nodiscard]] std::function<void()> waiter() const;

private:
    struct Queue;

    std::shared_ptr<Queue> queue_;
    std::chrono::milliseconds patience_;
};

} // namespace dialog
