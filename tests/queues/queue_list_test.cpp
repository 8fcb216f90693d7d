#include "dialog/printers/queue_list.h"
#include "dialog/texts.h"
#include "dialog/threads/errand.h"
#include "dialog/window/printer_words.h"
#include "platform/values.h"
#include "tests/queues/counting_proxy.h"
#include "tests/queues/silent_server.h"
#include "tests/queues/user_folders.h"
#include "tests/support/private_cupsd.h"

#include <QEventLoop>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace dialog;
using namespace test;

namespace {

void speak(const char *language)
{
    platform::setPreferredLanguages({q(language)});
    installTexts();
}

constexpr ServerTimes kShort{std::chrono::milliseconds(500), std::chrono::milliseconds(200),
                             std::chrono::milliseconds(2'000), std::chrono::milliseconds(2'000)};

QStringList namesOf(const std::vector<Queue> &queues)
{
    QStringList names;
    for (const Queue &queue : queues)
        names.append(queue.name);
    return names;
}

Queue queueIn(QueueState state, const char *reason = nullptr)
{
    Queue queue{q("ink")};
    queue.state = state;
    queue.reason = reason ? q(reason) : QString();
    return queue;
}

} // namespace

TEST(QueueStates, TheGravestOfSeveralIsTold)
{
    EXPECT_EQ(queueStateOf({}), QueueState::Idle);
    EXPECT_EQ(queueStateOf({false, true, true, {q("none")}}), QueueState::Printing);
    EXPECT_EQ(queueStateOf({false, true, true, {q("offline-report")}}), QueueState::Offline);
    EXPECT_EQ(queueStateOf({false, false, true, {q("media-low"), q("offline")}}),
              QueueState::Offline);
    EXPECT_EQ(queueStateOf({false, false, true, {q("offlinewise")}}), QueueState::Idle);
    EXPECT_EQ(queueStateOf({false, true, false, {q("offline-report")}}), QueueState::Rejecting);
    EXPECT_EQ(queueStateOf({true, true, false, {q("paused")}}), QueueState::Paused);
}

TEST(QueueStates, AreToldInThreeLanguages)
{
    struct Row
    {
        Queue queue;
        const char *english;
        const char *german;
        const char *japanese;
    };
    const Row rows[] = {
        {queueIn(QueueState::Idle), "Idle", "Bereit", "待機中"},
        {queueIn(QueueState::Printing), "Printing", "Druckt", "プリント中"},
        {queueIn(QueueState::Paused), "Paused", "Angehalten", "一時停止中"},
        {queueIn(QueueState::Paused, "no %1"), "Paused: no %1", "Angehalten: no %1",
         "一時停止中: no %1"},
        {queueIn(QueueState::Rejecting), "Takes no jobs", "Nimmt keine Aufträge an",
         "ジョブを受け付けていません"},
        {queueIn(QueueState::Offline), "Offline", "Offline", "オフライン"},
        {queueIn(QueueState::Unreachable), "Not reachable", "Nicht erreichbar", "接続できません"},
    };
    for (const Row &row : rows) {
        speak("en");
        EXPECT_TEXT(stateText(row.queue), row.english);
        speak("de");
        EXPECT_TEXT(stateText(row.queue), row.german);
        speak("ja");
        EXPECT_TEXT(stateText(row.queue), row.japanese);
    }
}

TEST(QueueOrder, LastUsedThenDefaultThenByNumbersInNames)
{
    std::vector<Queue> queues{{q("room10")}, {q("Room2")}, {q("attic")}, {q("lab")}};
    queues[3].isDefault = true;
    EXPECT_EQ(namesOf(inOrderOfUse(queues, {})),
              (QStringList{q("lab"), q("attic"), q("Room2"), q("room10")}));
    EXPECT_EQ(namesOf(inOrderOfUse(queues, q("room10"))),
              (QStringList{q("room10"), q("lab"), q("attic"), q("Room2")}));
    EXPECT_EQ(namesOf(inOrderOfUse(queues, q("gone"))).first(), q("lab"));
}

