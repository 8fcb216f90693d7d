#include "dialog/queue_dialog.h"
#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "dialog/window/printer_picker.h"
#include "platform/controls/pop_up_button.h"
#include "tests/queues/counting_proxy.h"
#include "tests/queues/silent_server.h"
#include "tests/queues/user_folders.h"
#include "tests/support/private_cupsd.h"

#include <QAbstractItemView>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <cups/cups.h>

#include <atomic>
#include <future>
#include <thread>

using namespace dialog;
using namespace test;

namespace {

constexpr int kPatienceMilliseconds = 20'000;

/// The dialog on a print server, used as a person does.
class Visit
{
public:
    explicit Visit(QueueSources sources = quick(), const QString &queue = {},
                   std::shared_ptr<Memory> memory = {})
    {
        PrintCase printCase;
        printCase.memory = std::move(memory);
        printCase.root = q(KORVANE_ROOT_DIR);
        printCase.document = q(KORVANE_SAMPLE_DOCUMENT);
        printCase.jobFolder = jobs_.path();
        printCase.queue = queue;
        files_ = printCase.files;
        EXPECT_NULL(PrintDialog::prepare(printCase));
        dialog_ = std::make_unique<QueueDialog>(printCase, std::move(sources));
    }

    /// Asks the server all the time.
    static QueueSources quick()
    {
        QueueSources sources = serverSources();
        sources.emptyWindowDelay = {};
        sources.lastUsedDeadline = std::chrono::minutes(1);
        sources.listTimes.interval = std::chrono::milliseconds(10);
        return sources;
    }
    /// Asks it once.
    static QueueSources once()
    {
        QueueSources sources = serverSources();
        sources.emptyWindowDelay = {};
        sources.lastUsedDeadline = std::chrono::minutes(1);
        sources.listTimes.interval = std::chrono::hours(1);
        return sources;
    }

    void untilWritten() const { files_->waiter()(); }
    [[nodiscard]] BackgroundWork &files() const { return *files_; }
    [[nodiscard]] QueueDialog &dialog() const { return *dialog_; }
    [[nodiscard]] PrintWindow &window() const { return dialog_->window(); }
    [[nodiscard]] QString setting(const char *key) const
    {
        return dialog_->printDialog()->host().settings().value(q(key)).toString();
    }
    [[nodiscard]] PpdDocument &printer() const { return dialog_->printDialog()->printer(); }
    [[nodiscard]] QStringList notices() const { return window().notices().texts(); }
    [[nodiscard]] QString waiting() const
    {
        const auto *label = window().findChild<QLabel *>(q("waiting"));
        return label->isVisible() ? label->text() : QString();
    }
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return window().findChild<QPushButton *>(q(name));
    }
    [[nodiscard]] PopUpButton *popUp(const char *name) const
    {
        return window().findChild<PopUpButton *>(q(name));
    }

    template <class Condition>
    [[nodiscard]] bool until(const Condition &condition) const
    {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < kPatienceMilliseconds)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents,
                                            50);
        return condition();
    }
    [[nodiscard]] bool untilReady(const char *queue) const
    {
        return until([&] {
            return dialog_->printDialog() && dialog_->picker().selected() == q(queue) &&
                   button("printButton")->isEnabled();
        });
    }
    [[nodiscard]] bool untilNotice(const char *part) const
    {
        return until([&] { return notices().join(u'\n').contains(q(part)); });
    }
    void choose(const char *control, const char *keyword) const
    {
        PopUpButton *popUpButton = popUp(control);
        ASSERT_TRUE(popUpButton && popUpButton->isVisible()) << control;
        const int index = popUpButton->findData(q(keyword));
        ASSERT_GE(index, 0) << keyword;
        EXPECT_NULL(replay::input::choose(popUpButton, index));
        QCoreApplication::processEvents();
    }

private:
    QTemporaryDir jobs_;
    std::shared_ptr<BackgroundWork> files_;
    std::unique_ptr<QueueDialog> dialog_;
};

class QueueDialogs : public testing::Test
{
protected:
    void addQueues()
    {
        server.addQueue(q("ink"), samplePpd("Korvane-S300.ppd"));
        server.addQueue(q("toner"), samplePpd("Korvane-T500.ppd"));
        server.run(q("lpadmin"), {q("-p"), q("raw"), q("-E"), q("-v"), q("keep:/raw")});
        server.run(q("lpadmin"), {q("-d"), q("toner")});
    }

    UserFolders user;
    PrivateCupsd server;
};

} // namespace

