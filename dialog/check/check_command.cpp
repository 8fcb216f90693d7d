#include "dialog/check/check_command.h"

#include "dialog/check/ppd_check.h"
#include "dialog/usage.h"
#include "platform/console.h"
#include "platform/values.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace dialog::check {
namespace {

constexpr int kFound = 1;

enum class Format { Lines, Json };

void addOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        valueOption("root", "Folder under which /Library/Printers is looked up.", "DIR"),
        flagOption("json", "Write the findings as JSON."),
        helpOption(),
    });
}

QString helpOf(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "Tells what print dialog and panels will make of PPD files, one line per finding."));
    parser.addPositionalArgument(QStringLiteral("check-ppd"), QStringLiteral("Check PPD files."),
                                 QStringLiteral("check-ppd"));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The PPD files."),
                                 QStringLiteral("FILE..."));
    return helpText(parser);
}

QString severityText(PDEFinding::Severity severity)
{
    return severity == PDEFinding::Severity::Error ? QStringLiteral("error")
                                                   : QStringLiteral("warning");
}

/// Texts of a PPD are in the line: no second line, nothing for the terminal.
QString oneLine(QString text)
{
    for (QChar &c : text)
        if (c.category() == QChar::Other_Control)
            c = u' ';
    return text;
}

QString lineOf(const QString &file, const Finding &finding)
{
    return oneLine(file + u':' + QString::number(finding.line) + QStringLiteral(": ") +
                   severityText(finding.finding.severity) + QStringLiteral(": ") +
                   finding.finding.what + QStringLiteral("; ") + finding.finding.remedy);
}

QJsonValue orNull(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QJsonObject jsonOf(const QString &file, const Finding &finding)
{
    return {{QStringLiteral("file"), file},
            {QStringLiteral("line"), finding.line},
            {QStringLiteral("severity"), severityText(finding.finding.severity)},
            {QStringLiteral("option"), orNull(finding.finding.option)},
            {QStringLiteral("choice"), orNull(finding.finding.choice)},
            {QStringLiteral("what"), finding.finding.what},
            {QStringLiteral("remedy"), finding.finding.remedy}};
}

/// Checks one file after the other and gathers what there is to say.
class Checker
{
public:
    Checker(Format format, TrustedOwner owner) : format_(format), owner_(owner) {}

    void check(const QString &file)
    {
        const Checked checked = checkPpd(file, owner_);
        if (const auto *error = std::get_if<PpdError>(&checked)) {
            complain(oneLine(error->message()));
            status_ = kCouldNotStart;
            return;
        }
        const auto &findings = std::get<Findings>(checked);
        if (!findings.empty())
            status_ = std::max(status_, kFound);
        for (const Finding &finding : findings) {
            if (format_ == Format::Json)
                json_.append(jsonOf(file, finding));
            else
                say(lineOf(file, finding));
        }
    }
    [[nodiscard]] int finish() const
    {
        const bool isWritten = format_ == Format::Lines || writeOut(QJsonDocument(json_).toJson());
        return isWritten ? status_ : refuse(QStringLiteral("the findings cannot be written"));
    }

private:
    const Format format_;
    const TrustedOwner owner_;
    QJsonArray json_;
    int status_ = 0;
};

int checkFiles(const QCommandLineParser &parser)
{
    const QString root = given(parser, "root");
    if (!root.isNull())
        platform::setDriverRoot(QFileInfo(root).absoluteFilePath());
    platform::setConsoleSink([](const QString &) {});
    Checker checker(parser.isSet(QStringLiteral("json")) ? Format::Json : Format::Lines,
                    root.isNull() ? TrustedOwner::RootOnly : TrustedOwner::RootAndUser);
    for (const QString &file : parser.positionalArguments())
        checker.check(file);
    return checker.finish();
}

} // namespace

int runCheckCommand(const QStringList &words)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(words))
        return refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        say(helpOf(parser));
        return 0;
    }
    if (parser.positionalArguments().isEmpty())
        return refuse(QStringLiteral("check-ppd needs a PPD file"));
    return checkFiles(parser);
}

} // namespace dialog::check
