#include "dialog/threads/background_work.h"

#include <gtest/gtest.h>

#include <future>
#include <mutex>
#include <vector>

using namespace dialog;

namespace {

constexpr std::chrono::minutes kLong{1};

TEST(BackgroundWork, IsDoneInOrderAndWaitedFor)
{
    std::vector<int> done;
    {
        BackgroundWork work(kLong);
        for (int i = 0; i < 20; ++i)
            work.add([&done, i] { done.push_back(i); });
    }
    ASSERT_EQ(done.size(), 20U);
    EXPECT_TRUE(std::is_sorted(done.begin(), done.end()));
}

TEST(BackgroundWork, CanBeWaitedForOnAnotherThread)
{
    BackgroundWork work(kLong);
    std::promise<void> go;
    bool isDone = false;
    work.add([&isDone, start = go.get_future().share()] {
        start.wait();
        isDone = true;
    });
    std::future<bool> seen = std::async(std::launch::async, [&isDone, wait = work.waiter()] {
        wait();
        return isDone;
    });
    go.set_value();
    EXPECT_TRUE(seen.get());
}

TEST(BackgroundWork, ThatHangsIsLeftAlone)
{
    const auto go = std::make_shared<std::promise<void>>();
    const auto ended = std::make_shared<std::promise<void>>();
    {
        BackgroundWork work(std::chrono::milliseconds(1));
        work.add([ended, start = go->get_future().share()] {
            start.wait();
            ended->set_value();
        });
    } // or the test never ends
    go->set_value();
    ended->get_future().wait();
}

} // namespace
