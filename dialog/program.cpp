#include "dialog/program.h"

#include "dialog/batch/batch_run.h"
#include "dialog/batch/signal_watch.h"
#include "dialog/check/check_command.h"
#include "dialog/command_line.h"
#include "dialog/log/log_command.h"
#include "dialog/printers/user_files.h"
#include "dialog/queue_dialog.h"
#include "dialog/queue_list_command.h"
#include "dialog/record/recorder.h"
#include "dialog/replay/scenario.h"
#include "dialog/usage.h"
#include "dialog/window/print_window.h"
#include "platform/console.h"
#include "platform/controls/dark_palette.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <unistd.h>

namespace dialog {
namespace {

/// A line feed at the end of a console line belongs to it.
void writeConsoleLine(const QString &line)
{
    const QString text = line.endsWith(u'\n') ? line.chopped(1) : line;
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
}

/// Console lines would only disturb a person at a terminal, and a script that looks for faults.
void setUpConsole(const CommandLine &line)
{
    const bool isSilent = !line.printCase.showsConsole &&
                          (isatty(STDERR_FILENO) || line.command == CommandLine::Command::Print);
    if (isSilent)
        platform::setConsoleSink([](const QString &) {});
    else
        platform::setConsoleSink(writeConsoleLine);
}

QtMessageHandler &formerMessageHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// The platform without a display says of each window that it has no window system.
void dropRemarksOnMissingDisplay(QtMsgType type, const QMessageLogContext &context,
                                 const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support ")))
        formerMessageHandler()(type, context, message);
}

/// The program ends with its dialog, whichever that is.
template <class Dialog>
void quitWith(Dialog *dialog)
{
    QObject::connect(dialog, &Dialog::left, qApp, &QCoreApplication::quit);
    QObject::connect(dialog, &Dialog::jobMade, qApp, [](const JobRecord &job) {
        say(job.ticketPath.isNull() ? job.id : job.ticketPath);
        if (job.remarks.isEmpty()) // else the window stays until they have been read
            QCoreApplication::quit();
    });
}

int runQueueDialog(const PrintCase &printCase)
{
    const QString problem = PrintDialog::prepare(printCase);
    if (!problem.isNull())
        return refuse(problem);
    QueueDialog dialog(printCase, serverSources());
    quitWith(&dialog);
    return QCoreApplication::exec();
}

/// The printer stays the same; a recording is of one.
int runOneDialog(const PrintCase &printCase, std::unique_ptr<record::Recording> recording)
{
    std::unique_ptr<PrintDialog> dialog;
    std::unique_ptr<record::Recorder> recorder;
    QObject scope;
    PrintDialog::openLater(&scope, printCase, [&](PrintDialog::Opened opened) {
        if (const auto *problem = std::get_if<QString>(&opened)) {
            QCoreApplication::exit(refuse(*problem));
            return;
        }
        dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        quitWith(dialog.get());
        if (recording)
            recorder = std::make_unique<record::Recorder>(std::move(recording), *dialog);
        dialog->offerSignIn();
        dialog->showPanels();
    });
    return QCoreApplication::exec();
}

/// What a person sees at first must be the same for whoever plays a recording.
int runDialog(const CommandLine &line, std::unique_ptr<record::Recording> recording)
{
    PrintCase printCase = line.printCase;
    if (recording)
        return runOneDialog(printCase, std::move(recording));
    printCase.memory = std::make_shared<Memory>();
    return printCase.ppd.isNull() ? runQueueDialog(printCase) : runOneDialog(printCase, {});
}

bool writeReport(const QString &path, const QByteArray &json)
{
    if (path.isNull())
        return true;
    if (path == QLatin1String("-"))
        return writeOut(json);
    // A device or a pipe is written to; another file must not take its place.
    const QFileInfo target(path);
    if (target.exists() && !target.isFile()) {
        QFile stream(path);
        return stream.open(QIODevice::WriteOnly) && stream.write(json) == json.size();
    }
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.commit();
}

/// For the user alone, whoever might read or write the original.
bool copyFiles(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    bool isCopied = QFileInfo(from).isDir();
    while (isCopied && files.hasNext()) {
        const QString file = files.next();
        const QString copy = to + u'/' + QDir(from).relativeFilePath(file);
        isCopied = QDir().mkpath(QFileInfo(copy).path()) && QFile::copy(file, copy) &&
                   QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    }
    return isCopied;
}

/// A scenario plays alike for everybody: neither are the presets of whoever plays it its own, nor
/// are those that it makes kept.
class PlayedPerson
{
public:
    PlayedPerson()
    {
        setUserFolder(folder_.isValid() ? folder_.path()
                                        : QStringLiteral("/dev/null")); // no folder
    }
    /// A copy of what lies there is what the person has kept so far.
    [[nodiscard]] bool takeAlong(const QString &folder) const
    {
        return folder_.isValid() && copyFiles(folder, folder_.path());
    }

private:
    QTemporaryDir folder_;
};

/// However long reading takes, what is remembered is there.
std::shared_ptr<Memory> patientMemory()
{
    constexpr std::chrono::minutes kPatience(1);
    return std::make_shared<Memory>(Memory::Times{kPatience, kPatience});
}

/// The recorder begins with the dialog, and goes before it.
void recordReplay(const replay::Player &player, std::unique_ptr<record::Recording> &recording,
                  std::unique_ptr<record::Recorder> &recorder)
{
    QObject::connect(&player, &replay::Player::dialogOpened, qApp, [&](PrintDialog &opened) {
        recorder = std::make_unique<record::Recorder>(std::move(recording), opened);
    });
    QObject::connect(&player, &replay::Player::commanded, qApp,
                     [&](const replay::Step &step) { recorder->passOn(step); });
}

int runReplay(const CommandLine &line, std::unique_ptr<record::Recording> recording)
{
    replay::Parsed parsed = replay::readScenario(line.scenario);
    if (const auto *error = std::get_if<replay::ScenarioError>(&parsed))
        return refuse(error->message);
    if (line.isDark)
        QApplication::setPalette(darkPalette());
    const PlayedPerson person;
    PrintCase printCase = line.printCase;
    if (!line.person.isNull()) {
        if (!person.takeAlong(line.person))
            return refuse(line.person + QStringLiteral(": this folder cannot be copied"));
        printCase.memory = patientMemory();
    }
    replay::Player player(printCase, std::move(std::get<replay::Scenario>(parsed)), line.player);
    QObject::connect(&player, &replay::Player::noticeShown, qApp, complain);
    QObject::connect(&player, &replay::Player::finished, qApp,
                     [](replay::Outcome outcome, const QString &message) {
                         if (!message.isNull())
                             complain(message);
                         QCoreApplication::exit(static_cast<int>(outcome));
                     });
    std::unique_ptr<record::Recorder> recorder;
    if (recording)
        recordReplay(player, recording, recorder);
    player.start();
    const int status = QCoreApplication::exec();
    if (!writeReport(line.report, player.report().json()))
        return refuse(QStringLiteral("the report cannot be written to ") + line.report);
    return status;
}

int runPrint(const CommandLine &line)
{
    batch::BatchRun run(line.printCase, line.request);
    const batch::SignalWatch signalWatch;
    QObject::connect(&signalWatch, &batch::SignalWatch::caught, &run, &batch::BatchRun::interrupt);
    QObject::connect(&run, &batch::BatchRun::finished, qApp,
                     [](int status) { QCoreApplication::exit(status); });
    run.start();
    return QCoreApplication::exec();
}

int runCommand(const CommandLine &line)
{
    setUpConsole(line);
    std::unique_ptr<record::Recording> recording;
    if (!line.record.isNull()) {
        record::Recording::Opened made = record::Recording::create(line.record);
        if (const auto *problem = std::get_if<QString>(&made))
            return refuse(*problem);
        recording = std::move(std::get<std::unique_ptr<record::Recording>>(made));
    }
    switch (line.command) {
    case CommandLine::Command::Print:
        return runPrint(line);
    case CommandLine::Command::Replay:
        return runReplay(line, std::move(recording));
    case CommandLine::Command::ShowHelp:
        say(line.helpText);
        return 0;
    case CommandLine::Command::ShowVersion:
        say(QStringLiteral("korvane-print ") + QCoreApplication::applicationVersion());
        return 0;
    case CommandLine::Command::OpenDialog:
        break;
    }
    return runDialog(line, std::move(recording));
}

/// Replay works where there is no display at all; a job without a window never uses one.
void chooseQtPlatform(CommandLine::Command command)
{
    using Command = CommandLine::Command;
    const bool isFree = !qEnvironmentVariableIsSet("DISPLAY") &&
                        !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
                        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (command == Command::Print || (command != Command::OpenDialog && isFree))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

QStringList wordsOf(int argc, char **argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

/// The commands that open no printer; each reads its own words.
struct Command
{
    const char *name;
    int (*run)(const QStringList &words);
};
constexpr Command kCommands[] = {
    {"--list", runQueueListCommand},
    {"check-ppd", check::runCheckCommand},
    {"log", debuglog::runLogCommand},
};

const Command *commandOf(const QString &word)
{
    const auto found =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [&](const Command &command) { return word == QLatin1String(command.name); });
    return found == std::end(kCommands) ? nullptr : found;
}

} // namespace

int runProgram(int argc, char **argv)
{
    QStringList words = wordsOf(argc, argv);
    if (const Command *command = commandOf(words.value(1))) {
        words.removeAt(1);
        return command->run(words);
    }
    const auto parsed = parseCommandLine(words);
    if (const auto *error = std::get_if<UsageError>(&parsed))
        return refuse(error->message);
    const auto &line = std::get<CommandLine>(parsed);
    chooseQtPlatform(line.command);
    QApplication application(argc, argv);
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        formerMessageHandler() = qInstallMessageHandler(dropRemarksOnMissingDisplay);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-print"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    return runCommand(line);
}

} // namespace dialog
