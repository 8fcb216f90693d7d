#include "dialog/panels/summary.h"

#include "dialog/printers/standard_options.h"
#include "dialog/settings/job_settings.h"
#include "dialog/settings/setting_words.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {
namespace {

class SummaryTexts
{
    Q_DECLARE_TR_FUNCTIONS(SummaryTexts)
};

const QString kMirror = QStringLiteral("mirror");
const QString kPageSize = QStringLiteral("PageSize");

/// What is marked of one option, in the printer's words.
struct MarkedOption
{
    const OptionGroup *group;
    QString option;
    SummaryRow row;
};

SummaryRow settingRow(const QString &key, const QString &value)
{
    return {settingTitle(key), settingValue(key, value),
            isUsualSetting(key, value) ? Standing::Usual : Standing::Changed};
}

/// There even when it is off.
SummaryRow mirrorRow(const JobSettings &job)
{
    const bool isOn = isFlipped(job.printSettings);
    return settingRow(kMirror, isOn ? QStringLiteral("true") : QStringLiteral("false"));
}

const PrinterOption *findOption(const OptionGroups &groups, const QString &keyword)
{
    for (const OptionGroup &group : groups)
        for (const PrinterOption &option : group.options)
            if (option.keyword == keyword)
                return &option;
    return nullptr;
}

/// The keyword itself where the printer does not have the choice.
QString choiceText(const PrinterOption &option, const QString &keyword)
{
    const auto found =
        std::find_if(option.choices.begin(), option.choices.end(),
                     [&](const OptionChoice &choice) { return choice.keyword == keyword; });
    return found == option.choices.end() ? keyword : found->text;
}

QString choiceTexts(const PrinterOption &option, const QStringList &keywords)
{
    QStringList texts;
    for (const QString &keyword : keywords)
        texts.append(choiceText(option, keyword));
    return texts.join(QStringLiteral(", "));
}

std::vector<SummaryRow> paperRow(const OptionGroups &groups, const JobSettings &job)
{
    const PrinterOption *const size = findOption(groups, kPageSize);
    if (job.paperName.isNull() || !size || size->defaults == QStringList{job.paperName})
        return {};
    return {{size->text, choiceText(*size, job.paperName), Standing::Changed}};
}

SummarySection jobSection(const OptionGroups &groups, const JobSettings &job)
{
    const auto &settings = job.printSettings;
    SummarySection section{SummaryTexts::tr("Job"), paperRow(groups, job)};
    for (const QString &key : inReadingOrder(settings)) {
        if (key != kMirror && !isCompanion(key, settings))
            section.rows.push_back(settingRow(key, settings.at(key).toString()));
    }
    section.rows.push_back(mirrorRow(job));
    return section;
}

QStringList markedChoices(const Choices &marks, const QString &option)
{
    QStringList keywords;
    for (const Choice &mark : marks) {
        if (mark.option == option)
            keywords.append(mark.choice);
    }
    return keywords;
}

Standing standingOf(const PrinterOption &option, QStringList marked, const Choices &replaced)
{
    if (!markedChoices(replaced, option.keyword).isEmpty())
        return Standing::Replaced;
    QStringList defaults = option.defaults;
    defaults.sort();
    marked.sort();
    return marked == defaults ? Standing::Usual : Standing::Changed;
}

/// In the order of the printer; each names its group by address.
std::vector<MarkedOption> markedOptions(const OptionGroups &groups, const Choices &marks,
                                        const Choices &replaced)
{
    std::vector<MarkedOption> options;
    for (const OptionGroup &group : groups)
        for (const PrinterOption &option : group.options) {
            const QStringList marked = markedChoices(marks, option.keyword);
            if (!marked.isEmpty())
                options.push_back({&group,
                                   option.keyword,
                                   {option.text, choiceTexts(option, marked),
                                    standingOf(option, marked, replaced)}});
        }
    return options;
}

/// Without the colon of a label.
QString bare(const QString &title)
{
    const QString text = title.trimmed();
    return text.endsWith(u':') || text.endsWith(u'：') ? text.chopped(1).trimmed() : text;
}

bool names(const SummaryRow &entry, const SummaryRow &mark)
{
    return bare(entry.title) == bare(mark.title) && entry.value.trimmed() == mark.value.trimmed();
}

/// Takes the marks that the panel's entries name from those that are left.
SummarySection panelSection(const PanelSummary &panel, std::vector<MarkedOption> &left)
{
    SummarySection section{panel.title, {}};
    for (const auto &[title, value] : panel.entries) {
        SummaryRow row{title, value};
        const auto named = std::find_if(left.begin(), left.end(), [&](const MarkedOption &mark) {
            return panel.options.contains(mark.option, Qt::CaseInsensitive) && names(row, mark.row);
        });
        if (named != left.end()) {
            row.standing = named->row.standing;
            left.erase(named);
        }
        section.rows.push_back(row);
    }
    return section;
}

SummarySection groupSection(const OptionGroup &group, const std::vector<MarkedOption> &left)
{
    SummarySection section{groupTitle(group), {}};
    for (const MarkedOption &mark : left) {
        if (mark.group == &group)
            section.rows.push_back(mark.row);
    }
    return section;
}

/// The page format's paper stands above the marked page size.
Choices marksNotSent(const JobSettings &job)
{
    Choices replaced = replacedMarks(job);
    if (job.paperName.isNull())
        return replaced;
    for (const QString &size : markedChoices(job.marks, kPageSize)) {
        if (size != job.paperName)
            replaced.push_back({kPageSize, size});
    }
    return replaced;
}

/// Marks of options that stand in no group.
SummarySection groupless(const OptionGroups &groups, const Choices &marks)
{
    SummarySection section{SummaryTexts::tr("Others"), {}};
    for (const Choice &mark : marks) {
        if (!findOption(groups, mark.option))
            section.rows.push_back({mark.option, mark.choice});
    }
    return section;
}

/// 2 for characters as wide as two Latin ones in a font of fixed width.
int widthOf(const QString &text)
{
    int width = 0;
    for (const QChar character : text) {
        const ushort code = character.unicode();
        const bool isWide =
            (code >= 0x1100 && code <= 0x115F) || (code >= 0x2E80 && code <= 0xA4CF) ||
            (code >= 0xAC00 && code <= 0xD7A3) || (code >= 0xF900 && code <= 0xFAFF) ||
            (code >= 0xFF00 && code <= 0xFF60);
        width += isWide ? 2 : 1;
    }
    return width;
}

} // namespace

