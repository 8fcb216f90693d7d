#include "tests/dialog/program_run.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <unistd.h>

using namespace test;

namespace {

const QString kInk = q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/Korvane-S300.ppd");
const QString kToner = q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/Korvane-T500.ppd");

/// Runs of the program on a sample printer; no server answers.
class Command : public testing::Test
{
protected:
    void SetUp() override { qputenv("CUPS_SERVER", "127.0.0.1:9"); }

    /// The faults that the program tells, a line each, without its name.
    static QStringList faults(const ProgramRun &run)
    {
        QStringList lines;
        for (const QString &line : QString::fromUtf8(run.errors).split(u'\n')) {
            if (line.startsWith(q("korvane-print: ")))
                lines.append(line.section(q(": "), 1));
        }
        return lines;
    }
    /// Expects the status and exactly one fault; answers it.
    static QString faultOf(const QStringList &words, int status)
    {
        const ProgramRun run = runPrint(words);
        EXPECT_EQ(run.status, status) << run.errors.constData();
        EXPECT_EQ(run.output, "");
        const QStringList told = faults(run);
        EXPECT_EQ(told.size(), 1) << run.errors.constData();
        return told.value(0);
    }
    static QStringList onPrinter(const QString &ppd, const QStringList &words)
    {
        return QStringList{q("--root"), q(KORVANE_ROOT_DIR), q("--language"),
                           q("en"),     q("--ppd"),          ppd} +
               words;
    }
    static QStringList sets(const QStringList &assignments)
    {
        QStringList words;
        for (const QString &assignment : assignments)
            words << q("--set") << assignment;
        return words;
    }
    /// Options of a dry run in which every value survives.
    static QStringList dryRun(const QString &ppd, const QStringList &assignments)
    {
        const ProgramRun run =
            runPrint(onPrinter(ppd, sets(assignments) + QStringList{q("--dry-run")}));
        EXPECT_EQ(run.status, 0) << run.errors.constData();
        EXPECT_EQ(faults(run), QStringList());
        return QString::fromUtf8(run.output).split(u'\n', Qt::SkipEmptyParts);
    }

    /// What a dry run on the ink printer tells to be lost.
    static QStringList lossesIn(const QStringList &assignments)
    {
        const ProgramRun run =
            runPrint(onPrinter(kInk, sets(assignments) + QStringList{q("--dry-run")}));
        EXPECT_EQ(run.status, 1) << run.errors.constData();
        return faults(run);
    }

    StagedDriver files;
};

const QString kDocument = q(KORVANE_SAMPLE_DOCUMENT);

} // namespace

// Words that make no command.

TEST_F(Command, NeedsSomethingToPrintAndAPrinter)
{
    EXPECT_TEXT(faultOf({q("--queue"), q("ink"), q("--set"), q("A=B")}, 2),
                "there is nothing to print; add --print FILE, or --dry-run");
    EXPECT_TEXT(faultOf({q("--print"), kDocument}, 2),
                "no printer; name one with --queue NAME or --ppd FILE");
    EXPECT_TEXT(faultOf({q("--dry-run")}, 2),
                "no printer; name one with --queue NAME or --ppd FILE");
    EXPECT_TEXT(faultOf({q("--queue"), q(""), q("--print"), kDocument}, 2),
                "no printer; name one with --queue NAME or --ppd FILE");
}

TEST_F(Command, RefusesWordsThatDoNotGoTogether)
{
    const QStringList start = onPrinter(kInk, {q("--print"), kDocument});
    EXPECT_TEXT(faultOf(start + QStringList{q("--json")}, 2), "--json needs --dry-run");
    EXPECT_TEXT(faultOf(start + QStringList{q("--record"), files.path(q("r"))}, 2),
                "--record is for the dialog and for replay, not for --print");
    EXPECT_FALSE(QFile::exists(files.path(q("r"))));
    EXPECT_TEXT(faultOf(start + QStringList{q("b.pdf")}, 2), "too many words: b.pdf");
    EXPECT_TEXT(faultOf(start + QStringList{q("--print"), q("b.pdf")}, 2),
                "--print takes one FILE; this is another one: b.pdf");
    EXPECT_EQ(runPrint(start + QStringList{q("--report"), q("x")}).status, 2);
    EXPECT_EQ(runPrint(QStringList{q("replay"), q("x"), q("--set"), q("A=B")}).status, 2);
    EXPECT_EQ(runPrint(start + QStringList{q("--set")}).status, 2);
}

