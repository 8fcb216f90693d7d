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
};

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
    auto *errand = new QObject(parent);
    const auto box = std::make_shared<ErrandBox<Result>>();
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
        const std::lock_guard lock(box->mutex);
        if (!box->errand)
            return;
        box->result = std::move(result);
        QMetaObject::invokeMethod(box->errand, tell, Qt::QueuedConnection);
    }).detach();
    return errand;
}

} // namespace dialog
