#include "platform/notification_center.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <memory>

using platform::Notification;
using platform::NotificationCenter;
using test::q;

namespace {

const QString kName = QStringLiteral("CHANGED");

class NotificationCenterTest : public testing::Test
{
protected:
    /// Registers a handler that writes its letter down.
    void observe(QObject *observer, const char *letter, const QString &name = kName)
    {
        center.addObserver(observer, name,
                           [this, letter](const Notification &) { calls += q(letter); });
    }

    NotificationCenter center;
    QObject a;
    QObject b;
    QObject c;
    QString calls = QStringLiteral("");
};

TEST_F(NotificationCenterTest, CallsObserversInTheOrderOfRegistration)
{
    observe(&b, "b");
    observe(&a, "a");
    observe(&c, "c");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "bac");
}

TEST_F(NotificationCenterTest, CallsAtOnceAndWithNameAndSender)
{
    Notification seen;
    center.addObserver(&a, kName, [&seen](const Notification &n) { seen = n; });
    center.post(kName, &b);
    EXPECT_SAME(seen.name, kName);
    EXPECT_EQ(seen.object, &b);
}

TEST_F(NotificationCenterTest, ComparesNamesExactly)
{
    observe(&a, "a");
    center.post(q("Changed"), nullptr);
    center.post(q(""), nullptr);
    center.post(QString(), nullptr);
    EXPECT_TEXT(calls, "");
}

TEST_F(NotificationCenterTest, TakesANullNameForEveryNotificationAndAnEmptyOneForItself)
{
    observe(&a, "a", QString());
    observe(&b, "b", q(""));
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "a");
    center.post(QString(), nullptr);
    EXPECT_TEXT(calls, "aa");
    center.post(q(""), nullptr);
    EXPECT_TEXT(calls, "aaab");
}

TEST_F(NotificationCenterTest, CallsAnObserverTwiceThatWasAddedTwice)
{
    observe(&a, "1");
    observe(&a, "2");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "12");
    center.removeObserver(&a);
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "12");
    EXPECT_EQ(center.observerCount(), 0);
}

TEST_F(NotificationCenterTest, ForgetsObserversThatAreDestroyed)
{
    auto mortal = std::make_unique<QObject>();
    observe(mortal.get(), "m");
    observe(&a, "a");
    EXPECT_EQ(center.observerCount(), 2);
    mortal.reset();
    EXPECT_EQ(center.observerCount(), 1);
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "a");
}

TEST_F(NotificationCenterTest, SkipsAnObserverThatIsDestroyedMeanwhile)
{
    auto mortal = std::make_unique<QObject>();
    center.addObserver(&a, kName, [&mortal](const Notification &) { mortal.reset(); });
    observe(mortal.get(), "m");
    observe(&b, "b");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "b");
}

TEST_F(NotificationCenterTest, SkipsAnObserverThatIsRemovedMeanwhile)
{
    center.addObserver(&a, kName, [this](const Notification &) { center.removeObserver(&b); });
    observe(&b, "b");
    observe(&c, "c");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "c");
}

TEST_F(NotificationCenterTest, SkipsAnObserverThatIsRemovedAndAddedAgainMeanwhile)
{
    center.addObserver(&a, kName, [this](const Notification &) {
        center.removeObserver(&b);
        observe(&b, "B");
    });
    observe(&b, "b");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "");
}

TEST_F(NotificationCenterTest, LeavesAnObserverThatIsAddedMeanwhileForTheNextTime)
{
    bool added = false;
    center.addObserver(&a, kName, [this, &added](const Notification &) {
        if (!std::exchange(added, true))
            observe(&b, "b");
    });
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "b");
}

TEST_F(NotificationCenterTest, SurvivesAnObserverThatRemovesItself)
{
    center.addObserver(&a, kName, [this, text = q("kept")](const Notification &) {
        center.removeObserver(&a);
        calls += text;
    });
    center.post(kName, nullptr);
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "kept");
}

TEST_F(NotificationCenterTest, DeliversANotificationWithinAnother)
{
    center.addObserver(&a, kName, [this](const Notification &) { center.post(q("INNER"), &a); });
    observe(&b, "i", q("INNER"));
    observe(&c, "o");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "io");
}

TEST_F(NotificationCenterTest, RemovesNobodyElse)
{
    observe(&a, "a");
    observe(&b, "b");
    center.removeObserver(&c);
    center.removeObserver(nullptr);
    center.removeObserver(&a);
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "b");
}

TEST_F(NotificationCenterTest, NeverCallsForANullObserver)
{
    observe(nullptr, "n");
    center.post(kName, nullptr);
    EXPECT_TEXT(calls, "");
    EXPECT_EQ(center.observerCount(), 0);
}

TEST(DefaultNotificationCenter, IsOne)
{
    EXPECT_EQ(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

} // namespace
