#include "dialog/log/log_command.h"

#include "dialog/log/debug_list.h"
#include "dialog/log/log_text.h"
#include "dialog/usage.h"
#include "platform/values.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <optional>

namespace dialog::debuglog {
namespace {

constexpr int kDamaged = 1;
constexpr int kHighestLevel = 7;
/// What is kept of a line; the rest is read past.
constexpr qint64 kLongestLine = 128 * 1024;

/// What the words after "log" ask for.
struct Request
{
    enum class Kind { Help, Read, List, SwitchOn, SwitchOff };

    Kind kind = Kind::Read;
    QString file;
    Filter filter;
    std::optional<int> action; ///< nothing: all of them
    LogSettings settings;
    QString error; ///< null: the request can be carried out
};

void addOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        flagOption("actions", "List the outermost calls, which are a person's actions."),
        valueOption("action", "Show this action only, by its number in the list.", "N"),
        valueOption("class", "Show the calls and records of this class.", "NAME"),
        valueOption("operation", "Show the calls and records of this operation.", "NAME"),
        valueOption("kind",
                    "Show records of these kinds: I information and calls, E errors, "
                    "D dumps, A N Z notes of the log itself.",
                    "LETTERS"),
        valueOption("text", "Show records with this text in their message.", "TEXT"),
        flagOption("on", "Switch the debug log on for programs of this user."),
        flagOption("off", "Switch it off."),
        valueOption("level",
                    "With --on: 1 calls and information, 2 errors, 4 dumps, added up; "
                    "3 unless given.",
                    "N"),
        valueOption("file",
                    "With --on: name of the log in the temporary directory; "
                    "korvane-print.log unless given.",
                    "NAME"),
        helpOption(),
    });
}

QString helpOf(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "Reads a debug log and prints its calls as a tree with times, or switches the log on."));
    parser.addPositionalArgument(QStringLiteral("log"), QStringLiteral("Read a debug log."),
                                 QStringLiteral("log"));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The log."),
                                 QStringLiteral("[FILE]"));
    return helpText(parser);
}

bool isSet(const QCommandLineParser &parser, const char *option)
{
    return parser.isSet(QString::fromLatin1(option));
}

bool isSetAny(const QCommandLineParser &parser, std::initializer_list<const char *> options)
{
    return std::any_of(options.begin(), options.end(),
                       [&](const char *option) { return isSet(parser, option); });
}

/// A whole number from 1 on; nothing for any other word.
std::optional<int> positiveNumber(const QString &word)
{
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    return isNumber && number > 0 ? std::optional(number) : std::nullopt;
}

QString readSwitch(const QCommandLineParser &parser, Request &request)
{
    const bool isOn = isSet(parser, "on");
    request.kind = isOn ? Request::Kind::SwitchOn : Request::Kind::SwitchOff;
    if (isOn && isSet(parser, "off"))
        return QStringLiteral("--on and --off exclude each other");
    if (!isOn && isSetAny(parser, {"level", "file"}))
        return QStringLiteral("--level and --file go with --on");
    if (isSetAny(parser, {"actions", "action", "class", "operation", "kind", "text"}) ||
        !parser.positionalArguments().isEmpty())
        return QStringLiteral("--on and --off read no log");
    if (isSet(parser, "level")) {
        request.settings.level = positiveNumber(given(parser, "level")).value_or(0);
        if (request.settings.level < 1 || request.settings.level > kHighestLevel)
            return QStringLiteral("%1 is no level; add up 1, 2 and 4").arg(given(parser, "level"));
    }
    if (isSet(parser, "file"))
        request.settings.file = given(parser, "file");
    return {};
}

bool areKinds(const QByteArray &letters)
{
    return std::all_of(letters.begin(), letters.end(),
                       [](char letter) { return letter && std::strchr(kKinds, letter); });
}

QString readFilter(const QCommandLineParser &parser, Request &request)
{
    request.filter = {.className = given(parser, "class").toUtf8(),
                      .operation = given(parser, "operation").toUtf8(),
                      .kinds = given(parser, "kind").toUtf8().toUpper(),
                      .text = given(parser, "text").toUtf8()};
    if (!areKinds(request.filter.kinds))
        return QStringLiteral("%1 is no kind of record; the kinds are %2")
            .arg(given(parser, "kind"), QString::fromLatin1(kKinds));
    if (isSet(parser, "action")) {
        request.action = positiveNumber(given(parser, "action"));
        if (!request.action)
            return QStringLiteral("%1 is no number of an action").arg(given(parser, "action"));
    }
    return {};
}

