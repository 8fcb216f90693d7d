#include "tests/dialog/program_run.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using test::ProgramRun;
using test::q;
using test::runPrint;

namespace {

/// Runs scenarios of one staged printer and reads their reports.
class Program : public testing::Test
{
protected:
    ProgramRun replay(const QByteArray &steps, const QStringList &more = {})
    {
        driver.writePrinter();
        const QString scenario =
            driver.write(q("case.txt"), "printer printer.ppd\nroot root\nlanguage en\n" + steps);
        QFile::remove(reportPath());
        return runPrint(QStringList{q("replay"), scenario, q("--report"), reportPath(),
                                    q("--job-folder"), driver.path(q("jobs"))} +
                        more);
    }
    /// Expects every step to be done.
    QJsonObject reportOf(const QByteArray &steps, const QStringList &more = {})
    {
        const ProgramRun run = replay(steps, more);
        EXPECT_EQ(run.status, 0) << run.errors.constData();
        return test::readJson(reportPath());
    }
    /// Expects the step to fail; answers the line that says why.
    QByteArray failureOf(const QByteArray &steps)
    {
        const ProgramRun run = replay(steps);
        EXPECT_EQ(run.status, 1) << run.errors.constData();
        for (const QByteArray &line : run.errors.split('\n')) {
            if (line.contains("case.txt:"))
                return line.mid(line.indexOf("case.txt:"));
        }
        return run.errors;
    }
    QString reportPath() const { return driver.path(q("report.json")); }

    /// Events of a kind, as one short text each.
    static QStringList events(const QJsonObject &report, const char *kind, const char *key)
    {
        QStringList found;
        for (const QJsonValue &event : report[q("events")].toArray()) {
            if (event[q("event")] == q(kind))
                found.append(event[q(key)].toString());
        }
        return found;
    }
    static QStringList kinds(const QJsonObject &report)
    {
        QStringList found;
        for (const QJsonValue &event : report[q("events")].toArray())
            found.append(event[q("event")].toString());
        return found;
    }

    test::StagedDriver driver;
};

// What the program is started with.

TEST_F(Program, WithoutAPrinterAReplayCannotStart)
{
    const ProgramRun run =
        runPrint({q("replay"), driver.write(q("any.scenario"), "mark PageSize A4\n")});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.errors.contains("--ppd")) << run.errors.constData();
}

TEST_F(Program, TellsFileLineAndReasonOfARefusedPpd)
{
    const QByteArray longLine = "*Comment: \"" + QByteArray(300, 'x') + "\"\n";
    const QString path = driver.write(q("bad.ppd"), test::p1().bytes() + longLine);
    const ProgramRun run = runPrint({q("--ppd"), path});
    EXPECT_EQ(run.status, 2);
    const QByteArray place = path.toUtf8() + ":";
    EXPECT_TRUE(run.errors.contains(place)) << run.errors.constData();
    const QByteArray rest = run.errors.mid(run.errors.indexOf(place) + place.size());
    EXPECT_GT(rest.left(rest.indexOf(':')).toInt(), 0) << "a line number in " << rest.constData();
    EXPECT_TRUE(rest.contains("; correct the file")) << rest.constData();
}

TEST_F(Program, RefusesAPpdThatIsMissingEmptyNoPpdOrNoFile)
{
    const QByteArray fifo = driver.path(q("fifo")).toUtf8();
    ASSERT_EQ(mkfifo(fifo.constData(), 0600), 0);
    for (const QString &path :
         {driver.path(q("none.ppd")), driver.write(q("empty.ppd"), {}),
          driver.write(q("text.ppd"), "hello\n"), driver.root(), q(fifo.constData())}) {
        const ProgramRun run = runPrint({q("--ppd"), path});
        EXPECT_EQ(run.status, 2) << path.toStdString();
        EXPECT_TRUE(run.errors.contains(path.toUtf8())) << run.errors.constData();
    }
}

TEST_F(Program, RefusesADocumentThatIsMissingBeforeAnythingElse)
{
    const ProgramRun run =
        runPrint({q("--ppd"), driver.writePrinter(), driver.path(q("none.pdf"))});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.errors.contains("There is no document")) << run.errors.constData();
}

