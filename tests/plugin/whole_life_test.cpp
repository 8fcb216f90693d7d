#include "platform/controls/radio_matrix.h"
#include "platform/notification_center.h"
#include "tests/plugin/life.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/user.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QScopeGuard>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace test;

namespace {

/// Every call of the dialog but the one that builds a view.
void callEverything(PDEPanel &panel)
{
    (void)panel.panelName();
    (void)panel.panelKind();
    (void)panel.shouldShowHelp();
    (void)panel.supportedPPDOptionKeys();
    panel.willShow();
    (void)panel.restoreValuesAndReturnError(nullptr);
    (void)panel.summaryInfo();
    for (const QString &option : panel.supportedPPDOptionKeys())
        panel.PPDOptionKeyValueDidChange(option, q("On"));
    (void)panel.diagnostics()->model();
    (void)panel.diagnostics()->frames();
    (void)panel.saveValuesAndReturnError(nullptr);
    (void)panel.shouldHide();
}

LifeOptions bothPanels()
{
    return {.ppd = p2(), .productYear = {}, .hasOtherPanel = true};
}

void useQuality(const Life &life)
{
    user::choose(life.control<QComboBox>("ibPaperType"), 1);
    user::click(life.control<QToolButton>("ibDisclosure"));
}

void useBoxes(const Life &life)
{
    user::click(life.control<QCheckBox>("ibTonerSave"));
    user::click(life.control<QCheckBox>("ibImprovementSettings"));
    user::clickRow(life.control<RadioMatrix>("ibImprovePrintQuality"), 1);
}

/// What a process holds at one moment.
struct Process
{
    int observers;
    qsizetype openFiles;
    qsizetype widgets;
    long pages; ///< resident

