#pragma once

#include <condition_variable>
#include <mutex>

namespace test {

/// Lets a thread get stuck, and go on.
class Gate
{
public:
    void pass()
    {
        std::unique_lock lock(mutex_);
        ++arrived_;
        news_.notify_all();
        news_.wait(lock, [&] { return isOpen_; });
    }
    void open()
    {
        const std::lock_guard lock(mutex_);
        isOpen_ = true;
        news_.notify_all();
    }
    [[nodiscard]] int arrived()
    {
        const std::lock_guard lock(mutex_);
        return arrived_;
    }

private:
    std::mutex mutex_;
    std::condition_variable news_;
    bool isOpen_ = false;
    int arrived_ = 0;
};

} // namespace test