TEST_F(QueueDialogs, OpenAtOnceAndShowTheDefaultPrintersPanels)
{
    addQueues();
    const Visit run;
    EXPECT_TRUE(run.window().isVisible());
    EXPECT_TRUE(run.waiting().startsWith(q("Connecting to 127.0.0.1:")));
    EXPECT_FALSE(run.button("printButton")->isEnabled());
    ASSERT_TRUE(run.untilReady("toner"));
    EXPECT_NULL(run.waiting());
    EXPECT_FALSE(run.dialog().printDialog()->panels().loaded().empty());
    EXPECT_EQ(run.dialog().picker().offered(), (QStringList{q("toner"), q("ink"), q("raw")}));
}

TEST_F(QueueDialogs, ShowNoEmptyWindowBeforeAPrinterThatComesSoon)
{
    addQueues();
    QueueSources sources = Visit::once();
    sources.emptyWindowDelay = std::chrono::hours(1);
    const Visit run(sources, q("ink"));
    EXPECT_FALSE(run.window().isVisible());
    ASSERT_TRUE(run.untilReady("ink"));
    EXPECT_TRUE(run.window().isVisible());
}

TEST_F(QueueDialogs, ShowAnEmptyWindowWhereAPrinterTakesItsTime)
{
    addQueues();
    QueueSources sources = Visit::once();
    sources.emptyWindowDelay = std::chrono::milliseconds(1);
    sources.printer = [](const QString &) {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        return QueuePrinter{QueuePrinter::Outcome::ServerFailed, {}, {ServerFault::Silent}, {}};
    };
    const Visit run(sources);
    EXPECT_TRUE(run.until([&] { return run.window().isVisible(); }));
    EXPECT_FALSE(run.dialog().printDialog());
}

TEST_F(QueueDialogs, OpenWithTheNamedQueueElseTheOneUsedLast)
{
    addQueues();
    rememberLastUsedQueue(q("raw"));
    EXPECT_TRUE(Visit(Visit::quick(), q("ink")).untilReady("ink"));
    const Visit run;
    QSignalSpy ready(&run.dialog(), &QueueDialog::ready);
    EXPECT_TRUE(run.until([&] { return !ready.isEmpty(); }));
    EXPECT_TEXT(ready.first().first().toString(), "raw");
    rememberLastUsedQueue(q("sold"));
    EXPECT_TRUE(Visit().untilReady("toner")) << "which is gone: the default";
}

TEST_F(QueueDialogs, OpenWithTheDefaultWhereTheHomeDoesNotAnswer)
{
    addQueues();
    std::promise<void> answer;
    QueueSources sources = Visit::quick();
    sources.lastUsedDeadline = std::chrono::milliseconds(1);
    sources.lastUsed = [gate = answer.get_future().share()] {
        gate.wait();
        return q("raw");
    };
    const Visit run(sources);
    EXPECT_TRUE(run.untilReady("toner"));
    answer.set_value();
}

TEST_F(QueueDialogs, ConnectToNoOtherQueueBeforeItIsKnownWhichOneWasUsedLast)
{
    addQueues();
    std::promise<void> answer;
    const auto listings = std::make_shared<std::atomic<int>>(0);
    QueueSources sources = Visit::quick();
    sources.list = [listings, list = sources.list](const ListingHeard &heard) {
        ++*listings;
        return list(heard);
    };
    sources.lastUsed = [gate = answer.get_future().share()] {
        gate.wait();
        return q("raw");
    };
    const Visit run(sources);
    QSignalSpy ready(&run.dialog(), &QueueDialog::ready);
    EXPECT_TRUE(run.until([&] { return *listings > 1; })) << "so that the first has been heard";
    EXPECT_TRUE(run.dialog().picker().selected().isEmpty());
    answer.set_value();
    EXPECT_TRUE(run.until([&] { return !ready.isEmpty(); }));
    EXPECT_TEXT(ready.first().first().toString(), "raw");
}

TEST_F(QueueDialogs, PrintOnWhereTheQueueCannotBeRememberedYet)
{
    addQueues();
    std::promise<void> answer;
    const Visit run(Visit::quick(), q("ink"));
    run.files().add([gate = answer.get_future().share()] { gate.wait(); });
    ASSERT_TRUE(run.untilReady("ink"));
    QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
    run.dialog().printDialog()->print(Review::Skip);
    EXPECT_TRUE(run.until([&] { return !made.isEmpty(); }));
    EXPECT_NULL(lastUsedQueue());
    answer.set_value();
    run.untilWritten();
    EXPECT_TEXT(lastUsedQueue(), "ink");
}