TEST_F(Program, RefusesWordsThatMakeNoCommand)
{
    EXPECT_EQ(runPrint({q("--no-such-option")}).status, 2);
    EXPECT_EQ(runPrint({q("a.pdf"), q("b.pdf")}).status, 2);
    EXPECT_EQ(runPrint({q("replay")}).status, 2);
    EXPECT_EQ(runPrint({q("--report"), q("x")}).status, 2) << "an option of replay only";
    EXPECT_EQ(runPrint({q("--system-version"), q("ten")}).status, 2);
}

TEST_F(Program, ShowsHelpAndVersion)
{
    const ProgramRun help = runPrint({q("--help")});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.contains("--job-folder"));
    EXPECT_FALSE(help.output.contains("--report"));
    EXPECT_TRUE(runPrint({q("replay"), q("--help")}).output.contains("--report"));
    EXPECT_TRUE(runPrint({q("--version")}).output.startsWith("korvane-print "));
}

// Scenarios that cannot start.

TEST_F(Program, ReplayWithoutAScenarioOrPrinterCannotStart)
{
    EXPECT_EQ(runPrint({q("replay"), driver.path(q("none.txt"))}).status, 2);
    EXPECT_EQ(runPrint({q("replay"), driver.write(q("a.txt"), "chose a b\n")}).status, 2);
    EXPECT_EQ(runPrint({q("replay"), driver.write(q("b.txt"), "save\n")}).status, 2);
    EXPECT_EQ(runPrint({q("replay"), driver.write(q("c.txt"), "printer none.ppd\nsave\n")}).status,
              2);
}

TEST_F(Program, ReplayOfNothingIsDone)
{
    const ProgramRun run = runPrint({q("replay"), driver.write(q("a.txt"), "# nothing\n")});
    EXPECT_EQ(run.status, 0) << run.errors.constData();
}

// The window without panels.

TEST_F(Program, OpensWithoutPanelsWhereTheLibraryIsTruncated)
{
    driver.replaceLibrary(test::fileBytes(q(DIALOG_TEST_MODULE)).left(5000));
    const ProgramRun run = replay("expect /panels []\nclick printButton\n");
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    EXPECT_TRUE(run.errors.contains("is damaged")) << run.errors.constData();
}

TEST_F(Program, OpensWithoutPanelsWhereTheInterfaceIsForeign)
{
    driver.replaceLibraryBy(q(DIALOG_FOREIGN_MODULE));
    const ProgramRun run = replay("expect /panels []\n");
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    EXPECT_TRUE(run.errors.contains("made for another version")) << run.errors.constData();
}

TEST_F(Program, OpensWithoutPanelsWhereThePathLeadsOutside)
{
    const QString printer =
        driver.write(q("outside.ppd"),
                     test::p1().withAttribute("APDialogExtension", "/tmp/Panels.bundle").bytes());
    const ProgramRun run = runPrint(
        {q("replay"), driver.write(q("a.txt"), "expect /panels []\n"), q("--ppd"), printer});
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    EXPECT_TRUE(run.errors.contains("outside /Library/Printers")) << run.errors.constData();
}

TEST_F(Program, OpensWithoutPanelsWhereThePpdNamesNone)
{
    const QString printer = driver.write(q("bare.ppd"), test::p1().bytes());
    const ProgramRun run = runPrint(
        {q("replay"), driver.write(q("a.txt"), "expect /panels []\n"), q("--ppd"), printer});
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    EXPECT_TRUE(run.errors.contains("names no panels")) << run.errors.constData();
}

// Steps.

TEST_F(Program, ShowsThePanelsInOrderAndTellsThemWhenTheyComeAndGo)
{
    const QJsonObject report =
        reportOf("expect /front Basics\nshow Extras\nexpect /front Extras\n"
                 "show com.example.basics\nexpect /front Basics\nshow Basics\n");
    EXPECT_EQ(events(report, "console", "text"),
              QStringList({q("Basics will show"), q("Basics should hide"), q("Extras will show"),
                           q("Extras should hide"), q("Basics will show")}));
}

TEST_F(Program, ChoosesByTitleAndByIndex)
{
    const QJsonObject report =
        reportOf("choose ibQuality 'Best text'\nexpect /marked/PrintQuality Best\n"
                 "choose ibQuality #0\nexpect /marked/PrintQuality Draft\n"
                 "choose ibQuality #0\n");
    EXPECT_EQ(events(report, "offer", "choice"), QStringList({q("Best"), q("Draft"), q("Draft")}))
        << "picking the selected item offers again";
}

