#include "dialog/replay/scenario.h"

#include "dialog/replay/nearest_name.h"
#include "dialog/replay/shell_words.h"

#include <QFile>
#include <QFileInfo>
#include <QKeySequence>

#include <algorithm>
#include <array>
#include <iterator>

namespace dialog::replay {
namespace {

constexpr qint64 kMostBytes = 1024 * 1024;

/// What an argument must look like, beyond being there.
enum class Check { None, Version, Index, UpOrDown, Count, KeyName, FileName, Pointer };

struct Form
{
    StepKind kind;
    const char *word;
    int least;
    int most;
    Check check; ///< of the last argument that must be there, or of the optional one
    const char *usage;
};

// clang-format off
constexpr std::array<Form, static_cast<std::size_t>(StepKind::Count)> kForms{{
    {StepKind::Printer,       "printer",        1, 1, Check::None,     "printer FILE.ppd"},
    {StepKind::Queue,         "queue",          1, 1, Check::None,     "queue NAME"},
    {StepKind::Root,          "root",           1, 1, Check::None,     "root DIR"},
    {StepKind::SystemVersion, "system-version", 1, 1, Check::Version,  "system-version 0x1060"},
    {StepKind::Language,      "language",       1, 1, Check::None,     "language fr-CA"},
    {StepKind::Document,      "document",       1, 1, Check::None,     "document FILE"},
    {StepKind::Mark,          "mark",           2, 2, Check::None,     "mark OPTION CHOICE"},
    {StepKind::Job,           "job",            2, 2, Check::None,     "job KEY VALUE"},
    {StepKind::Paper,         "paper",          1, 1, Check::None,     "paper NAME"},
    {StepKind::Refuse,        "refuse",         1, 2, Check::Count,    "refuse OPTION [COUNT]"},
    {StepKind::Show,          "show",           1, 1, Check::None,     "show PANEL"},
    {StepKind::Choose,        "choose",         2, 2, Check::None,     "choose CONTROL ITEM"},
    {StepKind::Tick,          "tick",           1, 1, Check::None,     "tick CONTROL"},
    {StepKind::Untick,        "untick",         1, 1, Check::None,     "untick CONTROL"},
    {StepKind::Click,         "click",          1, 1, Check::None,     "click CONTROL"},
    {StepKind::Row,           "row",            2, 2, Check::Index,    "row CONTROL N"},
    {StepKind::StepBy,        "step",           2, 2, Check::UpOrDown, "step CONTROL up|down"},
    {StepKind::Type,          "type",           2, 2, Check::None,     "type CONTROL TEXT"},
    {StepKind::Paste,         "paste",          2, 2, Check::None,     "paste CONTROL TEXT"},
    {StepKind::Wheel,         "wheel",          2, 2, Check::UpOrDown, "wheel CONTROL up|down"},
    {StepKind::Key,           "key",            1, 1, Check::KeyName,  "key NAME"},
    {StepKind::Close,         "close",          1, 1, Check::None,     "close WINDOW"},
    {StepKind::Other,         "other",          2, 2, Check::None,     "other OPTION CHOICE"},
    {StepKind::Report,        "report",         1, 1, Check::None,     "report NAME"},
    {StepKind::Picture,       "picture",        1, 1, Check::FileName, "picture NAME"},
    {StepKind::Expect,        "expect",         2, 2, Check::Pointer,  "expect PATH VALUE"},
    {StepKind::Save,          "save",           0, 0, Check::None,     "save"},
    {StepKind::SavePdf,       "save-pdf",       1, 1, Check::FileName, "save-pdf NAME"},
    {StepKind::SaveTicket,    "save-ticket",    1, 1, Check::FileName, "save-ticket NAME"},
    {StepKind::Print,         "print",          0, 1, Check::None,     "print [FILE]"},
    {StepKind::Cancel,        "cancel",         0, 0, Check::None,     "cancel"},
}};
// clang-format on

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kForms.size(); ++i) {
        if (static_cast<std::size_t>(kForms[i].kind) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder(), "one form per kind of step, in the order of the enumeration");

QString fromLatin(const char *text)
{
    return QString::fromLatin1(text);
}

const Form *formOf(const QString &word)
{
    const auto found = std::find_if(kForms.begin(), kForms.end(), [&](const Form &form) {
        return word == QLatin1String(form.word);
    });
    return found == kForms.end() ? nullptr : &*found;
}

bool isNaturalNumber(const QString &word)
{
    bool ok = false;
    return word.toInt(&ok) >= 0 && ok && word[0].isDigit();
}

QString notNumber(const QString &word)
{
    return word + QStringLiteral(" is no number from 0 on");
}

QString checkUpOrDown(const QString &word)
{
    const QStringList words{QStringLiteral("up"), QStringLiteral("down")};
    return words.contains(word) ? QString() : noSuchName(QStringLiteral("direction"), word, words);
}

QString checkKeyName(const QString &word)
{
    const QKeySequence keys(word);
    const bool known = keys.count() == 1 && keys[0].key() != Qt::Key_unknown && keys[0].key() != 0;
    return known ? QString() : QStringLiteral("no key ") + word;
}

/// Of one that stands in the folder given for it.
bool isFileName(const QString &word)
{
    return !word.isEmpty() && !word.contains(u'/') && word != QLatin1String(".") &&
           word != QLatin1String("..");
}

/// Null when the argument is as it must be.
QString checkArgument(Check check, const QStringList &arguments)
{
    const QString word = arguments.value(arguments.size() - 1);
    switch (check) {
    case Check::Version:
        return systemVersionOf(word) < 0 ? word + QStringLiteral(" is no system version")
                                         : QString();
    case Check::Index:
        return isNaturalNumber(word) ? QString() : notNumber(word);
    case Check::Count:
        return arguments.size() < 2 || isNaturalNumber(word) ? QString() : notNumber(word);
    case Check::UpOrDown:
        return checkUpOrDown(word);
    case Check::KeyName:
        return checkKeyName(word);
    case Check::FileName:
        return isFileName(word) ? QString() : word + QStringLiteral(" is no name of a file");
    case Check::Pointer: {
        const QString &path = arguments.first();
        return path.isEmpty() || path.startsWith(u'/')
                   ? QString()
                   : path + QStringLiteral(" is no JSON Pointer; it begins with \"/\"");
    }
    case Check::None:
        break;
    }
    return {};
}

/// Reads line after line; stops at the first error.
class Parser
{
public:
    explicit Parser(const QString &file) { scenario_.file = file; }

    Parsed parse(const QByteArray &bytes)
    {
        for (const QString &line : QString::fromUtf8(bytes).split(u'\n')) {
            ++line_;
            const QString error = parseLine(line);
            if (!error.isNull())
                return ScenarioError{QStringLiteral("%1:%2: ").arg(scenario_.file).arg(line_) +
                                     error};
        }
        return scenario_;
    }

private:
    QString parseLine(const QString &line)
    {
        const ShellWords read = shellWords(line);
        if (!read.error.isNull() || read.words.isEmpty())
            return read.error;
        const Form *form = formOf(read.words.first());
        if (!form)
            return noSuchName(QStringLiteral("step"), read.words.first(), stepWords());
        return addStep(*form, read.words.mid(1));
    }

    QString addStep(const Form &form, const QStringList &arguments)
    {
        if (arguments.size() < form.least || arguments.size() > form.most)
            return QStringLiteral("wrong number of words; write: ") + fromLatin(form.usage);
        const QString error = checkArgument(form.check, arguments);
        if (!error.isNull())
            return error;
        if (standsBeforePrinter(form.kind) && printerIsOpen_)
            return fromLatin(form.word) + QStringLiteral(" must stand before any other step");
        printerIsOpen_ = printerIsOpen_ || !standsBeforePrinter(form.kind);
        scenario_.steps.push_back({form.kind, arguments, line_});
        return {};
    }

    Scenario scenario_;
    int line_ = 0;
    bool printerIsOpen_ = false;
};

} // namespace

QString stepWord(StepKind kind)
{
    return fromLatin(kForms[static_cast<std::size_t>(kind)].word);
}

QStringList stepWords()
{
    QStringList words;
    for (const Form &form : kForms)
        words.append(fromLatin(form.word));
    return words;
}

bool standsBeforePrinter(StepKind kind)
{
    return kind <= StepKind::Document;
}

bool needsPanels(StepKind kind)
{
    return kind > StepKind::Refuse;
}

Parsed parseScenario(const QString &file, const QByteArray &bytes)
{
    return Parser(file).parse(bytes);
}

Parsed readScenario(const QString &file)
{
    const QFileInfo info(file);
    QFile opened(file);
    if (!info.exists())
        return ScenarioError{file + QStringLiteral(": there is no such scenario")};
    if (!info.isFile() || info.size() > kMostBytes || !opened.open(QIODevice::ReadOnly))
        return ScenarioError{file + QStringLiteral(": the scenario cannot be read")};
    return parseScenario(file, opened.read(kMostBytes));
}

int systemVersionOf(const QString &word)
{
    bool ok = false;
    const int version = word.toInt(&ok, 0); // "0x1060" and decimal alike
    return ok && version >= 0 ? version : -1;
}

} // namespace dialog::replay
