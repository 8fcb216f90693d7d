#include "dialog/print_dialog.h"
#include "dialog/replay/input.h"
#include "dialog/window/conflict_sheet.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// The dialog in this process, on the staged printer.
class OpenDialog : public testing::Test
{
protected:
    OpenDialog() { open({}); }

    void open(const QString &document)
    {
        PrintCase printCase;
        printCase.ppd = driver.writePrinter();
        printCase.root = driver.root();
        printCase.document = document;
        printCase.jobFolder = driver.path(q("jobs"));
        auto opened = PrintDialog::open(printCase);
        ASSERT_TRUE(std::holds_alternative<std::unique_ptr<PrintDialog>>(opened));
        dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        dialog->showPanels();
    }
    void choose(const char *control, int index)
    {
        auto *popUp = dialog->window()->findChild<PopUpButton *>(q(control));
        ASSERT_TRUE(popUp);
        EXPECT_NULL(replay::input::choose(popUp, index));
        QCoreApplication::processEvents();
    }
    /// The event loop turns until the job has ended.
    void print(Review review)
    {
        dialog->print(review);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog->desk().isSending(); }, 30'000));
    }
    [[nodiscard]] QStringList jobs() const
    {
        return QDir(driver.path(q("jobs")))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    QStringList notices() { return dialog->window()->notices().texts(); }

    test::StagedDriver driver;
    std::unique_ptr<PrintDialog> dialog;
};

TEST_F(OpenDialog, ListsThePanelsInTheirOrder)
{
    ASSERT_EQ(dialog->panels().loaded().size(), 2U);
    EXPECT_TEXT(dialog->panels().loaded()[0].title, "Basics");
    EXPECT_TEXT(dialog->panels().loaded()[1].kind, "com.example.extras");
    EXPECT_EQ(dialog->window()->panelPopUp()->count(), 5)
        << "layout, two panels, printer features, the summary";
    EXPECT_EQ(dialog->panels().frontIndex(), 1) << "the first of the plug-in";
    EXPECT_TRUE(notices().isEmpty());
}

TEST_F(OpenDialog, AConflictIsAskedAboutUntilAPersonTriesSomethingElse)
{
    const ConflictSheet &sheet = dialog->window()->conflictSheet();
    choose("ibQuality", 0);
    choose("ibMedia", 1);
    QCoreApplication::processEvents();
    ASSERT_TRUE(sheet.isVisible());
    EXPECT_TEXT(sheet.question().problem,
                "“Paper Type: Iron-On Transfer” cannot be used together with "
                "“Print Quality: Quick”.");
    EXPECT_TRUE(notices().isEmpty());
    choose("ibQuality", 2);
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(OpenDialog, TheReviewNamesConflictsAndDroppedChoices)
{
    choose("ibQuality", 0);
    choose("ibMedia", 1);
    dialog->host().changeFromElsewhere({q("DupDryTime"), q("Long")});
    dialog->printer().mark({q("DupDryTime"), q("Automatic")});
    QSignalSpy made(dialog.get(), &PrintDialog::jobMade);
    dialog->print(Review::Ask);
    EXPECT_EQ(made.count(), 0);
    EXPECT_FALSE(dialog->desk().isSending());
    const QString review = notices().last();
    EXPECT_TRUE(review.contains(q("“Paper Type: Iron-On Transfer” and “Print Quality: Quick”")))
        << review.toStdString();
    EXPECT_TRUE(review.contains(q("Dry Time: you chose “Long Time”, the job has “Auto Time”")))
        << review.toStdString();
    print(Review::Skip);
    EXPECT_EQ(made.count(), 1);
}

TEST_F(OpenDialog, WhatThePanelsHoldIsMarkedOnlyOnceThePersonPrintsAnyway)
{
    choose("ibQuality", 0);
    choose("ibMedia", 1); // refused, and held by its panel
    const ChoiceState before = dialog->host().state();
    const auto press = [&](const char *button) {
        EXPECT_NULL(replay::input::click(dialog->window()->findChild<QPushButton *>(q(button))));
        QCoreApplication::processEvents();
    };
    press("printButton");
    ASSERT_TRUE(notices().last().contains(q("Iron-On Transfer"))) << "the review";
    EXPECT_EQ(dialog->host().state(), before);
    press("goBackButton");
    EXPECT_EQ(dialog->host().state(), before);
    press("printButton");
    dialog->host().setSetting(q("mirror"), q("true"));
    EXPECT_EQ(dialog->host().state().marks, before.marks);
    press("printAnywayButton");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog->desk().isSending(); }, 30'000));
    EXPECT_TEXT(dialog->printer().marked(q("MediaType")), "IronOn");
    EXPECT_EQ(jobs().size(), 1);
}