TEST_F(Program, TicksBoxesAndRefusesToTickTwice)
{
    reportOf("tick ibMirror\nexpect /marked/Mirror On\nuntick ibMirror\nexpect /marked/Mirror Off\n"
             "click ibMirror\nexpect /panels/0/controls/ibMirror/state 1\n");
    EXPECT_EQ(failureOf("tick ibMirror\ntick ibMirror\n"),
              "case.txt:5: ibMirror: it is ticked already");
    EXPECT_EQ(failureOf("untick ibMirror\n"), "case.txt:4: ibMirror: it is not ticked");
}

TEST_F(Program, SetsRowsSteppersAndFields)
{
    reportOf(
        "row ibMatrix 2\nexpect /panels/0/controls/ibMatrix/row 2\n"
        "step ibStepper up\nexpect /panels/0/controls/ibStepper/value 4\n"
        "step ibStepper down\nstep ibStepper down\nexpect /panels/0/controls/ibStepper/value 2\n"
        "type ibField 'aB 5'\nexpect /panels/0/controls/ibField/text 'aB 5'\n"
        "paste ibField 日本\nexpect /panels/0/controls/ibField/text 日本\n"
        "key Backspace\nexpect /panels/0/controls/ibField/text 日\n"
        "type ibField ''\nexpect /panels/0/controls/ibField/text ''\n");
}

TEST_F(Program, TheWheelDoesNothingWithoutTheFocus)
{
    reportOf("wheel ibQuality down\nexpect /panels/0/controls/ibQuality/index 1\n");
}

TEST_F(Program, TheKeyGoesToTheFocus)
{
    reportOf("choose ibQuality #0\nkey Down\nexpect /panels/0/controls/ibQuality/index 1\n"
             "wheel ibQuality down\nexpect /panels/0/controls/ibQuality/index 2\n");
}

TEST_F(Program, ErrorsNameFileLineAndNearestName)
{
    EXPECT_EQ(failureOf("\ntick ibmirorr\n"),
              "case.txt:5: no control ibmirorr; did you mean ibMirror?");
    EXPECT_EQ(failureOf("tick ibHidden\n"), "case.txt:4: ibHidden: it is hidden");
    EXPECT_EQ(failureOf("tick ibDisabled\n"), "case.txt:4: ibDisabled: it is disabled");
    EXPECT_EQ(failureOf("choose ibMirror x\n"), "case.txt:4: ibMirror: it is no pop-up");
    EXPECT_EQ(failureOf("choose ibQuality 'Bset text'\n"),
              "case.txt:4: ibQuality: no item Bset text; did you mean Best text?");
    EXPECT_EQ(failureOf("choose ibQuality #9\n"), "case.txt:4: ibQuality: no item #9");
    EXPECT_EQ(failureOf("row ibMatrix 3\n"), "case.txt:4: ibMatrix: it has no row 3, only 0 to 2");
    EXPECT_EQ(failureOf("show Extars\n"), "case.txt:4: no panel Extars; did you mean Extras?");
    EXPECT_EQ(failureOf("mark PrintQualty Best\n"),
              "case.txt:4: no option PrintQualty; did you mean PrintQuality?");
    EXPECT_EQ(failureOf("mark PrintQuality Bast\n"),
              "case.txt:4: no choice Bast; did you mean Best?");
    EXPECT_EQ(failureOf("close ibOuterWindow\n"),
              "case.txt:4: ibOuterWindow is not the window in front, printWindow is");
    EXPECT_EQ(failureOf("cancel\nsave\n"), "case.txt:5: the dialog has been left before");
}

TEST_F(Program, AFailedExpectationShowsBothValues)
{
    EXPECT_EQ(failureOf("expect /marked/PrintQuality Best\n"),
              "case.txt:4: /marked/PrintQuality: expected \"Best\", found \"Automatic\"");
    EXPECT_EQ(failureOf("expect /nothing/there null\n"),
              "case.txt:4: /nothing/there: expected null, found nothing");
}

TEST_F(Program, TheReportOfAFailedScenarioHoldsWhatHappenedBefore)
{
    EXPECT_EQ(replay("report one\ntick ibNone\nreport two\n").status, 1);
    const QJsonObject report = test::readJson(reportPath());
    EXPECT_EQ(report[q("snapshots")].toObject().keys(), QStringList({q("one")}));
}

