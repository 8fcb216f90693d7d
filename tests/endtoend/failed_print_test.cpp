// Printing that fails: a person is told, keeps everything that was chosen, presses Print again when
// the reason is gone, and gets one job.

#include "tests/cups/fault_server.h"
#include "tests/dialog/staged_driver.h"
#include "tests/endtoend/every_setting.h"
#include "tests/support/print_to.h"

#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"

#include <QDir>
#include <QFile>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace test;

namespace {

constexpr int kPatientMilliseconds = 20'000;
constexpr int kShortMilliseconds = 300;

/// A person's choices in both panels of the toner printer, with every kind of control.
const Story kStory{
    {},
    {choice("PrintQuality", "Normal"), choice("MediaType", "Recycled"),
     choice("ColorOutput", "Mono"), choice("TonerSave", "On"), choice("Sharpen", "High"),
     choice(kTypedThreshold, "2"), choice("Threshold", "5"), choice("ImprovementSettings", "On"),
     choice("ImprovePrintQuality", "ImproveTonerFixing"), choice("ReduceGhosting", "On")}};

class PrintingDialog : public testing::Test
{
protected:
    void open(int limitMilliseconds)
    {
        ASSERT_TRUE(QFile::copy(sampleDocument(), document()));
        run_ = printing.open(kStory.systemVersion, {limitMilliseconds});
        expected_ = expectedJob(run_->dialog().printer().defaults(), kStory);
        run_->dialog().setDocument(document());
        run_->showPanels();
        for (const dialog::Choice &picked : kStory.chosen)
            run_->choose(picked);
        expectChoices();
    }

    void expectChoices()
    {
        for (const dialog::Choice &picked : kStory.chosen) {
            const bool isReplaced = picked.option == q(kTypedThreshold); // by the stepped one
            EXPECT_SAME(run_->shown(picked.option), isReplaced ? q("5") : picked.choice);
        }
    }

    void expectFailure()
    {
        const Pressed pressed = run_->press();
        EXPECT_FALSE(pressed.job);
        EXPECT_FALSE(pressed.failure.isEmpty());
        EXPECT_TRUE(run_->dialog().window()->isVisible());
        EXPECT_TRUE(printButton()->isEnabled());
        expectChoices();
    }

    /// Presses Print, as often as a machine that is busy needs.
    void expectOneJob()
    {
        constexpr int kMostPresses = 4;
        Pressed pressed;
        for (int i = 0; i < kMostPresses && !pressed.job; ++i)
            pressed = run_->press();
        ASSERT_TRUE(pressed.job) << pressed.failure.toStdString();
        printing.expect(*pressed.job, expected_, described(kStory));
        EXPECT_EQ(printing.expectArrivals().size(), 1U);
        expectArrivedJobs(1);
    }

    /// But for the one that Printing itself prints, whatever the server still does.
    void expectArrivedJobs(int count)
    {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return printing.server().run(q("lpstat"), {q("-o")}).isEmpty(); },
                            kPatientMilliseconds))
            << "a job is left at the server";
        const QDir printer(printing.server().folder() + q("/out"));
        EXPECT_EQ(printer.entryList({q("*.done")}, QDir::Files).size(), count + 1);
    }

    [[nodiscard]] QPushButton *printButton() const
    {
        return run_->dialog().window()->findChild<QPushButton *>(q("printButton"));
    }
    [[nodiscard]] QString document() const { return folder_.filePath(q("document.pdf")); }
    [[nodiscard]] DialogRun &run() const { return *run_; }

    Printing printing{tonerPpd()};

private:
    QTemporaryDir folder_;
    std::unique_ptr<DialogRun> run_;
    ExpectedJob expected_;
};

class FailedPrint : public PrintingDialog
{
};

struct FaultRow
{
    const char *name;
    Fault fault;
    int limitMilliseconds = kPatientMilliseconds;
};
void PrintTo(const FaultRow &row, std::ostream *out)
{
    *out << row.name;
}

