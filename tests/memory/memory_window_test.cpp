#include "dialog/memory/memory.h"
#include "dialog/presets/preset_bar.h"
#include "dialog/print_dialog.h"
#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QEventLoop>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

const QString kFolder = q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/");
const QString kInk = kFolder + q("Korvane-S300.ppd");
const QString kToner = kFolder + q("Korvane-T500.ppd");

/// Larger than any panel needs, smaller than the screen.
constexpr QSize kRoomy(790, 780);

enum class Remembers { Yes, No };

/// One opening of the dialog, as the program does it, to its end.
class Opening
{
public:
    explicit Opening(const QString &ppd, Remembers remembers = Remembers::Yes)
    {
        PrintCase printCase;
        printCase.ppd = ppd;
        printCase.root = q(KORVANE_ROOT_DIR);
        printCase.document = q(KORVANE_SAMPLE_DOCUMENT);
        printCase.jobFolder = jobs_.path();
        if (remembers == Remembers::Yes)
            printCase.memory = std::make_shared<Memory>(patient());
        QEventLoop loop;
        PrintDialog::openLater(&loop, printCase, [&](PrintDialog::Opened opened) {
            dialog_ = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
            loop.quit();
        });
        loop.exec();
        dialog_->showPanels();
        settle();
    }

    static void settle() { QCoreApplication::processEvents(); }
    static Memory::Times patient()
    {
        return {.reading = std::chrono::minutes(1), .writing = std::chrono::minutes(1)};
    }
    [[nodiscard]] PrintDialog &dialog() const { return *dialog_; }
    [[nodiscard]] PrintWindow &window() const { return *dialog_->window(); }
    [[nodiscard]] QString marked(const char *option) const
    {
        return dialog_->printer().marked(q(option));
    }
    [[nodiscard]] QString panel() const
    {
        return dialog_->panels().kind(dialog_->panels().frontIndex());
    }
    [[nodiscard]] QString notices() const { return window().notices().texts().join(u'\n'); }
    [[nodiscard]] PopUpButton *popUp(const char *name) const
    {
        return window().findChild<PopUpButton *>(q(name));
    }
    [[nodiscard]] QString preset() const { return popUp("presetPopUp")->currentText(); }
    [[nodiscard]] bool isPresetChanged() const
    {
        return window().findChild<QWidget *>(q("presetChanged"))->isVisible();
    }
    void choose(const char *control, const QString &keyword) const
    {
        auto *button = popUp(control);
        ASSERT_TRUE(button) << control;
        EXPECT_NULL(replay::input::choose(button, button->findData(keyword)));
        settle();
    }
    void pickPreset(const QString &title) const
    {
        EXPECT_NULL(
            replay::input::choose(popUp("presetPopUp"), popUp("presetPopUp")->findText(title)));
        settle();
    }
    void show(const char *kind) const
    {
        dialog_->panels().bringForward(dialog_->panels().indexOf(q(kind)));
        settle();
    }
    /// As the window system does it for a person.
    void drag(QSize size) const
    {
        window().windowHandle()->resize(size);
        settle();
    }
    void click(const char *name) const
    {
        EXPECT_NULL(replay::input::click(window().findChild<QPushButton *>(q(name))));
        settle();
    }
    void print() const
    {
        QString ticket;
        const QObject scope;
        QObject::connect(dialog_.get(), &PrintDialog::jobMade, &scope,
                         [&](const JobRecord &job) { ticket = job.ticketPath; });
        dialog_->print(Review::Skip);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog_->desk().isSending(); }, 30'000));
        EXPECT_FALSE(ticket.isNull()) << notices().toStdString();
    }
    void cancel() const { click("cancelButton"); }

private:
    QTemporaryDir jobs_;
    std::unique_ptr<PrintDialog> dialog_;
};

/// Each case is a process and a user of its own.
QString stateFolder()
{
    return QFile::decodeName(qgetenv("XDG_STATE_HOME")) + q("/korvane-print");
}