TEST_F(Program, MarksJobSettingsAndPaperBeforeThePanels)
{
    const QJsonObject report =
        reportOf("mark PrintQuality Best\njob copies 2\npaper EnvelopeDL\nreport r\n");
    const QJsonValue snapshot = report[q("snapshots")][q("r")];
    EXPECT_EQ(snapshot[q("marked")][q("PrintQuality")], q("Best"));
    EXPECT_EQ(snapshot[q("printSettings")][q("copies")], q("2"));
}

TEST_F(Program, RefusedOffersAreAnsweredNoAndMarkNothing)
{
    const QJsonObject report = reportOf("refuse PrintQuality 1\nchoose ibQuality #2\n"
                                        "expect /marked/PrintQuality Automatic\nchoose ibQuality "
                                        "#2\nexpect /marked/PrintQuality Best\n");
    QList<bool> answers;
    for (const QJsonValue &event : report[q("events")].toArray()) {
        if (event[q("event")] == q("offer"))
            answers.append(event[q("answer")].toBool());
    }
    EXPECT_EQ(answers, QList<bool>({false, true}));
}

TEST_F(Program, WritesTheReportIntoAPipeAndLeavesItOne)
{
    const QByteArray pipe = QFile::encodeName(driver.path(q("report")));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    const int reader = open(pipe.constData(), O_RDWR | O_NONBLOCK);
    const ProgramRun run =
        runPrint({q("replay"), driver.write(q("a.txt"), "report start\n"), q("--ppd"),
                  driver.writePrinter(), q("--report"), QFile::decodeName(pipe)});
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    char start[2] = {};
    EXPECT_EQ(read(reader, start, 1), 1);
    EXPECT_STREQ(start, "{");
    close(reader);
    struct stat kind = {};
    ASSERT_EQ(stat(pipe.constData(), &kind), 0);
    EXPECT_TRUE(S_ISFIFO(kind.st_mode));
}

TEST_F(Program, AConflictingOfferIsRefusedWithBothTextsInANotice)
{
    const ProgramRun run =
        replay("choose ibQuality #0\nchoose ibMedia #1\nexpect /marked/MediaType Plain\n");
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    EXPECT_TRUE(run.errors.contains("Paper Type: Iron-On Transfer")) << run.errors.constData();
    EXPECT_TRUE(run.errors.contains("Print Quality: Quick")) << run.errors.constData();
}

TEST_F(Program, TellsOtherPanelsBetweenTheSteps)
{
    reportOf("choose ibQuality #2\nexpect /panels/1/controls/ibHeard/text PrintQuality=Best;\n"
             "expect /panels/0/controls/ibHeard/text ''\n"
             "other Sharpen high\nexpect /marked/Sharpen High\n"
             "expect /panels/0/controls/ibHeard/text Sharpen=high;\n");
}

TEST_F(Program, ReportsResizesNotificationsAndHelp)
{
    const QJsonObject report = reportOf("click ibGrow\nshow Extras\nclick helpButton\n");
    EXPECT_EQ(events(report, "notification", "name"), QStringList({q("grown")}));
    EXPECT_TRUE(kinds(report).contains(q("resize")));
    EXPECT_EQ(events(report, "help", "book"), QStringList({q("Extras Help")}));
}

TEST_F(Program, SnapshotsAreSilentAndHoldEveryPanel)
{
    const QJsonObject report = reportOf("report r\n");
    EXPECT_EQ(events(report, "console", "text"), QStringList({q("Basics will show")}));
    const QJsonValue panel = report[q("snapshots")][q("r")][q("panels")][0];
    EXPECT_EQ(panel[q("kind")], q("com.example.basics"));
    EXPECT_EQ(panel[q("summary")][0][1], q("Basics"));
    EXPECT_EQ(panel[q("frames")][q("view")].toArray().size(), 4);
    const QJsonValue quality = panel[q("controls")][q("ibQuality")];
    EXPECT_EQ(quality[q("items")][1], QJsonValue(QJsonArray({q("Normal text"), q("Normal")})));
    EXPECT_EQ(quality[q("index")], 1);
    EXPECT_EQ(quality[q("visible")], true);
    EXPECT_EQ(panel[q("controls")][q("ibHidden")][q("visible")], false);
    EXPECT_EQ(panel[q("controls")][q("ibDisabled")][q("enabled")], false);
}