class FailedPrintByFault : public PrintingDialog, public testing::WithParamInterface<FaultRow>
{
};

// A connection that is closed at once is not among them: libcups connects again, and nothing fails.
// clang-format off
const FaultRow kFaults[] = {
    {"CutAnswers",   {FaultKind::CutAnswers, 1}},
    {"CutRequests",  {FaultKind::CutRequests, 1}},
    {"CutDocument",  {FaultKind::CutRequests, 2000}},
    {"Silence",      {FaultKind::Silence, 1},  kShortMilliseconds},
    {"Deafness",     {FaultKind::Deafness, 1}, kShortMilliseconds},
    {"Trickle",      {FaultKind::Trickle, 1},  kShortMilliseconds},
    {"Garble",       {FaultKind::Garble, 1},   kShortMilliseconds},
    {"BadRequest",   {FaultKind::HttpError, 1, 400}},
    {"Forbidden",    {FaultKind::HttpError, 1, 403}},
    {"ServerError",  {FaultKind::HttpError, 1, 500}},
    {"Unavailable",  {FaultKind::HttpError, 1, 503}},
};
// clang-format on

} // namespace

TEST_P(FailedPrintByFault, KeepsEveryChoiceAndPrintsOnceWhenPressedAgain)
{
    FaultServer faults(printing.server().address());
    open(GetParam().limitMilliseconds);
    faults.misbehave(GetParam().fault);
    expectFailure();
    EXPECT_TRUE(faults.hasMisbehaved());
    faults.misbehave({});
    expectOneJob();
}

INSTANTIATE_TEST_SUITE_P(Faults, FailedPrintByFault, testing::ValuesIn(kFaults),
                         [](const auto &row) { return row.param.name; });

TEST_F(FailedPrint, KeepsEveryChoiceWhileTheServerIsDead)
{
    open(kPatientMilliseconds);
    printing.server().stop();
    expectFailure();
    expectFailure();
    printing.server().restart();
    expectOneJob();
}

TEST_F(FailedPrint, KeepsEveryChoiceWhileTheQueueRejectsJobs)
{
    open(kPatientMilliseconds);
    printing.server().run(q("cupsreject"), {Printing::queue()});
    expectFailure();
    printing.server().run(q("cupsaccept"), {Printing::queue()});
    expectOneJob();
}

TEST_F(FailedPrint, KeepsEveryChoiceWhileTheQueueIsGone)
{
    open(kPatientMilliseconds);
    printing.server().run(q("lpadmin"), {q("-x"), Printing::queue()});
    expectFailure();
    printing.server().addQueue(Printing::queue(), tonerPpd());
    expectOneJob();
}

TEST_F(FailedPrint, KeepsEveryChoiceWhileTheDocumentIsGone)
{
    open(kPatientMilliseconds);
    ASSERT_TRUE(QFile::remove(document()));
    expectFailure();
    ASSERT_TRUE(QFile::copy(sampleDocument(), document()));
    expectOneJob();
}

TEST_F(FailedPrint, KeepsEveryChoiceWhereASettingWouldGetLost)
{
    open(kPatientMilliseconds);
    run().dialog().host().setSetting(q("lost"), q("{1}"));
    expectFailure();
    run().dialog().host().setSetting(q("lost"), {});
    expectOneJob();
}

TEST_F(FailedPrint, KeepsEveryChoiceWhereJobsCannotBeRemembered)
{
    QTemporaryDir state;
    qputenv("XDG_STATE_HOME", state.filePath(q("a file in the way")).toUtf8());
    QFile inTheWay(state.filePath(q("a file in the way")));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    open(kPatientMilliseconds);
    expectFailure();
    ASSERT_TRUE(inTheWay.remove());
    expectOneJob();
}

