#include "quality/ppd_findings.h"

#include "model/ppd_records.h"
#include "platform/strings.h"
#include "quality/settings_table.h"
#include "quality/unusual_printers.h"

namespace quality {
namespace {

using enum Setting;
using Findings = std::vector<PDEFinding>;
using Severity = PDEFinding::Severity;

/// What to do about an unusual choice of a watched setting.
struct Remedy
{
    Setting setting;
    const char *text;
};

// clang-format off
constexpr Remedy kRemedies[] = {
    {Mirror,              "use the keywords On and Off, and label Off \"Off\" in every language"},
    {TonerSave,           "use the keywords On and Off, and label Off \"Off\" in every language"},
    {ICCTestChartProcess, "use the keywords On and Off"},
    {InkToUse,            "list a common ink, ColorOnly, BlackOnly, ColorBlack, BlackColor, in this order"},
    {ColorOutput,         "label the first choice \"Color\" or \"Grayscale\" in every language"},
    {HalftoneLevel,       "offer the choice Dither and label it \"Dither\" in every language"},
};
// clang-format on
static_assert(std::size(kRemedies) == std::size(kWatchedSettings));
static_assert(
    [] {
        for (std::size_t i = 0; i < std::size(kRemedies); ++i)
            if (kRemedies[i].setting != kWatchedSettings[i])
                return false;
        return true;
    }(),
    "one remedy for each watched setting, in their order");

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

/// "a", "a and b", "a, b and c"
QString listed(const QStringList &words)
{
    if (words.size() < 2)
        return words.join(QString());
    return words.first(words.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" and ") +
           words.last();
}

void findMissingRows(const Printer &printer, Findings &findings)
{
    for (const RowPlan &plan : requiredRowsPlan(printer.settings()))
        if (plan.fate == RowFate::Hidden)
            findings.push_back(
                {.severity = Severity::Error,
                 .option = keyword(plan.row),
                 .what = QStringLiteral("the option %1 is missing and its row will be "
                                        "hidden")
                             .arg(keyword(plan.row)),
                 .remedy = QStringLiteral("add the option")});
}

void findUnusualChoices(const Printer &printer, Findings &findings)
{
    for (const Remedy &remedy : kRemedies) {
        const auto &option = printer.option(remedy.setting);
        const auto unusual = option
                                 ? unusualChoice(remedy.setting, option->choices, printer.grayscale)
                                 : std::nullopt;
        if (!unusual)
            continue;
        const QString what =
            unusual->choice.isNull()
                ? QStringLiteral("%1 lacks a choice that the panel's rules assume")
                : QStringLiteral("the choice %2 of %1 is not what the panel's rules assume");
        findings.push_back({.severity = Severity::Error,
                            .option = unusual->option,
                            .choice = unusual->choice,
                            .what = QString(what)
                                        .replace(QStringLiteral("%1"), unusual->option)
                                        .replace(QStringLiteral("%2"), unusual->choice),
                            .remedy = latin1(remedy.text)});
    }
}

/// Dry time is a pop-up or a check box by its type; every other setting has one control.
bool isWrongType(const SettingRow &row, OptionType type)
{
    const bool isBox = row.box && !row.popUp;
    return type == OptionType::PickMany ||
           (type == OptionType::Boolean && !isBox && row.setting != DupDryTime);
}

void findWrongTypes(const Printer &printer, Findings &findings)
{
    for (const SettingRow &row : kSettings) {
        const auto &option = printer.option(row.setting);
        if (!option || !isWrongType(row, option->type))
            continue;
        const bool isPickMany = option->type == OptionType::PickMany;
        findings.push_back(
            {.severity = Severity::Error,
             .option = latin1(row.keyword),
             .what = latin1(row.keyword) +
                     (isPickMany ? QStringLiteral(" is PickMany") : QStringLiteral(" is Boolean")) +
                     QStringLiteral(", but the panel offers one of several choices"),
             .remedy = QStringLiteral("open the option as PickOne")});
    }
}

/// Printers of grays have no "Color", and the marked choice replaces that default at once.
bool mayLackDefault(const SettingRow &row, const PrinterOption &option)
{
    return row.setting == ColorOutput ||
           (row.setting == DupDryTime && option.type == OptionType::Boolean);
}

void findMissingDefaults(const Printer &printer, Findings &findings)
{
    for (const SettingRow &row : kSettings) {
        const auto &option = printer.option(row.setting);
        if (!option || mayLackDefault(row, *option) ||
            option->choices.keywords.contains(latin1(row.defaultChoice)))
            continue;
        findings.push_back(
            {.option = latin1(row.keyword),
             .what = QStringLiteral("%1 lacks the choice %2, which the panel starts from and "
                                    "resets to")
                         .arg(latin1(row.keyword), latin1(row.defaultChoice)),
             .remedy = QStringLiteral("add the choice")});
    }
}

/// Choices that a setting's rule has to find, and how many of the setting's choices are not among
/// them.
void findOtherWords(const Printer &printer, Setting setting, const QStringList &words,
                    Findings &findings)
{
    for (const QString &choice : printer.option(setting)->choices.keywords)
        if (!words.contains(choice))
            findings.push_back({.severity = Severity::Error,
                                .option = keyword(setting),
                                .choice = choice,
                                .what = QStringLiteral("the panel never uses the choice ") +
                                        choice + QStringLiteral(" of ") + keyword(setting),
                                .remedy = QStringLiteral("use the keywords ") + listed(words)});
}

void findOtherDryTimes(const Printer &printer, Findings &findings)
{
    const auto &dryTime = printer.option(DupDryTime);
    const BoxWords words = row(DupDryTime).words;
    if (dryTime && dryTime->type == OptionType::Boolean)
        findOtherWords(printer, DupDryTime, {latin1(words.on), latin1(words.off)}, findings);
}

/// A typed threshold is one of these words, whatever the option offers.
void findOtherThresholds(const Printer &printer, Findings &findings)
{
    static const QStringList kWords{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                                    QStringLiteral("4"), QStringLiteral("5")};
    const auto &threshold = printer.option(Threshold);
    if (!threshold)
        return;
    findOtherWords(printer, Threshold, kWords, findings);
    for (const QString &word : kWords)
        if (!threshold->choices.keywords.contains(word))
            findings.push_back(
                {.severity = Severity::Error,
                 .option = keyword(Threshold),
                 .what = QStringLiteral("a person can type the threshold %1, which is no choice")
                             .arg(word),
                 .remedy = QStringLiteral("offer the choices ") + listed(kWords)});
}

/// The two modes stand by position; the inks of each are chosen by the mode's keyword.
void findOtherColorOutputs(const Printer &printer, Findings &findings)
{
    constexpr qsizetype kModes = 2;
    static const QStringList kInkModes{QStringLiteral("Color"), QStringLiteral("Black"),
                                       QStringLiteral("Mono")};
    const auto &output = printer.option(ColorOutput);
    if (output && output->choices.keywords.size() > kModes)
        findings.push_back(
            {.option = keyword(ColorOutput),
             .choice = output->choices.keywords.at(kModes),
             .what = QStringLiteral("the panel has rules for the first two choices of ColorOutput "
                                    "only"),
             .remedy = QStringLiteral("offer two choices, the one with more tones first")});
    if (output && printer.option(InkToUse))
        findOtherWords(printer, ColorOutput, kInkModes, findings);
}

/// Restoring a preset hands colour preferences the keyword of the marked print quality.
void findCollidingPreferences(const Printer &printer, Findings &findings)
{
    const auto &preferences = printer.option(ColorPreferences);
    const auto &qualities = printer.option(PrintQuality);
    if (!preferences || !qualities)
        return;
    for (const QString &choice : preferences->choices.keywords)
        if (choice != defaultChoice(ColorPreferences) &&
            qualities->choices.keywords.contains(choice))
            findings.push_back(
                {.severity = Severity::Error,
                 .option = keyword(ColorPreferences),
                 .choice = choice,
                 .what = QStringLiteral("the color preference ") + choice +
                         QStringLiteral(" would be chosen whenever the print quality of the same "
                                        "keyword is restored"),
                 .remedy = QStringLiteral("give the color preference another keyword")});
}

void findHiddenSettings(const Printer &printer, Findings &findings)
{
    const SettingSet settings = printer.settings();
    for (const RowPlan &plan : sharedPlacesPlan(settings))
        if (plan.fate == RowFate::Hidden && settings.contains(plan.row))
            findings.push_back({.option = keyword(plan.row),
                                .what = keyword(plan.row) +
                                        QStringLiteral(" will not be shown, because another option "
                                                       "has its place in the panel"),
                                .remedy = QStringLiteral("leave one of the two options out")});
    if (printer.option(DupDryTime) && printer.productYear >= kFirstYearWithoutDryTime)
        findings.push_back(
            {.option = keyword(DupDryTime),
             .what = QStringLiteral("DupDryTime will not be shown: the driver's configuration list "
                                    "says %1 as product year, or is missing")
                         .arg(printer.productYear),
             .remedy = QStringLiteral("leave the option out, or install the list with a year "
                                      "before %1")
                           .arg(kFirstYearWithoutDryTime)});
}

constexpr void (*kRules[])(const Printer &, Findings &) = {
    findMissingRows,       findUnusualChoices,       findWrongTypes,
    findMissingDefaults,   findOtherDryTimes,        findOtherThresholds,
    findOtherColorOutputs, findCollidingPreferences, findHiddenSettings,
};

std::optional<PrinterOption> optionOf(ppd_file_t *ppd, const char *keyword)
{
    const ppd_option_t *option = ppdFindOption(ppd, keyword);
    if (!option)
        return std::nullopt;
    const OptionType type = option->ui == PPD_UI_BOOLEAN    ? OptionType::Boolean
                            : option->ui == PPD_UI_PICKMANY ? OptionType::PickMany
                                                            : OptionType::PickOne;
    return PrinterOption{type, {ppd::choiceKeywords(option), ppd::choiceTexts(option)}};
}

} // namespace

SettingSet Printer::settings() const
{
    SettingSet set;
    for (const SettingRow &row : kSettings)
        if (option(row.setting))
            set.insert(row.setting);
    return set;
}

std::vector<PDEFinding> findings(const Printer &printer)
{
    Findings found;
    for (const auto rule : kRules)
        rule(printer, found);
    return found;
}

Printer printerOf(ppd_file_t *ppd, quint16 productYear, const QString &grayscale)
{
    Printer printer{.productYear = productYear, .grayscale = grayscale};
    for (const SettingRow &row : kSettings)
        printer.options[static_cast<std::size_t>(row.setting)] = optionOf(ppd, row.keyword);
    return printer;
}

} // namespace quality