QString settingsFile()
{
    const QString folder = stateFolder() + q("/last-settings");
    const QStringList names = QDir(folder).entryList({q("*.json")});
    return names.size() == 1 ? folder + u'/' + names.first() : QString();
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

TEST(Remembering, OpensTheSecondTimeWithSizePanelAndSettingsOfTheFirst)
{
    {
        const Opening first(kInk);
        EXPECT_EQ(first.preset(), q("Default Settings"));
        EXPECT_EQ(first.popUp("presetPopUp")->findText(q("Last Used Settings")), -1);
        first.choose("ibPaperType", q("IronOn"));
        first.show("summary");
        first.drag(kRoomy);
        ASSERT_EQ(first.window().size(), kRoomy);
        first.print();
    }
    const Opening second(kInk);
    EXPECT_EQ(second.window().size(), kRoomy);
    EXPECT_EQ(second.panel(), q("summary"));
    EXPECT_EQ(second.marked("MediaType"), q("IronOn"));
    EXPECT_EQ(second.preset(), q("Last Used Settings"));
    EXPECT_FALSE(second.isPresetChanged());
    EXPECT_EQ(second.notices(), QString());
    second.dialog().panels().bringForward(second.dialog().panels().firstIndex());
    EXPECT_EQ(second.popUp("ibPaperType")->currentData().toString(), q("IronOn"));
    EXPECT_FALSE(second.isPresetChanged()) << "nor is it, once the panel has been looked at";
}

TEST(Remembering, MakesTheSameJobAgain)
{
    JobOptions options;
    for (int opening = 0; opening < 2; ++opening) {
        const Opening run(kInk);
        if (opening == 0) {
            run.choose("ibPaperType", q("IronOn"));
            run.choose("ibPrintQuality", q("Best"));
            run.dialog().host().setSetting(q("number-up"), q("2"));
        }
        run.print();
        const JobOptions made = jobOptions(run.dialog().desk().jobSettings());
        EXPECT_TRUE(opening == 0 || made == options);
        options = made;
    }
    EXPECT_NE(std::find(options.begin(), options.end(), std::pair(q("MediaType"), q("IronOn"))),
              options.end());
}

TEST(Remembering, KeepsThePrintersApart)
{
    {
        const Opening ink(kInk);
        ink.choose("ibPaperType", q("IronOn"));
        ink.print();
    }
    {
        const Opening toner(kToner);
        EXPECT_EQ(toner.preset(), q("Default Settings"));
        toner.dialog().host().setSetting(q("number-up"), q("2"));
        toner.print();
    }
    const Opening ink(kInk);
    EXPECT_EQ(ink.marked("MediaType"), q("IronOn"));
    EXPECT_FALSE(ink.dialog().host().state().settings.contains(q("number-up")));
    const Opening toner(kToner);
    EXPECT_EQ(toner.dialog().host().state().settings[q("number-up")], q("2"));
}

TEST(Remembering, KeepsWindowButNoSettingsOfADialogThatWasCancelled)
{
    {
        const Opening first(kInk);
        first.choose("ibPaperType", q("IronOn"));
        first.show("layout");
        first.drag(kRoomy);
        first.cancel();
    }
    const Opening second(kInk);
    EXPECT_EQ(second.window().size(), kRoomy);
    EXPECT_EQ(second.panel(), q("layout"));
    EXPECT_NE(second.marked("MediaType"), q("IronOn"));
    EXPECT_EQ(second.preset(), q("Default Settings"));
}

TEST(Remembering, LeavesCopiesAndPagesToTheNextDocument)
{
    {
        const Opening first(kInk);
        first.dialog().host().setSetting(q("copies"), q("7"));
        first.dialog().host().setSetting(q("page-ranges"), q("1"));
        first.print();
    }
    EXPECT_TRUE(Opening(kInk).dialog().host().state().settings.empty());
}

TEST(Remembering, IsOffUnlessAskedFor)
{
    {
        const Opening first(kInk, Remembers::No);
        first.choose("ibPaperType", q("IronOn"));
        first.show("summary");
        first.print();
        first.cancel();
    }
    EXPECT_FALSE(QFileInfo::exists(stateFolder() + q("/window.json")));
    EXPECT_TRUE(settingsFile().isNull());
}

TEST(Remembering, GivesBothTheDefaultsAndTheLastSettings)
{
    {
        const Opening first(kInk);
        first.choose("ibPaperType", q("IronOn"));
        first.print();
    }
    const Opening second(kInk);
    second.pickPreset(q("Default Settings"));
    EXPECT_EQ(second.marked("MediaType"), q("Automatic"));
    EXPECT_FALSE(second.isPresetChanged());
    second.pickPreset(q("Last Used Settings"));
    EXPECT_EQ(second.marked("MediaType"), q("IronOn"));
    EXPECT_FALSE(second.isPresetChanged());
}

TEST(Remembering, ResetsToTheSameDefaultsByTheButtonAndByTheMenu)
{
    {
        const Opening first(kInk);
        first.choose("ibPaperType", q("IronOn"));
        first.print();
    }
    ChoiceState states[2];
    for (ChoiceState &state : states) {
        const Opening second(kInk);
        second.dialog().host().setSetting(q("copies"), q("3"));
        if (&state == &states[0])
            second.click("resetButton");
        else
            second.pickPreset(q("Default Settings"));
        state = second.dialog().host().state();
        EXPECT_EQ(second.preset(), q("Default Settings"));
        EXPECT_FALSE(second.isPresetChanged());
    }
    EXPECT_EQ(states[0], states[1]);
    EXPECT_EQ(states[0].settings, PrintSettingsMap());
    EXPECT_NE(std::find(states[0].marks.begin(), states[0].marks.end(),
                        Choice{q("MediaType"), q("Automatic")}),
              states[0].marks.end());
}

TEST(Remembering, GivesTheLastSettingsBackWhenAResetIsUndone)
{
    {
        const Opening first(kInk);
        first.choose("ibPaperType", q("IronOn"));
        first.print();
    }
    const Opening second(kInk);
    second.click("resetButton");
    second.click("undoButton");
    EXPECT_EQ(second.marked("MediaType"), q("IronOn"));
    EXPECT_EQ(second.preset(), q("Last Used Settings"));
    EXPECT_FALSE(second.isPresetChanged());
}

TEST(Remembering, ListsWhatAnotherVersionOfThePpdNoLongerHas)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(q("printer.ppd"));
    write(ppd, bytesOf(kInk));
    {
        const Opening first(ppd);
        first.choose("ibPaperType", q("IronOn"));
        first.choose("ibPrintQuality", q("Best"));
        first.print();
    }
    write(ppd, bytesOf(kInk).replace("IronOn", "Hessian"));
    const Opening second(ppd);
    EXPECT_EQ(second.marked("PrintQuality"), q("Best")) << "what there is, is restored";
    EXPECT_EQ(second.marked("MediaType"), q("Automatic"));
    EXPECT_TRUE(second.notices().contains(q("“Last Used Settings”")))
        << second.notices().toStdString();
    EXPECT_TRUE(second.notices().contains(q("IronOn")));
}

