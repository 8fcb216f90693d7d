#include "dialog/check/ppd_check.h"

#include "dialog/check/ppd_lines.h"
#include "dialog/check/reach.h"
#include "dialog/check/text_rules.h"
#include "dialog/plugins/plugin_loader.h"
#include "platform/regular_file.h"
#include "platform/values.h"

#include <QFileInfo>

#include <algorithm>

namespace dialog::check {
namespace {

using Severity = PDEFinding::Severity;

constexpr qint64 kLargestPpd = 16 * 1024 * 1024;
constexpr char kBundleKeyword[] = "APDialogExtension";
constexpr char kIconKeyword[] = "APPrinterIconPath";

/// What all rules look at.
struct Printer
{
    const PpdDocument &ppd;
    const PpdLines &lines;
    TrustedOwner owner;
};

int lineOf(const Printer &printer, const char *keyword)
{
    return printer.lines.lineOf(QString::fromLatin1(keyword));
}

QString nameOf(const Choice &choice)
{
    return choice.option + u' ' + choice.choice;
}

void take(const Printer &printer, std::vector<PDEFinding> found, Findings &findings)
{
    for (PDEFinding &finding : found)
        findings.push_back(
            {printer.lines.lineOf(finding.option, finding.choice), std::move(finding)});
}

void findBundleProblem(const Printer &printer, const QString &path, Findings &findings)
{
    const auto report = [&](const QString &reason) {
        findings.push_back(
            {lineOf(printer, kBundleKeyword),
             {.severity = Severity::Error,
              .option = QString::fromLatin1(kBundleKeyword),
              .what = QStringLiteral("the panels cannot be loaded from %1: %2").arg(path, reason),
              .remedy = QStringLiteral("install the plug-in there, or correct the path")}});
    };
    if (const auto refusal = checkDriverPath(path, PathKind::Directory, printer.owner))
        return report(refusal->reasonText());
    auto loaded = loadPlugIn(path, printer.owner);
    if (const auto *failure = std::get_if<PlugInFailure>(&loaded))
        return report(failure->notice.chopped(failure->notice.endsWith(u'.') ? 1 : 0));
    const auto &plugIn = std::get<PlugIn>(loaded);
    if (plugIn.diagnostics)
        take(printer, plugIn.diagnostics->findings(printer.ppd.handle()), findings);
}

/// The bundle is looked into even where the panels of another one have findings.
void findPanelProblems(const Printer &printer, Findings &findings)
{
    const QStringList paths = printer.ppd.attributeValues(kBundleKeyword);
    if (paths.isEmpty())
        findings.push_back(
            {1,
             {.option = QString::fromLatin1(kBundleKeyword),
              .what = QStringLiteral("the PPD names no panels"),
              .remedy = QStringLiteral("add *APDialogExtension with the path of the plug-in's "
                                       "bundle")}});
    for (const QString &path : paths)
        findBundleProblem(printer, path, findings);
}

void findMissingIcon(const Printer &printer, Findings &findings)
{
    for (const QString &path : printer.ppd.attributeValues(kIconKeyword))
        if (!QFileInfo(platform::resolved(path)).isFile())
            findings.push_back(
                {lineOf(printer, kIconKeyword),
                 {.option = QString::fromLatin1(kIconKeyword),
                  .what = QStringLiteral("there is no icon ") + path,
                  .remedy = QStringLiteral("install the icon, or correct the path")}});
}

void findConflictingDefaults(const Printer &printer, Findings &findings)
{
    for (const Conflict &conflict : printer.ppd.conflicts())
        findings.push_back({printer.lines.lineOf(QStringLiteral("Default") + conflict.one.option),
                            {.severity = Severity::Error,
                             .option = conflict.one.option,
                             .choice = conflict.one.choice,
                             .what = QStringLiteral("the defaults %1 and %2 exclude each other")
                                         .arg(nameOf(conflict.one), nameOf(conflict.other)),
                             .remedy = QStringLiteral("give one of them another default")}});
}

bool isConstraint(const PpdLine &line)
{
    return line.keyword == "UIConstraints" || line.keyword == "NonUIConstraints" ||
           line.keyword == "cupsUIConstraints";
}

/// One constraint that has no effect, because a name in it is misspelled.
void findUnknownNames(const Printer &printer, Findings &findings)
{
    for (const PpdLine &line : printer.lines.all()) {
        if (!isConstraint(line))
            continue;
        for (const Choice &part : parseConstraint(QString::fromUtf8(line.value))) {
            const bool isThere = part.choice.isNull() ? printer.ppd.hasOption(part.option)
                                                      : printer.ppd.hasChoice(part);
            if (!isThere)
                findings.push_back({line.number,
                                    {.option = part.option,
                                     .choice = part.choice,
                                     .what = QStringLiteral("the constraint names %1, which the "
                                                            "printer lacks")
                                                 .arg(nameOf(part).trimmed()),
                                     .remedy = QStringLiteral("correct or remove it")}});
        }
    }
}

/// The default first. Page regions stand for page sizes.
std::vector<OptionChoices> constrainedOptions(const PpdDocument &ppd)
{
    std::vector<OptionChoices> options;
    for (const QString &option : ppd.options()) {
        if (option == QLatin1String("PageRegion") && ppd.hasOption(QStringLiteral("PageSize")))
            continue;
        OptionChoices entry{option, ppd.choices(option), ppd.isPickMany(option)};
        const qsizetype index = entry.choices.indexOf(ppd.marked(option));
        if (index > 0)
            entry.choices.move(index, 0);
        options.push_back(std::move(entry));
    }
    return options;
}

void findUnreachable(const Printer &printer, Findings &findings)
{
    const Reach reach = reachOfChoices(constrainedOptions(printer.ppd), printer.ppd.constraints());
    const auto report = [&](const Choice &choice, Severity severity, const char *what) {
        findings.push_back({printer.lines.lineOf(choice.option, choice.choice),
                            {.severity = severity,
                             .option = choice.option,
                             .choice = choice.choice,
                             .what = nameOf(choice) + QString::fromLatin1(what),
                             .remedy = QStringLiteral("loosen the constraints that name it")}});
    };
    for (const Choice &choice : reach.unreachable)
        report(choice, Severity::Error, " can never be chosen: every combination has a conflict");
    for (const Choice &choice : reach.undecided)
        report(choice, Severity::Warning,
               " stands in no combination without conflict among those that were tried");
}

constexpr void (*kRules[])(const Printer &, Findings &) = {
    findPanelProblems, findMissingIcon, findConflictingDefaults, findUnknownNames, findUnreachable,
};

} // namespace

Checked checkPpd(const QString &path, TrustedOwner owner)
{
    const auto opened = PpdDocument::open(path);
    if (const auto *error = std::get_if<PpdError>(&opened))
        return *error;
    const auto bytes = platform::readRegularFile(path, kLargestPpd);
    if (!bytes)
        return PpdError{path, 0, QStringLiteral("the file is too large or cannot be read")};
    const PpdLines lines(*bytes);
    Findings findings = textFindings(lines);
    for (const auto rule : kRules)
        rule({*std::get<std::unique_ptr<PpdDocument>>(opened), lines, owner}, findings);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding &a, const Finding &b) { return a.line < b.line; });
    return findings;
}

} // namespace dialog::check