QString readFile(const QCommandLineParser &parser, Request &request)
{
    const QStringList files = parser.positionalArguments();
    request.kind = isSet(parser, "actions") ? Request::Kind::List : Request::Kind::Read;
    if (isSet(parser, "actions") && isSet(parser, "action"))
        return QStringLiteral("--actions and --action exclude each other");
    if (isSetAny(parser, {"level", "file"}))
        return QStringLiteral("--level and --file go with --on");
    if (files.size() != 1)
        return files.isEmpty() ? QStringLiteral("log needs the log's file")
                               : QStringLiteral("too many words: ") + files.last();
    request.file = files.first();
    return readFilter(parser, request);
}

Request readRequest(const QCommandLineParser &parser)
{
    Request request;
    request.error =
        isSetAny(parser, {"on", "off"}) ? readSwitch(parser, request) : readFile(parser, request);
    return request;
}

/// Prints actions as they come.
class ActionPrinter
{
public:
    explicit ActionPrinter(const Request &request) : request_(request) {}

    void print(const Action &action)
    {
        if (request_.action && action.number != *request_.action)
            return;
        if (request_.kind == Request::Kind::List)
            printLine(action);
        else
            printTree(action);
    }

private:
    /// Of an action in parts, the last one knows how long it took.
    void printLine(const Action &action)
    {
        if (action.number > 0 && !action.goesOn && request_.filter.admitsAny(action))
            write(actionLine(action));
    }
    void printTree(const Action &action)
    {
        const QString text = treeText(action, request_.filter);
        if (text.isEmpty())
            return;
        if (action.process != process_)
            write(QStringLiteral("process %1\n").arg(action.process));
        process_ = action.process;
        write(text);
    }
    static void write(const QString &text) { (void)writeOut(text.toUtf8()); }

    const Request &request_;
    qint64 process_ = -1;
};

/// Reads past the rest of a line that is longer than the buffer. False when the file ends first.
bool skipRest(QFile &file, QByteArray &buffer)
{
    qint64 length = 0;
    do
        length = file.readLine(buffer.data(), buffer.size());
    while (length > 0 && buffer[length - 1] != '\n');
    return length > 0;
}

void readLines(QFile &file, RecordReader &reader)
{
    QByteArray line(kLongestLine, Qt::Uninitialized);
    QByteArray rest(kLongestLine, Qt::Uninitialized);
    for (;;) {
        const qint64 length = file.readLine(line.data(), line.size());
        if (length <= 0)
            return;
        const bool isWhole = line[length - 1] == '\n';
        // Qt keeps one byte for a NUL.
        const bool isFull = length == kLongestLine - 1;
        const LineEnd end = isWhole                          ? LineEnd::Whole
                            : isFull && skipRest(file, rest) ? LineEnd::TooLong
                                                             : LineEnd::Cut;
        reader.takeLine(QByteArrayView(line).first(isWhole ? length - 1 : length), end);
    }
}

int readLog(const Request &request)
{
    QFile file(request.file);
    if (QFileInfo(request.file).isDir() || !file.open(QIODevice::ReadOnly))
        return refuse(request.file + QStringLiteral(": the log cannot be read; ") +
                      QStringLiteral("give the file that \"korvane-print log --on\" named"));
    ActionPrinter printer(request);
    CallTreeBuilder builder([&](const Action &action) { printer.print(action); });
    RecordReader reader([&](Record &&record) { builder.take(record); });
    readLines(file, reader);
    reader.finish();
    builder.finish();
    const QString damage = damageText(request.file, reader.damage(), builder.unbalanced());
    for (const QString &line : damage.split(u'\n', Qt::SkipEmptyParts))
        complain(line);
    const bool isDamaged = reader.damage().lines > 0 || builder.unbalanced().endsWithoutCall > 0;
    return isDamaged ? kDamaged : 0;
}

int report(const ListOutcome &outcome)
{
    if (const auto *refused = std::get_if<NotDone>(&outcome))
        return refuse(refused->message);
    say(std::get<Done>(outcome).message);
    return 0;
}

} // namespace

int runLogCommand(const QStringList &words)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(words))
        return refuse(parser.errorText());
    if (isSet(parser, "help")) {
        say(helpOf(parser));
        return 0;
    }
    const Request request = readRequest(parser);
    if (!request.error.isNull())
        return refuse(request.error);
    switch (request.kind) {
    case Request::Kind::SwitchOn:
        return report(switchLogOn(request.settings, platform::temporaryDirectory()));
    case Request::Kind::SwitchOff:
        return report(switchLogOff(platform::temporaryDirectory()));
    default:
        return readLog(request);
    }
}

} // namespace dialog::debuglog