TEST(QueueFilter, EveryTypedWordMustOccurSomewhere)
{
    const Queue queue{q("ink"), q("Korvane S300"), q("Third floor")};
    EXPECT_TRUE(matchesFilter(queue, {}));
    EXPECT_TRUE(matchesFilter(queue, q("  ")));
    EXPECT_TRUE(matchesFilter(queue, q("KORV")));
    EXPECT_TRUE(matchesFilter(queue, q("third s300 ink")));
    EXPECT_FALSE(matchesFilter(queue, q("third t500")));
    EXPECT_FALSE(matchesFilter(queue, q("fourth")));
}

TEST(QueueListing, TellsStateReasonPlaceAndDefaultOfRealQueues)
{
    const UserFolders user;
    PrivateCupsd server;
    EXPECT_TRUE(listQueues({}).queues.empty());
    EXPECT_EQ(listQueues({}).problem.fault, ServerFault::None) << "no queues are no fault";
    for (const char *name : {"idle", "paused", "silentlypaused", "rejecting"})
        server.addQueue(q(name), samplePpd("Korvane-S300.ppd"));
    server.run(q("lpadmin"), {q("-p"), q("raw"), q("-E"), q("-v"), q("keep:/raw"), q("-D"),
                              q("Büro & Co"), q("-L"), q("Keller")});
    server.run(q("lpadmin"), {q("-d"), q("raw")});
    server.run(q("cupsdisable"), {q("-r"), q("Out of ink"), q("paused")});
    server.run(q("cupsdisable"), {q("silentlypaused")});
    server.run(q("cupsreject"), {q("rejecting")});

    const QueueListing listing = listQueues({});
    ASSERT_EQ(listing.problem.fault, ServerFault::None) << listing.problem.reason.toStdString();
    ASSERT_EQ(listing.queues.size(), 5U);
    const auto queue = [&](const char *name) { return *findQueue(listing.queues, q(name)); };
    EXPECT_EQ(queue("idle").state, QueueState::Idle);
    EXPECT_FALSE(queue("idle").isDefault);
    EXPECT_EQ(queue("paused").state, QueueState::Paused);
    EXPECT_TEXT(queue("paused").reason, "Out of ink");
    EXPECT_EQ(queue("silentlypaused").state, QueueState::Paused);
    EXPECT_NULL(queue("silentlypaused").reason);
    EXPECT_EQ(queue("rejecting").state, QueueState::Rejecting);
    EXPECT_TRUE(queue("raw").isDefault);
    EXPECT_TEXT(queue("raw").info, "Büro & Co");
    EXPECT_TEXT(queue("raw").location, "Keller");
}