TEST_F(FailedPrint, KeepsEveryChoiceWhenAPersonCancelsTheJob)
{
    FaultServer faults(printing.server().address());
    open(kPatientMilliseconds);
    faults.misbehave({FaultKind::Deafness, 2000});
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto *cancel = run().dialog().window()->findChild<QPushButton *>(q("cancelJobButton"));
        if (cancel && cancel->isVisible()) {
            EXPECT_NULL(dialog::replay::input::click(cancel));
        }
    });
    watch.start(20);
    expectFailure();
    watch.stop();
    faults.misbehave({});
    expectOneJob();
}

TEST_F(FailedPrint, IsNoneWhereThePausedQueueKeepsTheJob)
{
    open(kPatientMilliseconds);
    printing.server().run(q("cupsdisable"), {Printing::queue()});
    const Pressed pressed = run().press();
    ASSERT_TRUE(pressed.job) << pressed.failure.toStdString();
    expectChoices();
    printing.server().run(q("cupsenable"), {Printing::queue()});
    ASSERT_TRUE(printing.server().waitForJob(pressed.job->id));
    expectArrivedJobs(1);
}

namespace {

class OnePressOfPrint : public PrintingDialog
{
protected:
    static void send(QWidget *button, QEvent::Type type)
    {
        const QPointF centre = button->rect().center();
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, centre, button->mapToGlobal(centre), Qt::LeftButton,
                          isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &event);
    }
    static void click(QWidget *button)
    {
        send(button, QEvent::MouseButtonPress);
        send(button, QEvent::MouseButtonRelease);
    }
    /// The second click of a double click, which may come some moments after the first one.
    static void clickAgain(QWidget *button)
    {
        send(button, QEvent::MouseButtonDblClick);
        send(button, QEvent::MouseButtonRelease);
    }
    /// A key that is held down comes again and again.
    static void holdReturn(QWidget *focused)
    {
        for (const bool isRepeated : {false, true, true}) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, q("\r"), isRepeated);
            QCoreApplication::sendEvent(focused, &event);
        }
    }
};

/// Jobs that go into folders.
class OnePressOfPrintToFolder : public OnePressOfPrint
{
protected:
    OnePressOfPrintToFolder()
    {
        run_.showPanels();
        QObject::connect(&run_.dialog(), &dialog::PrintDialog::jobMade, [this] { ++made; });
    }

    void expectMade(int jobs)
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !run_.dialog().desk().isSending(); },
                                    kPatientMilliseconds));
        EXPECT_EQ(made, jobs);
    }
    [[nodiscard]] QWidget *window() const { return run_.dialog().window(); }
    [[nodiscard]] QPushButton *print() const
    {
        return window()->findChild<QPushButton *>(q("printButton"));
    }

private:
    int made = 0;

    static dialog::PrintCase caseWithoutQueue()
    {
        dialog::PrintCase printCase;
        printCase.ppd = samplePpd("Korvane-T500.ppd");
        return printCase;
    }

    DialogRun run_{caseWithoutQueue()};
};

} // namespace

TEST_F(OnePressOfPrint, IsADoubleClickWhileTheJobIsOnItsWay)
{
    open(kPatientMilliseconds);
    click(printButton());
    EXPECT_FALSE(printButton()->isEnabled());
    clickAgain(printButton());
    ASSERT_TRUE(QTest::qWaitFor([&] { return printButton()->isEnabled(); }, kPatientMilliseconds));
    expectArrivedJobs(1);
}

TEST_F(OnePressOfPrint, IsADoubleClickWhoseJobIsAlreadyThere)
{
    open(kPatientMilliseconds);
    ASSERT_TRUE(run().press().job);
    clickAgain(printButton());
    EXPECT_TRUE(printButton()->isEnabled()) << "a second job is on its way";
    expectArrivedJobs(1);
}

TEST_F(OnePressOfPrintToFolder, IsADoubleClick)
{
    click(print());
    clickAgain(print());
    expectMade(1);
    click(print());
    expectMade(2);
}

TEST_F(OnePressOfPrintToFolder, IsAReturnKeyThatIsHeldDown)
{
    holdReturn(window());
    expectMade(1);
    holdReturn(print());
    expectMade(2);
}