TEST_F(QueueDialogs, RememberTheQueueThatPrinted)
{
    addQueues();
    EXPECT_NULL(lastUsedQueue());
    const Visit run(Visit::quick(), q("ink"));
    ASSERT_TRUE(run.untilReady("ink"));
    QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
    run.dialog().printDialog()->print(Review::Skip);
    ASSERT_TRUE(run.until([&] { return !made.isEmpty(); }))
        << run.notices().join(u'\n').toStdString();
    run.untilWritten();
    EXPECT_TEXT(lastUsedQueue(), "ink");
    EXPECT_TRUE(server.waitForJob(made.first().first().value<JobRecord>().id.toInt()));
}

TEST_F(QueueDialogs, PrintToAQueueWithoutPpdAndSayThatThereAreNoPanels)
{
    addQueues();
    const Visit run(Visit::quick(), q("raw"));
    ASSERT_TRUE(run.untilReady("raw"));
    EXPECT_TRUE(run.notices().join(u'\n').contains(q("This printer has no PPD")));
    EXPECT_TRUE(run.dialog().printDialog()->panels().loaded().empty());
    QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
    run.button("printButton")->click();
    ASSERT_TRUE(run.until([&] { return !made.isEmpty(); }))
        << run.notices().join(u'\n').toStdString();
    const int job = made.first().first().value<JobRecord>().id.toInt();
    ASSERT_TRUE(server.waitForJob(job));
    EXPECT_EQ(server.document(job), fileBytes(q(KORVANE_SAMPLE_DOCUMENT)));
}

TEST_F(QueueDialogs, RebuildThePanelsAndCarryChoicesAlong)
{
    addQueues();
    server.addQueue(q("ink2"), samplePpd("Korvane-S300.ppd"));
    const Visit run(Visit::quick(), q("ink"));
    ASSERT_TRUE(run.untilReady("ink"));
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().size() == 4; }));
    run.choose("ibPaperType", "IronOn");
    run.choose("ibPrintQuality", "Best");
    run.dialog().printDialog()->host().setSetting(q("copies"), q("3"));
    const QPointer<QWidget> formerView = run.window().view(0);

    run.choose("printerPopUp", "ink2");
    ASSERT_TRUE(run.untilReady("ink2"));
    EXPECT_FALSE(formerView) << "the former printer's panel is gone";
    EXPECT_SAME(run.printer().marked(q("MediaType")), q("IronOn"));
    EXPECT_SAME(run.popUp("ibPaperType")->currentData().toString(), q("IronOn"));
    EXPECT_TRUE(run.notices().isEmpty()) << run.notices().join(u'\n').toStdString();
    EXPECT_SAME(run.setting("copies"), q("3"));
    EXPECT_SAME(run.setting("mirror"), q("true")) << "iron-on goes along, and so does its rule";

    run.choose("printerPopUp", "raw");
    ASSERT_TRUE(run.untilReady("raw"));
    const QString told = run.notices().join(u'\n');
    EXPECT_TRUE(told.contains(q("does not have what you chose"))) << told.toStdString();
    EXPECT_TRUE(told.contains(q("Paper Type: Iron-On"))) << told.toStdString();
    EXPECT_TRUE(told.contains(q("Flip horizontally"))) << told.toStdString();
    EXPECT_SAME(run.setting("copies"), q("3"));
    EXPECT_NULL(run.setting("mirror"));

    run.choose("printerPopUp", "ink");
    ASSERT_TRUE(run.untilReady("ink"));
    EXPECT_SAME(run.printer().marked(q("MediaType")), q("IronOn")) << "kept for the way back";
    EXPECT_SAME(run.printer().marked(q("PrintQuality")), q("Best"));
    EXPECT_SAME(run.setting("mirror"), q("true"));
}

namespace {

std::shared_ptr<Memory> patientMemory()
{
    constexpr std::chrono::minutes kLong{1};
    return std::make_shared<Memory>(Memory::Times{.reading = kLong, .writing = kLong});
}

void printAndWait(const Visit &run)
{
    QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
    run.dialog().printDialog()->print(Review::Skip);
    ASSERT_TRUE(run.until([&] { return !made.isEmpty(); }))
        << run.notices().join(u'\n').toStdString();
}

} // namespace