TEST(Remembering, SetsDamagedFilesAsideSaysWhereAndPrintsAllTheSame)
{
    {
        const Opening first(kInk);
        first.choose("ibPaperType", q("IronOn"));
        first.print();
    }
    const QString settings = settingsFile();
    write(settings, "{\"format\"");
    write(stateFolder() + q("/window.json"), "no JSON");
    {
        const Opening second(kInk);
        EXPECT_TRUE(second.notices().contains(settings + q(".damaged-")))
            << second.notices().toStdString();
        EXPECT_TRUE(second.notices().contains(stateFolder() + q("/window.json.damaged-")));
        EXPECT_TRUE(second.notices().contains(q("give it back its old name, or delete it")));
        EXPECT_EQ(second.marked("MediaType"), q("Automatic"));
        second.choose("ibPaperType", q("IronOn"));
        second.print();
    }
    const Opening third(kInk);
    EXPECT_EQ(third.notices(), QString());
    EXPECT_EQ(third.marked("MediaType"), q("IronOn"));
}

/// Not even root may make a folder there.
TEST(Remembering, PrintsFromAReadOnlyHomeWithoutAWord)
{
    qputenv("XDG_STATE_HOME", "/sys/kernel");
    for (int opening = 0; opening < 2; ++opening) {
        const Opening run(kInk);
        EXPECT_EQ(run.notices(), QString());
        EXPECT_EQ(run.preset(), q("Default Settings"));
        run.choose("ibPaperType", q("IronOn"));
        run.print();
    }
}

TEST(Remembering, ReadsNothingThroughALinkAndSaysSo)
{
    const QTemporaryDir elsewhere;
    QDir().mkpath(QFileInfo(stateFolder()).path());
    ASSERT_TRUE(QFile::link(elsewhere.path(), stateFolder()));
    const Opening run(kInk);
    EXPECT_TRUE(run.notices().contains(stateFolder())) << run.notices().toStdString();
    run.print();
    run.cancel();
    EXPECT_TRUE(QDir(elsewhere.path()).isEmpty());
}

TEST(Remembering, CutsAWindowToTheScreenAndKeepsItsSizeForALargerOne)
{
    const QByteArray file =
        R"({"format": "korvane-print window", "version": 1, "width": 9000, "height": 8000})";
    write(stateFolder() + q("/window.json"), file);
    {
        const Opening run(kInk);
        EXPECT_EQ(run.window().size(), run.window().screen()->availableSize());
        run.cancel();
    }
    EXPECT_TRUE(bytesOf(stateFolder() + q("/window.json")).contains("9000"));
}

TEST(Remembering, IgnoresAPanelThatThePrinterDoesNotHave)
{
    const QByteArray file =
        R"({"format": "korvane-print window", "version": 1, "panel": "com.example.gone"})";
    write(stateFolder() + q("/window.json"), file);
    const Opening run(kInk);
    EXPECT_EQ(run.dialog().panels().frontIndex(), run.dialog().panels().firstIndex());
    EXPECT_EQ(run.notices(), QString());
}

TEST(Remembering, OpensWithTheDefaultsWhereTheHomeDoesNotAnswer)
{
    PrintCase printCase;
    printCase.ppd = kInk;
    auto opened = PrintDialog::open(printCase);
    const auto dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
    dialog->begin({.isInTime = false}, {});
    dialog->showPanels();
    EXPECT_TRUE(dialog->window()->notices().texts().join(u'\n').contains(q("does not answer")));
    EXPECT_EQ(dialog->printer().marks(), dialog->printer().defaults());
}

} // namespace
