#include "dialog/threads/thread_link.h"

#include <QTest>

#include <gtest/gtest.h>

#include <future>
#include <memory>

namespace dialog {
namespace {

struct Owner : QObject
{
    int told = 0;
    QThread *thread = nullptr;
};
using Link = ThreadLink<Owner>;

constexpr auto kPatience = std::chrono::seconds(30);

TEST(ThreadLink, TellsTheOwnerOnTheMainThread)
{
    Owner owner;
    const auto link = std::make_shared<Link>(&owner);
    link->start([link] {
        link->post([](Owner &told) {
            ++told.told;
            told.thread = QThread::currentThread();
        });
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return owner.told > 0; }, 30'000));
    EXPECT_EQ(owner.told, 1);
    EXPECT_EQ(owner.thread, owner.QObject::thread());
}

TEST(ThreadLink, DropsWhatIsOnItsWayWhenTheOwnerHangsUp)
{
    Owner owner;
    const auto link = std::make_shared<Link>(&owner);
    link->start([link] { link->post([](Owner &told) { ++told.told; }); });
    link->waitForEnd(kPatience); // posted by now, and not told
    link->hangUp();
    QCoreApplication::processEvents();
    EXPECT_EQ(owner.told, 0);
}

TEST(ThreadLink, DropsWhatIsPostedAfterTheOwnerHasGone)
{
    auto owner = std::make_unique<Owner>();
    const auto link = std::make_shared<Link>(owner.get());
    std::promise<void> gone;
    link->start([link, hasGone = gone.get_future().share()] {
        hasGone.wait();
        link->post([](Owner &told) { ++told.told; });
    });
    link->hangUp();
    owner.reset();
    gone.set_value();
    link->waitForEnd(kPatience);
    QCoreApplication::processEvents();
    EXPECT_FALSE(link->isListening());
}

TEST(ThreadLink, WaitsForTheWorkAndWhatItTouches)
{
    Owner owner;
    const auto link = std::make_shared<Link>(&owner);
    std::promise<void> begin;
    bool isDone = false;
    link->start([&isDone, begun = begin.get_future().share()] {
        begun.wait();
        QThread::msleep(20);
        isDone = true;
    });
    begin.set_value();
    link->waitForEnd(kPatience);
    EXPECT_TRUE(isDone);
}

} // namespace
} // namespace dialog