TEST_F(Program, TheSameScenarioGivesTheSameBytes)
{
    const QByteArray steps =
        "choose ibQuality #2\nreport r\nprint\nclick ibAsk\nclick ibMore\nclick ibDone\nreport s\n";
    ASSERT_EQ(replay(steps, {q("--stable")}).status, 0);
    const QByteArray first = test::fileBytes(reportPath());
    ASSERT_EQ(replay(steps, {q("--stable")}).status, 0);
    EXPECT_EQ(test::fileBytes(reportPath()), first);
    EXPECT_TRUE(first.contains("\"job-1\""));
    EXPECT_TRUE(first.contains("job-1/ticket.json"));
}

TEST_F(Program, PicturesOfADarkDesktopAreDark)
{
    const auto lightness = [&](const QStringList &options) {
        const QString pictures = driver.path(q("pictures"));
        reportOf("picture main\n", QStringList(options) << q("--pictures") << pictures);
        return QImage(pictures + q("/main.png")).pixelColor(1, 1).lightness();
    };
    EXPECT_GT(lightness({}), 200);
    EXPECT_LT(lightness({q("--dark")}), 80);
}

TEST_F(Program, PicturesShowTheWindowInFront)
{
    const QString pictures = driver.path(q("pictures"));
    reportOf("picture main\nclick ibAsk\npicture modal\nclose ibOuterWindow\n",
             {q("--pictures"), pictures});
    EXPECT_TRUE(test::fileBytes(pictures + q("/main.png")).startsWith("\x89PNG"));
    EXPECT_NE(test::fileBytes(pictures + q("/main.png")),
              test::fileBytes(pictures + q("/modal.png")));
}

TEST_F(Program, FilesAreSavedWhereAFolderForThemIsGiven)
{
    const QString saves = driver.path(q("saves"));
    const ProgramRun refused = replay("save-ticket job.json\n", {});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.errors.contains(
        "nothing can be saved without a folder; name one with --saves DIR"));
    ASSERT_EQ(replay("save-ticket job.json\n", {q("--saves"), saves}).status, 0);
    EXPECT_TRUE(test::fileBytes(saves + q("/job.json")).startsWith('{'));
}

// Modal windows.

TEST_F(Program, StepsRunInsideANoticeWithinANotice)
{
    const QJsonObject report =
        reportOf("click ibAsk\nclick ibMore\nclick ibDone\nexpect /marked/Sharpen High\n");
    EXPECT_EQ(kinds(report),
              QStringList({q("console"), q("window"), q("window"), q("window-closed"), q("console"),
                           q("window-closed"), q("offer")}));
    EXPECT_EQ(events(report, "window", "name"),
              QStringList({q("ibOuterWindow"), q("ibInnerWindow")}));
    const QJsonValue texts = report[q("events")][1][q("texts")];
    EXPECT_EQ(texts[q("ibOuterLabel")], q("Attention"));
    EXPECT_EQ(texts[q("ibMore")], q("More"));
}

TEST_F(Program, WindowsCloseByTheirCloseButtonAndByKeys)
{
    const QJsonObject report =
        reportOf("click ibAsk\nclick ibMore\nclose ibInnerWindow\n"
                 "click ibAsk\nkey Escape\nclick ibAsk\nclose ibOuterWindow\nreport r\n");
    EXPECT_EQ(events(report, "window-closed", "name").size(), 4);
    EXPECT_EQ(kinds(report).count(q("offer")), 3);
}

TEST_F(Program, ControlsBehindAModalWindowAreOutOfReach)
{
    EXPECT_TRUE(
        failureOf("click ibAsk\ntick ibMirror\n").startsWith("case.txt:5: no control ibMirror"));
    EXPECT_EQ(failureOf("click ibAsk\nshow Extras\n"),
              "case.txt:5: ibOuterWindow must be closed first");
}

TEST_F(Program, LeavingInsideModalWindowsEndsCleanly)
{
    const QJsonObject report = reportOf("click ibAsk\nclick ibMore\ncancel\n");
    EXPECT_EQ(events(report, "window-closed", "name"),
              QStringList({q("ibInnerWindow"), q("ibOuterWindow")}));
}

TEST_F(Program, AScenarioThatEndsInsideModalWindowsEndsCleanly)
{
    const QJsonObject report = reportOf("click ibAsk\nclick ibMore\n");
    EXPECT_EQ(events(report, "window-closed", "name").size(), 2);
}