TEST_F(Command, RefusesADocumentThatCannotBePrinted)
{
    const auto fault = [](const QString &file) {
        return faultOf(onPrinter(kInk, {q("--print"), file}), 2);
    };
    EXPECT_TEXT(fault(q("")), "--print needs a FILE");
    EXPECT_TEXT(fault(q("-")), "standard input cannot be printed; --print needs a FILE");
    EXPECT_TRUE(fault(files.path(q("none.pdf"))).contains(q("none.pdf")));
    EXPECT_TRUE(fault(files.root()).contains(q("cannot be read")));
    const QString empty = files.write(q("empty.pdf"), {});
    EXPECT_SAME(fault(empty), q("the document %1 is empty").arg(empty));
    if (::geteuid() == 0)
        return; // root may read everything
    const QString locked = files.write(q("locked.pdf"), "%PDF");
    QFile::setPermissions(locked, {});
    EXPECT_TRUE(fault(locked).contains(q("cannot be read")));
}

TEST_F(Command, TellsEveryMistakeInTheAssignmentsAndBeginsNothing)
{
    const QString jobs = files.path(q("jobs"));
    const ProgramRun run = runPrint(
        onPrinter(kInk, sets({q("MediaType"), q("MediaTyp=IronOn"), q("MediaType=Iron-On Transfer"),
                              q("copies=0"), q("MediaType=IronOn")}) +
                            QStringList{q("--print"), kDocument, q("--job-folder"), jobs}));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(faults(run),
              (QStringList{q("--set MediaType has no \"=\"; write it as OPTION=CHOICE"),
                           q("no option MediaTyp; did you mean MediaType?"),
                           q("MediaType: \"Iron-On Transfer\" is the text of a choice; write "
                             "MediaType=IronOn"),
                           q("copies cannot be 0; it takes a whole number from 1 to 999")}));
    EXPECT_FALSE(QDir(jobs).exists());
}

TEST_F(Command, TheHelpTellsOptionsAndStatus)
{
    const ProgramRun run = runPrint({q("--help")});
    EXPECT_EQ(run.status, 0);
    for (const char *word : {"--print <FILE>", "--set <OPTION=CHOICE>", "--dry-run", "--json",
                             "--print-anyway", "Status of --print"})
        EXPECT_TRUE(run.output.contains(word)) << word;
    EXPECT_EQ(runPrint({q("--print"), q("x"), q("--help")}).output, run.output);
}

// Printers that cannot be had.

TEST_F(Command, TellsWhatIsWrongWithAPpd)
{
    const QString path = files.write(q("text.ppd"), "hello\n");
    EXPECT_TRUE(
        faultOf({q("--ppd"), path, q("--print"), kDocument}, 2).startsWith(path)); // and why
    EXPECT_TRUE(faultOf({q("--ppd"), files.path(q("none.ppd")), q("--dry-run")}, 2)
                    .contains(q("none.ppd")));
}

TEST_F(Command, TellsThatNoServerAnswers)
{
    EXPECT_TRUE(faultOf({q("--queue"), q("ink"), q("--print"), kDocument}, 2)
                    .startsWith(q("No print server answers at 127.0.0.1:9")));
}

// What would be sent.

TEST_F(Command, ADryRunTellsOneOptionALine)
{
    EXPECT_EQ(dryRun(kInk, {q("PrintQuality=Best"), q("copies=2"), q("page-ranges=1-3")}),
              (QStringList{q("PrintQuality=Best"), q("copies=2"),
                           q("multiple-document-handling=separate-documents-collated-copies"),
                           q("page-ranges=1-3")}))
        << "as the window's own control does it, several copies are collated";
}

TEST_F(Command, AControlsOwnActionRunsThePanelsRules)
{
    EXPECT_EQ(dryRun(kInk, {q("MediaType=IronOn")}),
              (QStringList{q("MediaType=IronOn"), q("mirror=true")}))
        << "iron-on paper switches mirror on";
}

TEST_F(Command, AnAdvancedControlIsOpenedFirst)
{
    EXPECT_EQ(lossesIn({q("ColorPreferences=Vivid"), q("ICCTestChartProcess=On"),
                        q("ColorOutput=Black")}),
              (QStringList{q("ColorPreferences: Vivid was chosen, Automatic will print, because "
                             "ColorOutput=Black brings that about"),
                           q("ICCTestChartProcess: On was chosen, Off will print, because "
                             "ColorOutput=Black brings that about")}))
        << "the rules of colour output have run";
    EXPECT_EQ(dryRun(kInk, {q("ColorOutput=Black"), q("InkToUse=BlackColor"), q("Sharpen=High")}),
              (QStringList{q("ColorOutput=Black"), q("InkToUse=BlackColor"), q("Sharpen=High")}));
}