TEST_F(OpenDialog, AJobIsWrittenWhileTheWindowStaysAwake)
{
    open(driver.write(q("a.pdf"), "%PDF"));
    QSignalSpy made(dialog.get(), &PrintDialog::jobMade);
    QSignalSpy idle(&dialog->desk(), &JobDesk::idle);
    auto *button = dialog->window()->findChild<QPushButton *>(q("printButton"));
    dialog->print(Review::Ask);
    EXPECT_EQ(made.count(), 0) << "nothing is copied before the event loop turns again";
    EXPECT_TRUE(dialog->desk().isSending());
    EXPECT_FALSE(button->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return idle.count() == 1; }, 30'000));
    EXPECT_EQ(made.count(), 1);
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(jobs().size(), 1);
}

TEST_F(OpenDialog, AJobThatIsCancelledIsThereWholeOrNotAtAll)
{
    open(driver.write(q("large.pdf"), QByteArray(64 * 1024 * 1024, 'x')));
    QSignalSpy made(dialog.get(), &PrintDialog::jobMade);
    QSignalSpy failed(dialog.get(), &PrintDialog::jobFailed);
    QSignalSpy idle(&dialog->desk(), &JobDesk::idle);
    dialog->print(Review::Ask);
    dialog->desk().cancel();
    ASSERT_TRUE(QTest::qWaitFor([&] { return idle.count() == 1; }, 30'000));
    EXPECT_EQ(made.count() + failed.count(), 1);
    if (!failed.isEmpty()) {
        EXPECT_TRUE(failed[0][0].toString().contains(q("cancelled")));
    }
    const auto before = made.count();
    dialog.reset(); // waits for what has been given up
    EXPECT_EQ(jobs().size(), before);
}

TEST_F(OpenDialog, LeavingWhileAJobIsWrittenEndsOnceItIsWholeOrGone)
{
    open(driver.write(q("large.pdf"), QByteArray(64 * 1024 * 1024, 'x')));
    QSignalSpy made(dialog.get(), &PrintDialog::jobMade);
    QSignalSpy left(dialog.get(), &PrintDialog::left);
    dialog->print(Review::Ask);
    EXPECT_NULL(
        replay::input::click(dialog->window()->findChild<QPushButton *>(q("cancelButton"))));
    ASSERT_TRUE(QTest::qWaitFor([&] { return left.count() == 1; }, 30'000));
    const auto before = made.count();
    dialog.reset();
    EXPECT_EQ(jobs().size(), before);
}

TEST_F(OpenDialog, ADocumentThatVanishedIsToldAndNothingIsWritten)
{
    const QString document = driver.write(q("a.pdf"), "%PDF");
    open(document);
    ASSERT_TRUE(QFile::remove(document));
    QSignalSpy failed(dialog.get(), &PrintDialog::jobFailed);
    dialog->print(Review::Ask);
    EXPECT_EQ(failed.count(), 1);
    EXPECT_TRUE(notices().last().contains(q("There is no document")));
    EXPECT_FALSE(QFileInfo::exists(driver.path(q("jobs"))));
}

TEST_F(OpenDialog, AFolderThatCannotBeWrittenIsToldAndPrintCanBePressedAgain)
{
    const QString inTheWay = driver.write(q("jobs"), "a file");
    print(Review::Ask);
    ASSERT_EQ(notices().size(), 1);
    EXPECT_TRUE(notices().first().contains(inTheWay)) << notices().first().toStdString();
    ASSERT_TRUE(QFile::remove(inTheWay));
    QSignalSpy made(dialog.get(), &PrintDialog::jobMade);
    print(Review::Ask);
    EXPECT_EQ(made.count(), 1);
}

TEST_F(OpenDialog, PanelsOutliveAViewThatTheWindowDestroyed)
{
    delete dialog->window()->view(1);
    choose("panelPopUp", 2);
    choose("panelPopUp", 1);
    EXPECT_TRUE(dialog->commit().conflicts.empty());
}

TEST_F(OpenDialog, CanBeOpenedAgainAfterItIsGone)
{
    const std::weak_ptr<PDEPanel> panel = dialog->panels().loaded()[0].panel;
    dialog.reset();
    EXPECT_TRUE(panel.expired()) << "the panels die with the dialog, before its PPD";
    open({});
    EXPECT_EQ(dialog->panels().loaded().size(), 2U);
}

} // namespace