TEST_F(QueueDialogs, RememberTheLastSettingsOfEachQueueAndTheWindow)
{
    addQueues();
    {
        const Visit run(Visit::once(), q("ink"), patientMemory());
        ASSERT_TRUE(run.untilReady("ink"));
        run.choose("ibPaperType", "IronOn");
        printAndWait(run);
        run.window().windowHandle()->resize(790, 780);
        ASSERT_TRUE(run.until([&] { return run.window().width() == 790; }));
        run.button("cancelButton")->click();
    }
    {
        const Visit run(Visit::once(), q("toner"), patientMemory());
        ASSERT_TRUE(run.untilReady("toner"));
        EXPECT_TEXT(run.popUp("presetPopUp")->currentText(), "Default Settings");
        EXPECT_EQ(run.window().size(), QSize(790, 780));
        run.dialog().printDialog()->host().setSetting(q("number-up"), q("4"));
        printAndWait(run);
    }
    const Visit run(Visit::once(), q("ink"), patientMemory());
    ASSERT_TRUE(run.untilReady("ink"));
    EXPECT_TEXT(run.popUp("presetPopUp")->currentText(), "Last Used Settings");
    EXPECT_SAME(run.printer().marked(q("MediaType")), q("IronOn"));
    EXPECT_NULL(run.setting("number-up"));
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().size() == 3; }));
    run.choose("printerPopUp", "toner");
    ASSERT_TRUE(run.untilReady("toner"));
    EXPECT_SAME(run.setting("number-up"), q("4"));
    EXPECT_SAME(run.setting("mirror"), QString()) << "the ink printer's last job's, not a choice";
    EXPECT_TRUE(run.notices().isEmpty()) << run.notices().join(u'\n').toStdString();
}

TEST_F(QueueDialogs, PutWhatAPersonChoosesOnTopOfTheLastSettingsOfTheNextPrinter)
{
    addQueues();
    server.addQueue(q("ink2"), samplePpd("Korvane-S300.ppd"));
    {
        const Visit run(Visit::once(), q("ink2"), patientMemory());
        ASSERT_TRUE(run.untilReady("ink2"));
        run.choose("ibPrintQuality", "Best");
        run.dialog().printDialog()->host().setSetting(q("number-up"), q("4"));
        printAndWait(run);
    }
    const Visit run(Visit::once(), q("ink"), patientMemory());
    ASSERT_TRUE(run.untilReady("ink"));
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().size() == 4; }));
    run.choose("ibPaperType", "IronOn");
    run.dialog().printDialog()->host().setSetting(q("number-up"), q("2"));
    run.choose("printerPopUp", "ink2");
    ASSERT_TRUE(run.untilReady("ink2"));
    EXPECT_SAME(run.printer().marked(q("PrintQuality")), q("Best"));
    EXPECT_SAME(run.printer().marked(q("MediaType")), q("IronOn"));
    EXPECT_SAME(run.setting("number-up"), q("2"));
    EXPECT_TEXT(run.popUp("presetPopUp")->currentText(), "Last Used Settings");
    EXPECT_TRUE(run.window().findChild<QWidget *>(q("presetChanged"))->isVisible());
}

TEST_F(QueueDialogs, KeepThePanelInFrontFromPrinterToPrinterAndToTheNextOpening)
{
    addQueues();
    const auto frontOf = [](const Visit &run) {
        const PanelStack &panels = run.dialog().printDialog()->panels();
        return panels.kind(panels.frontIndex());
    };
    {
        const Visit run(Visit::once(), q("ink"), patientMemory());
        ASSERT_TRUE(run.untilReady("ink"));
        ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().size() == 3; }));
        PanelStack &panels = run.dialog().printDialog()->panels();
        panels.bringForward(panels.indexOf(q("summary")));
        run.choose("printerPopUp", "toner");
        ASSERT_TRUE(run.untilReady("toner"));
        EXPECT_TEXT(frontOf(run), "summary");
        run.button("cancelButton")->click();
    }
    const Visit run(Visit::once(), q("ink"), patientMemory());
    ASSERT_TRUE(run.untilReady("ink"));
    EXPECT_TEXT(frontOf(run), "summary");
}

TEST_F(QueueDialogs, ResetToWhatIsSavedForTheQueue)
{
    addQueues();
    ASSERT_TRUE(QDir().mkpath(user.path("home/.cups")));
    QFile saved(user.path("home/.cups/lpoptions"));
    ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
    saved.write("Dest ink MediaType=IronOn\n");
    saved.close();
    const Visit run(Visit::once(), q("ink"));
    ASSERT_TRUE(run.untilReady("ink"));
    const auto isChanged = [&] {
        return run.window().findChild<QWidget *>(q("presetChanged"))->isVisible();
    };
    EXPECT_FALSE(isChanged()) << "what the panels make of it belongs to it";
    run.choose("ibPaperType", "Automatic");
    EXPECT_TRUE(isChanged());
    run.button("resetButton")->click();
    EXPECT_SAME(run.printer().marked(q("MediaType")), q("IronOn"));
    EXPECT_TEXT(run.popUp("presetPopUp")->currentText(), "Default Settings");
    EXPECT_FALSE(isChanged());
}