    [[nodiscard]] static Process now()
    {
        QFile memory(q("/proc/self/statm"));
        EXPECT_TRUE(memory.open(QIODevice::ReadOnly));
        return {.observers = platform::NotificationCenter::defaultCenter().observerCount(),
                .openFiles = QDir(q("/proc/self/fd")).entryList(QDir::Files | QDir::System).size(),
                .widgets = QApplication::allWidgets().size(),
                .pages = memory.readAll().split(' ').at(1).toLong()};
    }
};

void liveAndEnd(int lives)
{
    for (int i = 0; i < lives; ++i) {
        const Life life(bothPanels());
        for (const auto &panel : *life.panels)
            callEverything(*panel);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

TEST(Whole, Whole_01_SurvivesAViewThatTheHostDestroys)
{
    for (const LifeOptions &options :
         {LifeOptions{}, bothPanels(), LifeOptions{.ppd = p3(), .hasOtherPanel = true}}) {
        Life life(options);
        auto dialog = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(dialog.get());
        for (const auto &panel : *life.panels)
            layout->addWidget(panel->panelView());
        dialog->show();
        dialog.reset();
        for (const auto &panel : *life.panels) {
            callEverything(*panel);
            EXPECT_TRUE(panel->panelView()) << "a new one";
            callEverything(*panel);
        }
    }
}

TEST(Whole, DestroysItsViewsInsideADialogThatLives)
{
    QWidget dialog;
    auto *layout = new QVBoxLayout(&dialog);
    {
        Life life(bothPanels());
        for (const auto &panel : *life.panels)
            layout->addWidget(panel->panelView());
        dialog.show();
    }
    EXPECT_EQ(dialog.findChild<QWidget *>(q("ibPDEView")), nullptr);
    EXPECT_EQ(dialog.findChild<QWidget *>(q("ibOthersView")), nullptr);
}

TEST(Whole, Whole_03_SavesTheSamePairsUnderAGermanLocale)
{
    const auto save = [](const LifeOptions &options) { return lines(Life(options).save()); };
    const QStringList english = save({});
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const auto restore = qScopeGuard([&former] { QLocale::setDefault(former); });
    EXPECT_EQ(save({.locale = q("de_DE")}), english);
    EXPECT_EQ(english.size(), 14);
}

TEST(Whole, Whole_04_NestsItsTraces)
{
    DebugLog log;
    log.switchOn(DebugLog::kInfo);
    {
        const Life toner(bothPanels());
        const Life ink({.ppd = p3()});
        useQuality(toner);
        useBoxes(toner);
        useQuality(ink);
        for (const auto &panel : *toner.panels)
            callEverything(*panel);
        callEverything(ink.panel());
    }
    QStringList open;
    for (const QString &trace : log.traces()) {
        const QString selector = trace.mid(2);
        if (trace.startsWith(u'{')) {
            open.append(selector);
            continue;
        }
        ASSERT_FALSE(open.isEmpty()) << selector.toStdString();
        ASSERT_EQ(open.takeLast(), selector);
    }
    EXPECT_EQ(open, QStringList());
    EXPECT_EQ(log.traces().count(q("} -[MainPDE2 dealloc]")), 2);
    EXPECT_EQ(log.traces().count(q("} -[KorPDEController2 dealloc]")), 2);
    EXPECT_EQ(log.traces().count(q("} -[MainPDE3 dealloc]")), 1);
    EXPECT_EQ(log.traces().count(q("} -[KorPDEController3 dealloc]")), 1);
}

TEST(Whole, TracesEveryOperationOfThePanelsUnderItsOwnClass)
{
    DebugLog log;
    log.switchOn(DebugLog::kInfo);
    {
        Life life(bothPanels());
        for (const auto &panel : *life.panels)
            callEverything(*panel);
        life.panel().panelViewIsResized();
        life.otherPanel().panelViewIsResized();
    }
    const QStringList traces = log.traces();
    for (const char *name : {"MainPDE2", "MainPDE3"}) {
        for (const char *operation :
             {"initWithCallback:andBundle:", "panelView", "panelName", "panelKind",
              "shouldShowHelp", "supportedPPDOptionKeys", "willShow", "shouldHide",
              "restoreValuesAndReturnError:", "saveValuesAndReturnError:", "summaryInfo",
              "PPDOptionKeyValueDidChange:ppdChoice:", "panelViewIsResized:",
              "changePPDOptionKeyValue", "dealloc"}) {
            const QString selector = q("{ -[%1 %2]").arg(q(name), q(operation));
            EXPECT_TRUE(traces.contains(selector)) << selector.toStdString();
        }
    }
    EXPECT_EQ(traces.count(q("{ -[MainPDE2 registerObserver]")), 1);
    EXPECT_FALSE(log.bytes().contains("-[MainPDE3 registerObserver]"));
    for (const char *stub : {"Tiger", "removeHelpEventHandler"})
        EXPECT_FALSE(log.bytes().contains(stub)) << stub;
}

/// KORVANE_TEST_LIVES asks for more lives.
TEST(Whole, LeavesNothingBehindAfterManyLives)
{
    const int lives = qMax(50, qEnvironmentVariableIntValue("KORVANE_TEST_LIVES"));
    liveAndEnd(lives); // fonts, styles and caches are there afterwards
    const Process before = Process::now();
    liveAndEnd(lives);
    const Process after = Process::now();
    EXPECT_EQ(after.observers, before.observers);
    EXPECT_EQ(after.openFiles, before.openFiles);
    EXPECT_EQ(after.widgets, before.widgets);
#ifndef __SANITIZE_ADDRESS__ // which keeps freed memory for a while
    EXPECT_LE(after.pages - before.pages, before.pages / 20) << "memory in pages";
#endif
}

TEST(Whole, ShowsBothPanelsOfTheTonerPrinterAndOneOfTheInkPrinter)
{
    const Life toner(bothPanels());
    ASSERT_EQ(toner.panels->size(), 2U);
    EXPECT_EQ(toner.panels->back()->summaryInfo().size(), 3U);
    EXPECT_FALSE(toner.panels->front()->summaryInfo().empty());
    const Life ink;
    EXPECT_EQ(ink.panels->size(), 1U);
}
