#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace dialog {

/// Where the thread of an errand leaves its result; outlives whichever of both ends first.
template <class Result>
struct ErrandBox
{
    std::mutex mutex = {};
    QObject *errand = nullptr; ///< null once nobody waits any more
    std::optional<Result> result = {};
    bool isTold = false; ///< main thread only

    /// From the errand's thread to the main thread, while somebody waits.
    template <class Call>
    void post(Call call)
    {
        const std::lock_guard lock(mutex);
        if (errand)
            QMetaObject::invokeMethod(errand, std::move(call), Qt::QueuedConnection);
    }
};

template <class Result>
QObject *startErrand(const std::shared_ptr<ErrandBox<Result>> &box, QObject *parent,
                     std::chrono::milliseconds deadline, std::function<Result()> work,
                     std::function<void(std::optional<Result>)> done)
{
    auto *errand = new QObject(parent);
    box->errand = errand;
    QObject::connect(errand, &QObject::destroyed, [box] {
        const std::lock_guard lock(box->mutex);
        box->errand = nullptr;
    });
    const auto tell = [box, errand, done = std::move(done)] {
        if (std::exchange(box->isTold, true))
            return;
        errand->deleteLater();
        std::unique_lock lock(box->mutex);
        std::optional<Result> result = std::exchange(box->result, std::nullopt);
        lock.unlock();
        done(std::move(result));
    };
    QTimer::singleShot(deadline, errand, tell);
    std::thread([box, tell, work = std::move(work)] {
        std::optional<Result> result = work();
        {
            const std::lock_guard lock(box->mutex);
            box->result = std::move(result);
        }
        box->post(tell);
    }).detach();
    return errand;
}

/// Does work that may block for as long as a server likes, on a thread of its own that shares
/// nothing with the main thread. @p done is called once on the main thread: with the result, or
/// with nothing when the deadline comes first. Nobody can interrupt the thread; it is left to end
/// by itself and its result is dropped.
///
/// The answer is the errand as an object that belongs to @p parent. Deleting it abandons the
/// errand: @p done is not called any more.
template <class Result>
QObject *runErrand(QObject *parent, std::chrono::milliseconds deadline,
                   std::function<Result()> work, std::function<void(std::optional<Result>)> done)
{
    return startErrand(std::make_shared<ErrandBox<Result>>(), parent, deadline, std::move(work),
                       std::move(done));
}

/// The same for work that has something to tell before its end: @p heard is called with it on the
/// main thread, in order, until @p done is.
template <class Result, class News>
QObject *runErrand(QObject *parent, std::chrono::milliseconds deadline,
                   std::function<Result(const std::function<void(const News &)> &)> work,
                   std::function<void(const News &)> heard,
                   std::function<void(std::optional<Result>)> done)
{
    const auto box = std::make_shared<ErrandBox<Result>>();
    const auto tell = [box, heard = std::move(heard)](const News &news) {
        box->post([box, heard, news] {
            if (!box->isTold)
                heard(news);
        });
    };
    return startErrand<Result>(
        box, parent, deadline, [work = std::move(work), tell] { return work(tell); },
        std::move(done));
}

} // namespace dialog