TEST_F(QueueDialogs, DoNotCarryWhatAUserHasSavedForOneQueue)
{
    addQueues();
    server.addQueue(q("ink2"), samplePpd("Korvane-S300.ppd"));
    ASSERT_TRUE(QDir().mkpath(user.path("home/.cups")));
    QFile saved(user.path("home/.cups/lpoptions"));
    ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
    saved.write("Dest ink MediaType=IronOn\n");
    saved.close();
    const Visit run(Visit::quick(), q("ink"));
    ASSERT_TRUE(run.untilReady("ink"));
    EXPECT_SAME(run.popUp("ibPaperType")->currentData().toString(), q("IronOn"));
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().size() == 4; }));
    run.choose("printerPopUp", "ink2");
    ASSERT_TRUE(run.untilReady("ink2"));
    EXPECT_SAME(run.printer().marked(q("MediaType")), q("Automatic"));
}

TEST_F(QueueDialogs, ShowChangesAtTheServerWhileTheyAreOpen)
{
    addQueues();
    const Visit run(Visit::quick(), q("ink"));
    ASSERT_TRUE(run.untilReady("ink"));
    const auto state = [&] { return run.window().findChild<QLabel *>(q("printerState"))->text(); };
    ASSERT_TRUE(run.until([&] { return state() == q("Idle"); }));
    server.run(q("cupsdisable"), {q("-r"), q("Lunch"), q("ink")});
    EXPECT_TRUE(run.until([&] { return state() == q("Paused: Lunch"); }));
    server.addQueue(q("new"), samplePpd("Korvane-T500.ppd"));
    EXPECT_TRUE(run.until([&] { return run.dialog().picker().offered().contains(q("new")); }));
    server.run(q("lpadmin"), {q("-x"), q("ink")});
    EXPECT_TRUE(run.untilNotice("There is no printer ink"));
    EXPECT_TRUE(run.dialog().printDialog()) << "what was chosen is still there";
}

TEST_F(QueueDialogs, NeedFourRequestsAndOneDownload)
{
    addQueues();
    QThread::msleep(1'100); // the server's clock counts seconds
    CountingProxy proxy(server.address());
    {
        const Visit run(Visit::once());
        ASSERT_TRUE(run.untilReady("toner"));
        EXPECT_EQ(proxy.requests().size(), 4) << proxy.requests().join(u'\n').toStdString();
        EXPECT_EQ(proxy.downloads(), 1);
    }
    proxy.forget();
    {
        const Visit run(Visit::once());
        ASSERT_TRUE(run.untilReady("toner"));
        EXPECT_EQ(proxy.requests().size(), 4) << proxy.requests().join(u'\n').toStdString();
        EXPECT_EQ(proxy.downloads(), 0) << "the cache has it, and the server nothing newer";
    }
}

TEST_F(QueueDialogs, SayThatANamedQueueIsNotThereAndTakeAnother)
{
    addQueues();
    const Visit run(Visit::quick(), q("nobody"));
    ASSERT_TRUE(run.untilNotice("There is no printer nobody at the print server."));
    EXPECT_FALSE(run.button("printButton")->isEnabled());
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().contains(q("ink")); }));
    run.choose("printerPopUp", "ink");
    EXPECT_TRUE(run.untilReady("ink"));
    EXPECT_TRUE(run.notices().isEmpty());
}

TEST_F(QueueDialogs, SayThatAServerHasNoPrintersAndFindOneThatComes)
{
    const Visit run;
    ASSERT_TRUE(run.untilNotice("has no printers"));
    EXPECT_FALSE(run.button("printButton")->isEnabled());
    server.addQueue(q("ink"), samplePpd("Korvane-S300.ppd"));
    EXPECT_TRUE(run.untilReady("ink"));
    EXPECT_TRUE(run.notices().isEmpty()) << run.notices().join(u'\n').toStdString();
}

TEST_F(QueueDialogs, PrintOneJobWhenPrintIsDoubleClicked)
{
    addQueues();
    const Visit run(Visit::quick(), q("ink"));
    ASSERT_TRUE(run.untilReady("ink"));
    QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
    QPushButton *print = run.button("printButton");
    // What a window system sends: press, release, double click, release.
    QTest::mouseClick(print, Qt::LeftButton);
    QTest::mouseDClick(print, Qt::LeftButton);
    QTest::mouseRelease(print, Qt::LeftButton);
    ASSERT_TRUE(run.until([&] { return !made.isEmpty() && server.printedTitles().size() == 1; }))
        << run.notices().join(u'\n').toStdString();
    EXPECT_EQ(made.size(), 1);
    EXPECT_FALSE(server.run(q("lpstat"), {q("-W"), q("all"), q("-o")}).contains("ink-2"));
}