// Jobs.

TEST_F(Program, SaveCommitsEveryPanelInOrder)
{
    const QJsonObject report = reportOf("choose ibQuality #2\nsave\n");
    EXPECT_EQ(events(report, "console", "text"),
              QStringList({q("Basics will show"), q("Basics saves"), q("Extras saves")}));
    EXPECT_EQ(events(report, "offer", "choice"),
              QStringList({q("Best"), q("Automatisch"), q("Best"), q("Automatisch")}));
}

TEST_F(Program, PrintWritesTheJobFolder)
{
    const QString document = driver.write(q("sheet.pdf"), "%PDF-1.4");
    const QJsonObject report = reportOf(
        "choose ibQuality #2\njob mirror true\ntick ibMirror\nprint sheet.pdf\nreport after\n");
    QJsonValue job;
    for (const QJsonValue &event : report[q("events")].toArray()) {
        if (event[q("event")] == q("job"))
            job = event;
    }
    const QJsonObject options{{q("PrintQuality"), q("Best")}, {q("mirror"), q("true")}};
    EXPECT_EQ(job[q("options")].toObject(), options);
    const QString ticket = job[q("ticket")].toString();
    EXPECT_TRUE(ticket.startsWith(driver.path(q("jobs/korvane-job-")))) << ticket.toStdString();
    EXPECT_EQ(test::readJson(ticket)[q("options")].toObject(), options);
    EXPECT_EQ(test::fileBytes(QFileInfo(ticket).path() + q("/document.pdf")), "%PDF-1.4");
}

TEST_F(Program, PrintOfAMissingDocumentFailsBeforeAnythingIsWritten)
{
    EXPECT_TRUE(failureOf("print none.pdf\n").contains("There is no document"));
    EXPECT_FALSE(QDir(driver.path(q("jobs"))).exists());
}

TEST_F(Program, ThePrintButtonAsksBeforeAJobThatIsNotWhatWasChosen)
{
    const QJsonObject report =
        reportOf("choose ibQuality #0\nchoose ibMedia #1\nclick printButton\n"
                 "click goBackButton\nclick printButton\nclick printAnywayButton\n");
    EXPECT_EQ(kinds(report).count(q("job")), 1);
    const QJsonObject marked =
        test::readJson(events(report, "job", "ticket").first())[q("marked")].toObject();
    EXPECT_EQ(marked[q("MediaType")], q("IronOn"))
        << "the panel kept the refused choice, the job carries it";
}

TEST_F(Program, ThePrintButtonPrintsAtOnceWhereNothingDiffers)
{
    EXPECT_EQ(kinds(reportOf("choose ibQuality #2\nclick printButton\n")).count(q("job")), 1);
}

TEST_F(Program, AJobForAServerThatIsNotThereKeepsTheDialogOpen)
{
    driver.write(q("sheet.pdf"), "%PDF-1.4");
    qputenv("CUPS_SERVER", "127.0.0.1:1");
    driver.writePrinter();
    const QByteArray steps =
        "printer printer.ppd\nroot root\nqueue nowhere\nchoose ibQuality #2\nprint sheet.pdf\n";
    const ProgramRun run = runPrint({q("replay"), driver.write(q("queue.txt"), steps)});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.contains("There is no print server to send the job to"))
        << run.errors.constData();
}

TEST_F(Program, ShowsConsoleLinesWhereNoTerminalIsDisturbed)
{
    const QStringList flag{q("--console")};
    for (const QStringList &more : {QStringList(), flag})
        EXPECT_TRUE(replay("show Extras\n", more).errors.contains("\nExtras will show\n"));
}

TEST_F(Program, SpeaksTheFirstPreferredLanguage)
{
    driver.write(q("sheet.pdf"), "%PDF-1.4");
    const QString printer = driver.write(q("bare.ppd"), test::p1().bytes());
    const QString scenario = driver.write(q("a.txt"), "expect /panels []\n");
    EXPECT_TRUE(runPrint({q("replay"), scenario, q("--ppd"), printer, q("--language"), q("de-AT")})
                    .errors.contains("nennt keine Einstellungsseiten"));
    EXPECT_TRUE(runPrint({q("replay"), scenario, q("--ppd"), printer, q("--language"), q("ja")})
                    .errors.contains("設定パネル"));
}

} // namespace
