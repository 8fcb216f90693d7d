#include "dialog/command_line.h"

#include "dialog/replay/scenario.h"
#include "dialog/usage.h"

#include <QCommandLineParser>

namespace dialog {
namespace {

void addCaseOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        valueOption("ppd", "The printer's PPD file.", "FILE"),
        valueOption("root", "Folder under which /Library/Printers is looked up.", "DIR"),
        valueOption("system-version", "System version that the panels see, such as 0x1060.", "V"),
        valueOption("language", "First preferred language, such as de or fr-CA.", "L"),
        valueOption("queue", "Print queue to send the job to.", "NAME"),
        valueOption("job-folder", "Folder for jobs that go to no queue.", "DIR"),
        valueOption("record", "Write what a person does to this new file, as a scenario.", "FILE"),
        flagOption("console", "Show the console lines of the panels."),
        helpOption(),
        flagOption("version", "Show the version and leave."),
    });
}

void addPrintOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        valueOption("print", "Print this document without a window.", "FILE"),
        valueOption("set", "Choose for that job, in the order given; may be repeated.",
                    "OPTION=CHOICE"),
        flagOption("dry-run", "Tell the options that would be sent, and send nothing."),
        flagOption("json", "With --dry-run: tell them as JSON."),
        flagOption("print-anyway", "Print also when a choice did not survive the rules."),
    });
}

void addReplayOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        valueOption("report", "Write the report to this file, - for standard output.", "OUT.json"),
        valueOption("pictures", "Folder for the pictures that the scenario takes.", "DIR"),
        valueOption("person",
                    "Folder with what the person has kept: .config and .local/state, copied.",
                    "DIR"),
        valueOption("saves", "Folder for the files that the scenario saves.", "DIR"),
        flagOption("dark", "Show the windows in the colours of a dark desktop."),
        flagOption("stable", "Write the same report for the same scenario: no job ids, no times."),
    });
}

PrintCase caseOf(const QCommandLineParser &parser)
{
    PrintCase printCase;
    printCase.ppd = given(parser, "ppd");
    printCase.root = given(parser, "root");
    printCase.language = given(parser, "language");
    printCase.queue = given(parser, "queue");
    printCase.jobFolder = given(parser, "job-folder");
    printCase.showsConsole = parser.isSet(QStringLiteral("console"));
    return printCase;
}

/// Null when the version was not given or can be read.
QString readSystemVersion(const QCommandLineParser &parser, PrintCase &printCase)
{
    const QString word = given(parser, "system-version");
    if (word.isNull())
        return {};
    const int version = replay::systemVersionOf(word);
    if (version < 0)
        return word + QStringLiteral(" is no system version; write it like 0x1060");
    printCase.systemVersion = version;
    return {};
}

bool asksForPrint(const QCommandLineParser &parser)
{
    for (const char *option : {"print", "set", "dry-run", "json", "print-anyway"}) {
        if (parser.isSet(QString::fromLatin1(option)))
            return true;
    }
    return false;
}

/// What is wrong with the words of a job without a window; null when nothing is.
QString printProblem(const QCommandLineParser &parser, const CommandLine &line)
{
    const QStringList files = parser.values(QStringLiteral("print"));
    const QStringList words = parser.positionalArguments();
    if (files.isEmpty() && line.request.sends)
        return QStringLiteral("there is nothing to print; add --print FILE, or --dry-run");
    if (files.size() > 1)
        return QStringLiteral("--print takes one FILE; this is another one: ") + files.last();
    if (files.contains(QString()))
        return QStringLiteral("--print needs a FILE");
    if (files.contains(QStringLiteral("-")))
        return QStringLiteral("standard input cannot be printed; --print needs a FILE");
    if (!words.isEmpty())
        return QStringLiteral("too many words: ") + words.first();
    if (line.printCase.ppd.isEmpty() && line.printCase.queue.isEmpty())
        return QStringLiteral("no printer; name one with --queue NAME or --ppd FILE");
    if (!line.record.isNull())
        return QStringLiteral("--record is for the dialog and for replay, not for --print");
    if (line.request.output == batch::Request::Output::Json && line.request.sends)
        return QStringLiteral("--json needs --dry-run");
    return {};
}