TEST_F(QueueDialogs, KeepWhatWasChosenThroughEveryFailure)
{
    struct Failure
    {
        const char *told;
        std::function<void()> happen;
        std::function<void()> pass;
    };
    addQueues();
    const auto run = [this](const char *command, const QStringList &words) {
        server.run(q(command), words);
    };
    const Failure failures[] = {
        {"takes no jobs", [&] { run("cupsreject", {q("ink")}); },
         [&] { run("cupsaccept", {q("ink")}); }},
        {"no longer has",
         [&] {
             run("lpadmin", {q("-x"), q("ink")});
         },
         [&] { server.addQueue(q("ink"), samplePpd("Korvane-S300.ppd")); }},
        {"no print server", [&] { server.stop(); }, [&] { server.restart(); }},
    };
    const Visit visit(Visit::quick(), q("ink"));
    ASSERT_TRUE(visit.untilReady("ink"));
    visit.choose("ibPaperType", "IronOn");
    QSignalSpy made(&visit.dialog(), &QueueDialog::jobMade);
    for (const Failure &failure : failures) {
        SCOPED_TRACE(failure.told);
        failure.happen();
        visit.button("printButton")->click();
        ASSERT_TRUE(visit.untilNotice(failure.told)) << visit.notices().join(u'\n').toStdString();
        ASSERT_TRUE(visit.until([&] { return visit.button("printButton")->isEnabled(); }));
        EXPECT_SAME(visit.printer().marked(q("MediaType")), q("IronOn"));
        EXPECT_SAME(visit.popUp("ibPaperType")->currentData().toString(), q("IronOn"));
        EXPECT_EQ(made.size(), 0);
        failure.pass();
        visit.button("printButton")->click();
        ASSERT_TRUE(visit.until([&] { return made.size() == 1; }))
            << visit.notices().join(u'\n').toStdString();
        const int job = made.takeFirst().first().value<JobRecord>().id.toInt();
        ASSERT_TRUE(server.waitForJob(job));
        const FilterOptions options = server.options(job);
        EXPECT_NE(std::find(options.begin(), options.end(), std::pair(q("MediaType"), q("IronOn"))),
                  options.end());
    }
}

TEST_F(QueueDialogs, ShowClassesAndQueuesOfOtherServersAndPrintToThem)
{
    addQueues();
    server.run(q("lpadmin"), {q("-p"), q("ink"), q("-c"), q("floor")});
    server.run(q("cupsenable"), {q("floor")});
    server.run(q("cupsaccept"), {q("floor")});
    PrivateCupsd other;
    ASSERT_TRUE(
        QFile::link(q("/usr/lib/cups/backend/ipp"), other.folder() + q("/bin/backend/ipp")));
    other.run(q("lpadmin"), {q("-p"), q("far"), q("-E"), q("-v"),
                             q("ipp://") + server.address() + q("/printers/ink")});
    {
        const Visit run(Visit::quick(), q("far"));
        ASSERT_TRUE(run.untilReady("far"));
        QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
        run.button("printButton")->click();
        ASSERT_TRUE(run.until([&] { return made.size() == 1; }))
            << run.notices().join(u'\n').toStdString();
        EXPECT_TRUE(run.until([&] { return server.printedTitles().size() == 1; }));
    }
    qputenv("CUPS_SERVER", server.address().toLatin1());
    cupsSetServer(server.address().toLatin1().constData());
    const Visit run(Visit::quick(), q("floor"));
    ASSERT_TRUE(run.untilReady("floor")) << run.notices().join(u'\n').toStdString();
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().contains(q("floor")); }));
    EXPECT_FALSE(run.dialog().printDialog()->panels().loaded().empty())
        << "a class has its members' options";
    QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
    run.button("printButton")->click();
    ASSERT_TRUE(run.until([&] { return made.size() == 1; }))
        << run.notices().join(u'\n').toStdString();
    EXPECT_TRUE(run.until([&] { return server.printedTitles().size() == 2; }));
}

TEST_F(QueueDialogs, PrintToADriverlessQueueWithoutTheMakersPanels)
{
    server.addQueue(q("plain"), "*PPD-Adobe: \"4.3\"\n"
                                "*LanguageEncoding: UTF-8\n"
                                "*NickName: \"Somebody's Printer, driverless\"\n"
                                "*OpenUI *Duplex/2-Sided: PickOne\n"
                                "*DefaultDuplex: None\n"
                                "*Duplex None/Off: \"\"\n"
                                "*Duplex DuplexNoTumble/Long Edge: \"\"\n"
                                "*CloseUI: *Duplex\n");
    const Visit run(Visit::quick(), q("plain"));
    ASSERT_TRUE(run.untilReady("plain"));
    EXPECT_TRUE(run.dialog().printDialog()->panels().loaded().empty());
    QSignalSpy made(&run.dialog(), &QueueDialog::jobMade);
    run.button("printButton")->click();
    ASSERT_TRUE(run.until([&] { return made.size() == 1; }))
        << run.notices().join(u'\n').toStdString();
    EXPECT_TRUE(server.waitForJob(made.first().first().value<JobRecord>().id.toInt()));
}

