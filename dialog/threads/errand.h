#pragma once

#include "dialog/threads/thread_link.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace dialog {

using ErrandLink = ThreadLink<QObject>;

template <class Result>
QObject *startErrand(const std::shared_ptr<ErrandLink> &link, QObject *errand,
                     std::chrono::milliseconds deadline, std::function<Result()> work,
                     std::function<void(std::optional<Result>)> done)
{
    QObject::connect(errand, &QObject::destroyed, [link] { link->hangUp(); });
    const auto tell = [link, errand, done = std::move(done)](std::optional<Result> result) {
        link->hangUp();
        errand->deleteLater();
        done(std::move(result));
    };
    QTimer::singleShot(deadline, errand, [link, tell] {
        if (link->isListening())
            tell(std::nullopt);
    });
    link->start([link, tell, work = std::move(work)] {
        link->post([tell, result = std::optional<Result>(work())](QObject &) mutable {
            tell(std::move(result));
        });
    });
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
    auto *errand = new QObject(parent);
    return startErrand(std::make_shared<ErrandLink>(errand), errand, deadline, std::move(work),
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
    auto *errand = new QObject(parent);
    const auto link = std::make_shared<ErrandLink>(errand);
    const auto tell = [link, heard = std::move(heard)](const News &news) {
        link->post([heard, news](QObject &) { heard(news); });
    };
    return startErrand<Result>(
        link, errand, deadline, [work = std::move(work), tell] { return work(tell); },
        std::move(done));
}

} // namespace dialog