void takeRequest(const QCommandLineParser &parser, CommandLine &line)
{
    line.command = CommandLine::Command::Print;
    line.printCase.document = given(parser, "print");
    line.request.sets = parser.values(QStringLiteral("set"));
    line.request.sends = !parser.isSet(QStringLiteral("dry-run"));
    line.request.sendsLess = parser.isSet(QStringLiteral("print-anyway"));
    line.request.output = parser.isSet(QStringLiteral("json")) ? batch::Request::Output::Json
                                                               : batch::Request::Output::Lines;
}

QString takePositionals(const QStringList &words, CommandLine &line)
{
    const bool isReplay = line.command == CommandLine::Command::Replay;
    if (isReplay && words.isEmpty())
        return QStringLiteral("replay needs the scenario's file");
    if (words.size() > (isReplay ? 2 : 1))
        return QStringLiteral("too many words: ") + words.last();
    if (isReplay)
        line.scenario = words.first();
    line.printCase.document = words.value(isReplay ? 1 : 0);
    return {};
}

CommandLine helpLine(QCommandLineParser &parser, bool isReplay)
{
    if (isReplay) {
        parser.addPositionalArgument(QStringLiteral("replay"), QStringLiteral("Play a scenario."),
                                     QStringLiteral("replay"));
        parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The scenario."));
    } else {
        parser.setApplicationDescription(QStringLiteral(
            "Opens the print dialog, or with --print prints without a window. Instead, "
            "\"korvane-print --list\" lists the queues, \"korvane-print replay\" plays a scenario, "
            "\"korvane-print log\" reads a debug log and \"korvane-print check-ppd\" tells what "
            "the "
            "panels make of a PPD; each has a --help of its own.\n\n"
            "Status of --print and --dry-run: 0 the job was taken over, or would be as chosen; "
            "1 a choice did not survive the rules, or the job was refused; 2 it could not begin; "
            "3 the answer was lost, and the next start tells whether it printed; 130 or 143 a "
            "signal ended it. Unless it is 0 or 3, nothing was printed."));
    }
    parser.addPositionalArgument(QStringLiteral("DOCUMENT"),
                                 QStringLiteral("The document to print."),
                                 QStringLiteral("[DOCUMENT]"));
    CommandLine line;
    line.command = CommandLine::Command::ShowHelp;
    line.helpText = helpText(parser);
    return line;
}

} // namespace

std::variant<CommandLine, UsageError> parseCommandLine(const QStringList &words)
{
    const bool isReplay = words.value(1) == QLatin1String("replay");
    QStringList rest = words;
    if (isReplay)
        rest.removeAt(1);
    QCommandLineParser parser;
    addCaseOptions(parser);
    if (isReplay)
        addReplayOptions(parser);
    else
        addPrintOptions(parser);
    if (!parser.parse(rest))
        return UsageError{parser.errorText()};
    if (parser.isSet(QStringLiteral("help")))
        return helpLine(parser, isReplay);

    CommandLine line;
    line.command = isReplay ? CommandLine::Command::Replay : CommandLine::Command::OpenDialog;
    if (parser.isSet(QStringLiteral("version")))
        line.command = CommandLine::Command::ShowVersion;
    line.printCase = caseOf(parser);
    line.record = given(parser, "record");
    QString error = readSystemVersion(parser, line.printCase);
    const bool prints = line.command == CommandLine::Command::OpenDialog && asksForPrint(parser);
    if (prints)
        takeRequest(parser, line);
    if (error.isNull() && prints)
        error = printProblem(parser, line);
    else if (error.isNull() && line.command != CommandLine::Command::ShowVersion)
        error = takePositionals(parser.positionalArguments(), line);
    if (!error.isNull())
        return UsageError{error};
    if (isReplay) {
        line.isDark = parser.isSet(QStringLiteral("dark"));
        line.report = given(parser, "report");
        line.player.pictures = given(parser, "pictures");
        line.person = given(parser, "person");
        line.player.saves = given(parser, "saves");
        line.player.naming = parser.isSet(QStringLiteral("stable")) ? replay::Naming::Stable
                                                                    : replay::Naming::Actual;
    }
    return line;
}

} // namespace dialog