TEST_F(QueueDialogs, SayWhatIsWrongWithABrokenPpd)
{
    addQueues();
    QFile ppd(server.folder() + q("/root/ppd/ink.ppd"));
    ASSERT_TRUE(ppd.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ppd.write("*PPD-Adobe: \"4.3\"\n*Comment: \"" + QByteArray(300, 'x') + "\"\n");
    ppd.close();
    const Visit run(Visit::quick(), q("ink"));
    ASSERT_TRUE(run.untilNotice("its PPD is damaged"));
    EXPECT_FALSE(run.button("printButton")->isEnabled());
}

TEST(QueueDialogFaults, AreToldWithARemedyAndTriedAgain)
{
    const UserFolders user;
    SilentServer server;
    ServerTimes times;
    times.connect = times.silence = std::chrono::milliseconds(200);
    QueueSources sources = serverSources(times);
    sources.emptyWindowDelay = {};
    sources.listTimes.interval = std::chrono::hours(1);
    const Visit run(sources, q("ink"));
    EXPECT_TEXT(run.waiting(), "Connecting to ink…");
    ASSERT_TRUE(run.untilNotice("does not answer"));
    EXPECT_TRUE(run.until([&] { return run.waiting().isNull(); }));
    EXPECT_EQ(run.notices().size(), 1) << "one server, one notice";
    server.die();
    run.button("tryAgainButton")->click();
    EXPECT_TEXT(run.waiting(), "Connecting to ink…");
    ASSERT_TRUE(run.untilNotice("No print server answers"));
}

TEST(QueueDialogFaults, EndByThemselvesWhenTheServerComesBack)
{
    const UserFolders user;
    const auto isDown = std::make_shared<std::atomic<bool>>(true);
    const auto tries = std::make_shared<std::atomic<int>>(0);
    const auto listings = std::make_shared<std::atomic<int>>(0);
    const QueueSources sources{
        [isDown, listings](const ListingHeard &) {
            ++*listings;
            return *isDown ? QueueListing{{}, {ServerFault::Unreachable, q("gone")}}
                           : QueueListing{{{q("ink")}}};
        },
        [isDown, tries](const QString &queue) {
            ++*tries;
            if (*isDown)
                return QueuePrinter{
                    QueuePrinter::Outcome::ServerFailed, {}, {ServerFault::Unreachable}};
            return QueuePrinter{QueuePrinter::Outcome::NoPpd, PpdDocument::withoutOptions(queue)};
        },
        {std::chrono::seconds(10), std::chrono::milliseconds(1)},
        std::chrono::seconds(10)};
    const Visit run(sources, q("ink"));
    ASSERT_TRUE(run.untilNotice("No print server answers"));
    EXPECT_FALSE(run.button("printButton")->isEnabled());
    ASSERT_TRUE(run.until([&] { return *tries == 1; })) << "or the listing has failed first";
    const int before = *listings;
    ASSERT_TRUE(run.until([&] { return *listings > before + 2; }));
    EXPECT_EQ(*tries, 1) << "a server that is away is not asked for printers";
    *isDown = false;
    EXPECT_TRUE(run.untilReady("ink"));
    EXPECT_EQ(*tries, 2);
}

TEST(QueueDialogFaults, OfAPrinterThatCannotBeHadAreNotTriedForEver)
{
    const UserFolders user;
    const auto tries = std::make_shared<std::atomic<int>>(0);
    const auto listings = std::make_shared<std::atomic<int>>(0);
    const QueueSources sources{[listings](const ListingHeard &) {
                                   ++*listings;
                                   return QueueListing{{{q("ink")}}};
                               },
                               [tries](const QString &) {
                                   ++*tries;
                                   return QueuePrinter{QueuePrinter::Outcome::ServerFailed,
                                                       {},
                                                       {ServerFault::Refused, q("Forbidden")}};
                               },
                               {std::chrono::seconds(10), std::chrono::milliseconds(1)},
                               std::chrono::seconds(10)};
    const Visit run(sources, q("ink"));
    ASSERT_TRUE(run.until([&] { return *tries == 4; })) << "at first, and three times by itself";
    const int before = *listings;
    ASSERT_TRUE(run.until([&] { return *listings > before + 5; }));
    EXPECT_EQ(*tries, 4);
    EXPECT_TRUE(run.untilNotice("Forbidden"));
    run.button("tryAgainButton")->click();
    EXPECT_TRUE(run.until([&] { return *tries > 4; }));
}

TEST(QueueDialogs500, ShowTheFirstQueuesBeforeTheLastHaveCome)
{
    const UserFolders user;
    const auto isOpen = std::make_shared<std::atomic<bool>>(false);
    const auto queues = [](int count) {
        std::vector<Queue> made;
        for (int i = 1; i <= count; ++i)
            made.push_back({QStringLiteral("room%1").arg(i), QStringLiteral("Room %1").arg(i)});
        return made;
    };
    const QueueSources sources{
        [=](const ListingHeard &heard) {
            QueueListing soFar{{}, {}, q("room300"), false};
            heard(soFar);
            soFar.queues = queues(kFirstQueues);
            heard(soFar);
            while (!*isOpen)
                QThread::msleep(1);
            return QueueListing{queues(500), {}, q("room300")};
        },
        [](const QString &queue) {
            return QueuePrinter{QueuePrinter::Outcome::NoPpd, PpdDocument::withoutOptions(queue)};
        },
        {std::chrono::seconds(20), std::chrono::hours(1)},
        std::chrono::seconds(20)};
    const Visit run(sources);
    ASSERT_TRUE(run.untilReady("room300")) << "the default needs no list";
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().size() == 101; }));
    *isOpen = true;
    ASSERT_TRUE(run.until([&] { return run.dialog().picker().offered().size() == 500; }));

    PopUpButton *popUp = run.popUp("printerPopUp");
    popUp->showPopup();
    ASSERT_TRUE(run.until([&] { return popUp->view()->isVisible(); }));
    EXPECT_LE(popUp->view()->window()->height(), popUp->screen()->availableGeometry().height());
    EXPECT_EQ(popUp->view()->currentIndex().row(), popUp->currentIndex());
    QTest::keyClick(popUp->view(), Qt::Key_End);
    EXPECT_EQ(popUp->view()->currentIndex().row(), 499);
    QTest::keyClick(popUp->view(), Qt::Key_Escape);
    ASSERT_TRUE(run.until([&] { return !popUp->view()->isVisible(); }));

    auto *filter = run.window().findChild<QLineEdit *>(q("printerFilter"));
    ASSERT_TRUE(filter && filter->isVisible());
    filter->setFocus();
    QTest::keyClicks(filter, q("room 49"));
    EXPECT_EQ(run.dialog().picker().offered().size(), 16) << "15 with 49, and the chosen one";
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_TRUE(run.untilReady("room49"));
}

