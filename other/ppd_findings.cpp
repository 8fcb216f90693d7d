#include "other/ppd_findings.h"

#include "model/ppd_records.h"
#include "other/settings_table.h"

namespace other {
namespace {

using Severity = PDEFinding::Severity;

/// The keywords that the panel chooses among.
QStringList wordsOf(const char *keyword)
{
    QStringList words;
    const SettingRow *found = rowOfKeyword(kSettings, QString::fromLatin1(keyword));
    if (found && found->box)
        return {QStringLiteral("On"), QStringLiteral("Off")};
    for (const ImprovementRow &row : kImprovements)
        words.append(QString::fromLatin1(row.choice));
    return words;
}

PDEFinding missingOption(const QString &keyword)
{
    return {.option = keyword,
            .what = keyword + QStringLiteral(" is missing: its control will do nothing"),
            .remedy = QStringLiteral("add the option, or switch the panel off in the model's "
                                     "configuration list")};
}

PDEFinding missingChoice(const QString &keyword, const QString &word)
{
    return {.severity = Severity::Error,
            .option = keyword,
            .what = keyword + QStringLiteral(" lacks the choice ") + word +
                    QStringLiteral(", which the panel would choose"),
            .remedy = QStringLiteral("add the choice")};
}

PDEFinding otherChoice(const QString &keyword, const QString &choice, const QStringList &words)
{
    return {.severity = Severity::Error,
            .option = keyword,
            .choice = choice,
            .what = QStringLiteral("the panel never uses the choice ") + choice +
                    QStringLiteral(" of ") + keyword,
            .remedy = QStringLiteral("use the keywords ") + words.join(QStringLiteral(", "))};
}

PDEFinding pickMany(const QString &keyword)
{
    return {.severity = Severity::Error,
            .option = keyword,
            .what = keyword +
                    QStringLiteral(" is PickMany, but the panel offers one of several choices"),
            .remedy = QStringLiteral("open the option as PickOne")};
}

std::optional<PrinterOption> optionOf(ppd_file_t *ppd, const char *keyword)
{
    const ppd_option_t *option = ppdFindOption(ppd, keyword);
    if (!option)
        return std::nullopt;
    return PrinterOption{ppd::choiceKeywords(option), option->ui == PPD_UI_PICKMANY};
}

} // namespace

std::vector<PDEFinding> findings(const char *keyword, const std::optional<PrinterOption> &option)
{
    const QString name = QString::fromLatin1(keyword);
    if (!option)
        return {missingOption(name)};
    std::vector<PDEFinding> found;
    const QStringList words = wordsOf(keyword);
    if (option->isPickMany)
        found.push_back(pickMany(name));
    for (const QString &word : words)
        if (!option->keywords.contains(word))
            found.push_back(missingChoice(name, word));
    for (const QString &choice : option->keywords)
        if (!words.contains(choice))
            found.push_back(otherChoice(name, choice, words));
    return found;
}

std::vector<PDEFinding> findings(ppd_file_t *ppd)
{
    std::vector<PDEFinding> all;
    for (const SettingRow &row : kSettings) {
        const auto found = findings(row.keyword, optionOf(ppd, row.keyword));
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

} // namespace other