TEST_F(Command, AnOptionWhoseControlIsHiddenOrDisabledIsMarked)
{
    EXPECT_EQ(dryRun(kInk, {q("Mirror=On")}), QStringList{q("Mirror=On")}) << "hidden since 10.6";
    EXPECT_EQ(dryRun(kToner, {q("ImprovePrintQuality=ImproveTonerFixing")}),
              QStringList{q("ImprovePrintQuality=ImproveTonerFixing")})
        << "disabled while nothing is to be improved";
    EXPECT_EQ(dryRun(kInk, {q("PageSize=A4")}), QStringList{q("PageSize=A4")}) << "no panel has it";
}

TEST_F(Command, BoxesMatricesAndSteppersAreUsedInTheSecondPanelToo)
{
    EXPECT_EQ(dryRun(kToner, {q("ColorOutput=Mono"), q("Threshold=5"), q("ImprovementSettings=On"),
                              q("ImprovePrintQuality=ImproveWrinklesorCreases"),
                              q("ReduceGhosting=On"), q("PrintDensity=Off")}),
              (QStringList{q("ColorOutput=Mono"), q("Threshold=5"), q("ImprovementSettings=On"),
                           q("ImprovePrintQuality=ImproveWrinklesorCreases"),
                           q("ReduceGhosting=On"), q("PrintDensity=Off")}));
}

TEST_F(Command, AValueThatDoesNotSurviveEndsTheCommandWithoutAJob)
{
    const QString jobs = files.path(q("jobs"));
    const QStringList words = sets({q("MediaType=IronOn"), q("PrintQuality=Draft")}) +
                              QStringList{q("--print"), kDocument, q("--job-folder"), jobs};
    EXPECT_TEXT(faultOf(onPrinter(kInk, words), 1),
                "PrintQuality: Draft was chosen, Automatic will print, because MediaType=IronOn "
                "forbids it");
    EXPECT_FALSE(QDir(jobs).exists());
    const ProgramRun anyway = runPrint(onPrinter(kInk, words + QStringList{q("--print-anyway")}));
    EXPECT_EQ(anyway.status, 0);
    EXPECT_EQ(faults(anyway).size(), 1) << "it is told all the same";
    const QJsonObject ticket = readJson(QString::fromUtf8(anyway.output).trimmed());
    EXPECT_EQ(ticket[q("marked")][q("PrintQuality")], QJsonValue(q("Automatic")));
}

TEST_F(Command, TheOrderOfAssignmentsIsThePersonsOrder)
{
    EXPECT_EQ(dryRun(kInk, {q("PageSize=EnvelopeDL"), q("MediaType=Envelope")}),
              (QStringList{q("PageSize=EnvelopeDL"), q("MediaType=Envelope")}));
    EXPECT_EQ(lossesIn({q("MediaType=Envelope"), q("PageSize=EnvelopeDL")}),
              QStringList{q("MediaType: Envelope was chosen, Automatic will print, because "
                            "PageSize=Letter forbids it")});
}

TEST_F(Command, JsonTellsWhatWasLost)
{
    const ProgramRun run = runPrint(onPrinter(kInk, sets({q("Mirror=Off"), q("MediaType=IronOn")}) +
                                                        QStringList{q("--dry-run"), q("--json")}));
    EXPECT_EQ(run.status, 1);
    const QJsonObject told = QJsonDocument::fromJson(run.output).object();
    EXPECT_EQ(told[q("printer")], QJsonValue(q("Korvane S300")));
    EXPECT_EQ(told[q("queue")], QJsonValue(QJsonValue::Null));
    EXPECT_EQ(told[q("document")], QJsonValue(QJsonValue::Null));
    EXPECT_EQ(told[q("options")],
              QJsonValue(QJsonObject{{q("MediaType"), q("IronOn")}, {q("mirror"), q("true")}}));
    const QJsonArray expected{
        QJsonObject{{q("option"), q("Mirror")},
                    {q("chosen"), q("Off")},
                    {q("prints"), q("mirror=true")},
                    {q("reason"), q("the job setting mirror takes its place")}}};
    EXPECT_EQ(told[q("lost")], QJsonValue(expected));
}

TEST_F(Command, APanelThatAsksEndsTheCommand)
{
    EXPECT_TEXT(faultOf(onPrinter(kInk, {q("--system-version"), q("0x1049"), q("--set"),
                                         q("MediaType=Envelope"), q("--dry-run")}),
                        1),
                "MediaType=Envelope: a panel asks, and nobody is there to answer: Conflicting "
                "settings");
}

TEST_F(Command, KeepsTheConsoleForThoseWhoWantIt)
{
    const QStringList words =
        onPrinter(kInk, sets({q("ColorOutput=Black")}) + QStringList{q("--dry-run")});
    EXPECT_FALSE(runPrint(words).errors.contains("Understanding"));
    EXPECT_TRUE(runPrint(words + QStringList{q("--console")}).errors.contains("Understanding"));
}