TEST(QueueDialogFaults, LeaveTheWindowAliveWhileAServerIsSilent)
{
    const UserFolders user;
    const SilentServer server;
    const Visit run(Visit::once(), q("ink"));
    QSignalSpy left(&run.dialog(), &QueueDialog::left);
    int turns = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] { ++turns; });
    beat.start(1);
    ASSERT_TRUE(run.until([&] { return turns > 20; }));
    EXPECT_TEXT(run.waiting(), "Connecting to ink…");
    run.button("cancelButton")->click();
    EXPECT_EQ(left.size(), 1);
    EXPECT_FALSE(run.window().isVisible());
}

TEST(QueueDialogFaults, TellQueuesThatCannotBeReachedAnyMore)
{
    const UserFolders user;
    const auto isDown = std::make_shared<std::atomic<bool>>(false);
    const QueueSources sources{
        [isDown](const ListingHeard &) {
            return *isDown ? QueueListing{{}, {ServerFault::Unreachable, q("gone")}}
                           : QueueListing{{{q("ink")}}};
        },
        [](const QString &queue) {
            return QueuePrinter{QueuePrinter::Outcome::NoPpd, PpdDocument::withoutOptions(queue)};
        },
        {std::chrono::seconds(10), std::chrono::milliseconds(1)},
        std::chrono::seconds(10)};
    const Visit run(sources);
    ASSERT_TRUE(run.untilReady("ink"));
    *isDown = true;
    ASSERT_TRUE(run.untilNotice("(gone)"));
    EXPECT_TRUE(run.popUp("printerPopUp")->currentText().endsWith(q("Not reachable")));
    EXPECT_TRUE(run.dialog().printDialog());
    *isDown = false;
    EXPECT_TRUE(run.until([&] { return !run.notices().join(u'\n').contains(q("(gone)")); }));
    EXPECT_TEXT(run.popUp("printerPopUp")->currentText(), "ink");
}
