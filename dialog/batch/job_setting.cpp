#include "dialog/batch/job_setting.h"

#include "dialog/settings/page_ranges.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <optional>

namespace dialog::batch {
namespace {

/// A setting that no list of the window's has.
struct JobSettingRow
{
    const char *name;
    const char *pattern; ///< of the whole value; null: one of the words
    const char *values;  ///< words, separated by blanks, or what the pattern means
};

const QString kCopies = QStringLiteral("copies");
const QString kPageRanges = QStringLiteral("page-ranges");
constexpr const char *kTruths = "true false";
constexpr const char *kAny = ".+";

// clang-format off
constexpr JobSettingRow kJobSettings[] = {
    {"copies",             "[1-9][0-9]{0,2}", "a whole number from 1 to 999"},
    {"page-ranges",        kAny,    "pages and ranges such as 1-3,7"},
    {"sides",              nullptr, "one-sided two-sided-long-edge two-sided-short-edge"},
    {"multiple-document-handling", nullptr,
                "separate-documents-collated-copies separate-documents-uncollated-copies"},
    {"outputorder",        nullptr, "normal reverse"},
    {"mirror",             nullptr, kTruths},
    {"fit-to-page",        nullptr, kTruths},
    {"scaling",            "[1-9][0-9]{0,2}", "a percentage from 1 to 999"},
    {"landscape",          nullptr, kTruths},
    {"media",              kAny,    "names of media"},
    {"output-bin",         kAny,    "the name of a tray"},
    {"print-color-mode",   nullptr, "auto color monochrome bi-level"},
    {"print-quality",      nullptr, "3 4 5"},
    {"printer-resolution", "[1-9][0-9]*(x[1-9][0-9]*)?dpi", "a resolution such as 600dpi"},
    {"job-priority",       "[1-9][0-9]?|100", "a whole number from 1 to 100"},
    {"job-hold-until",     kAny,    "a time or its name"},
    {"job-sheets",         kAny,    "names of banner pages"},
    {"job-billing",        kAny,    "any text"},
};
// clang-format on

constexpr JobList kLists[] = {JobList::PageSet,     JobList::Orientation, JobList::PagesPerSheet,
                              JobList::LayoutOrder, JobList::Border,      JobList::Scaling};

QString nameOf(JobList list)
{
    return QString::fromLatin1(jobList(list).key);
}

std::optional<JobList> listOf(const QString &name)
{
    const auto found = std::find_if(std::begin(kLists), std::end(kLists),
                                    [&](JobList list) { return nameOf(list) == name; });
    return found == std::end(kLists) ? std::nullopt : std::optional(*found);
}

QStringList wordsOf(const JobSettingRow &row)
{
    return QString::fromLatin1(row.values).split(u' ');
}

const JobSettingRow *rowOf(const QString &name)
{
    const auto found =
        std::find_if(std::begin(kJobSettings), std::end(kJobSettings),
                     [&](const JobSettingRow &row) { return name == QLatin1String(row.name); });
    return found == std::end(kJobSettings) ? nullptr : found;
}

bool matches(const char *pattern, const QString &value)
{
    const QRegularExpression whole(
        QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
    return whole.match(value).hasMatch();
}

QString cannotBe(const Choice &setting, const QString &values)
{
    return QStringLiteral("%1 cannot be %2; it takes %3")
        .arg(setting.option, setting.choice, values);
}

/// Null when it is one of them.
QString wordProblem(const Choice &setting, const QStringList &words)
{
    return words.contains(setting.choice) ? QString()
                                          : cannotBe(setting, words.join(QStringLiteral(", ")));
}

QString rangesProblem(const Choice &setting)
{
    const QString problem = rangeProblemText(readPageRanges(setting.choice));
    return problem.isNull() ? QString() : setting.option + QStringLiteral(": ") + problem;
}

} // namespace

bool isJobSetting(const QString &name)
{
    return rowOf(name) || listOf(name);
}

QStringList jobSettingNames()
{
    QStringList names;
    for (const JobSettingRow &row : kJobSettings)
        names.append(QString::fromLatin1(row.name));
    for (const JobList list : kLists)
        names.append(nameOf(list));
    return names;
}

QString jobSettingProblem(const Choice &setting)
{
    if (const auto list = listOf(setting.option))
        return wordProblem(setting, jobListValues(*list));
    if (setting.option == kPageRanges)
        return rangesProblem(setting);
    const JobSettingRow &row = *rowOf(setting.option);
    if (!row.pattern)
        return wordProblem(setting, wordsOf(row));
    return matches(row.pattern, setting.choice)
               ? QString()
               : cannotBe(setting, QString::fromLatin1(row.values));
}

Choice inStandardForm(const Choice &setting)
{
    return setting.option == kPageRanges
               ? Choice{setting.option, pageRangesSetting(readPageRanges(setting.choice).ranges)}
               : setting;
}

SettingChanges changesFor(const Choice &setting, const PrintSettingsMap &settings)
{
    const int copies = setting.option == kCopies ? setting.choice.toInt() : 1;
    return copies > 1 ? copiesChanges(copies, settings)
                      : SettingChanges{{setting.option, setting.choice}};
}

} // namespace dialog::batch