Summary summaryOf(const std::vector<PanelSummary> &panels, const OptionGroups &groups,
                  const JobSettings &job)
{
    std::vector<MarkedOption> left = markedOptions(groups, job.marks, marksNotSent(job));
    Summary summary{jobSection(groups, job)};
    for (const PanelSummary &panel : panels)
        summary.push_back(panelSection(panel, left));
    for (const OptionGroup &group : groups)
        summary.push_back(groupSection(group, left));
    summary.push_back(groupless(groups, job.marks));
    std::erase_if(summary, [](const SummarySection &section) { return section.rows.empty(); });
    return summary;
}

Summary matchingRows(const Summary &summary, const QString &typed)
{
    const QStringList words = typed.simplified().split(u' ', Qt::SkipEmptyParts);
    Summary found = summary;
    for (SummarySection &section : found)
        std::erase_if(section.rows, [&](const SummaryRow &row) {
            const QString all = section.title + u'\n' + row.title + u'\n' + row.value;
            return !std::all_of(words.begin(), words.end(), [&](const QString &word) {
                return all.contains(word, Qt::CaseInsensitive);
            });
        });
    std::erase_if(found, [](const SummarySection &section) { return section.rows.empty(); });
    return found;
}

QString standingText(Standing standing)
{
    switch (standing) {
    case Standing::Usual:
        break;
    case Standing::Changed:
        return SummaryTexts::tr("changed");
    case Standing::Replaced:
        return SummaryTexts::tr("replaced by a setting of the job");
    }
    return {};
}

QString plainText(const Summary &summary)
{
    int width = 0;
    for (const SummarySection &section : summary)
        for (const SummaryRow &row : section.rows)
            width = std::max(width, widthOf(row.title));
    QString text;
    for (const SummarySection &section : summary) {
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + section.title + u'\n';
        for (const SummaryRow &row : section.rows) {
            const QString words = standingText(row.standing);
            text += QStringLiteral("  ") + row.title +
                    QString(width - widthOf(row.title) + 2, u' ') + row.value +
                    (words.isNull() ? QString() : QStringLiteral(" (") + words + u')') + u'\n';
        }
    }
    return text;
}

} // namespace dialog