TEST(QueueListing, OfManyQueuesComesInPiecesWithThreeRequests)
{
    const UserFolders user;
    PrivateCupsd server;
    constexpr int kQueues = 500;
    QByteArray printers;
    for (int i = 1; i <= kQueues; ++i)
        printers += "<Printer room" + QByteArray::number(i) +
                    ">\nDeviceURI keep:/x\nState Idle\nAccepting Yes\n</Printer>\n";
    server.stop();
    QFile file(server.folder() + q("/root/printers.conf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(printers);
    file.close();
    server.restart();
    server.run(q("lpadmin"), {q("-d"), q("room77")});

    const CountingProxy proxy(server.address());
    std::vector<QueueListing> soFar;
    const QueueListing whole =
        listQueues({}, [&](const QueueListing &listing) { soFar.push_back(listing); });
    EXPECT_EQ(proxy.requests().size(), 3) << proxy.requests().join(u'\n').toStdString();
    ASSERT_EQ(soFar.size(), 2U);
    EXPECT_TEXT(soFar[0].defaultName, "room77");
    EXPECT_TRUE(soFar[0].queues.empty());
    EXPECT_EQ(soFar[1].queues.size(), std::size_t{kFirstQueues});
    EXPECT_FALSE(soFar[1].isWhole);
    EXPECT_TRUE(whole.isWhole);
    ASSERT_EQ(whole.queues.size(), std::size_t{kQueues});
    QStringList names = namesOf(whole.queues);
    EXPECT_EQ(names.removeDuplicates(), 0);
    EXPECT_TRUE(findQueue(whole.queues, q("room77"))->isDefault);
}

TEST(QueueListing, TellsASilentServerFromADeadOne)
{
    SilentServer server;
    const QueueListing silent = listQueues(kShort);
    EXPECT_EQ(silent.problem.fault, ServerFault::Silent);
    EXPECT_TRUE(problemText(silent.problem).contains(QString::fromLatin1(server.address())));
    server.die();
    const QueueListing dead = listQueues(kShort);
    EXPECT_EQ(dead.problem.fault, ServerFault::Unreachable);
    EXPECT_NE(problemText(dead.problem), problemText(silent.problem));
}

TEST(QueueWatch, AsksAgainAndAgain)
{
    const auto count = std::make_shared<std::atomic<int>>(0);
    QueueWatch watch(
        [count](const ListingHeard &) { return QueueListing{{{QString::number(++*count)}}}; },
        {std::chrono::milliseconds(5'000), std::chrono::milliseconds(1)});
    QStringList seen;
    QEventLoop loop;
    QObject::connect(&watch, &QueueWatch::answered, [&](const QueueListing &listing) {
        seen += namesOf(listing.queues);
        if (seen.size() == 3)
            loop.quit();
    });
    watch.ask();
    loop.exec();
    EXPECT_EQ(seen, (QStringList{q("1"), q("2"), q("3")}));
}

TEST(QueueWatch, GivesUpAServerThatNeverEndsAndDropsItsLateAnswer)
{
    struct Gate
    {
        std::mutex mutex;
        std::condition_variable opened;
        bool isOpen = false;
    };
    const auto gate = std::make_shared<Gate>();
    QueueWatch watch(
        [gate](const ListingHeard &) {
            std::unique_lock lock(gate->mutex);
            gate->opened.wait(lock, [&] { return gate->isOpen; });
            return QueueListing{{{q("late")}}};
        },
        {std::chrono::milliseconds(20), std::chrono::hours(1)});
    QSignalSpy answers(&watch, &QueueWatch::answered);
    std::vector<QueueListing> listings;
    QObject::connect(&watch, &QueueWatch::answered,
                     [&](const QueueListing &listing) { listings.push_back(listing); });
    watch.ask();
    ASSERT_TRUE(answers.wait());
    EXPECT_EQ(listings.front().problem.fault, ServerFault::Silent);
    {
        const std::lock_guard lock(gate->mutex);
        gate->isOpen = true;
    }
    gate->opened.notify_all();
    EXPECT_FALSE(answers.wait(50)) << "what comes too late is dropped";
}

TEST(Errand, TellsNewsInOrderAndNoneAfterItsEnd)
{
    QObject owner;
    QStringList heard;
    QEventLoop loop;
    runErrand<int, int>(
        &owner, std::chrono::seconds(10),
        [](const std::function<void(const int &)> &tell) {
            tell(1);
            tell(2);
            return 3;
        },
        [&](const int &news) { heard.append(QString::number(news)); },
        [&](std::optional<int> result) {
            heard.append(QString::number(result.value_or(-1)));
            loop.quit();
        });
    loop.exec();
    EXPECT_EQ(heard, (QStringList{q("1"), q("2"), q("3")}));
}

TEST(Errand, OutlivesWhoeverSentIt)
{
    auto owner = std::make_unique<QObject>();
    const auto started = std::make_shared<std::atomic<bool>>(false);
    bool isTold = false;
    runErrand<int>(
        owner.get(), std::chrono::seconds(10),
        [started] {
            *started = true;
            return 1;
        },
        [&](std::optional<int>) { isTold = true; });
    owner.reset();
    while (!*started)
        QThread::msleep(1);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isTold);
}
