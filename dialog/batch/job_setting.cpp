#include "dialog/batch/job_setting.h"

#include "dialog/replay/nearest_name.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace dialog::batch {
namespace {

struct JobSettingRow
{
    const char *name;
    const char *pattern; ///< of the whole value; null: one of the words
    const char *values;  ///< words, separated by blanks, or what the pattern means
};

constexpr const char *kTruths = "true false";
constexpr const char *kNumber = "[1-9][0-9]{0,8}";
constexpr const char *kAny = ".+";

// clang-format off
constexpr JobSettingRow kJobSettings[] = {
    {"copies",                kNumber, "a whole number from 1 on"},
    {"page-ranges",           "[1-9][0-9]{0,8}(-([1-9][0-9]{0,8})?)?(,[1-9][0-9]{0,8}(-([1-9][0-9]{0,8})?)?)*",
                              "pages and ranges such as 1-3,7"},
    {"page-set",              nullptr, "all even odd"},
    {"number-up",             nullptr, "1 2 4 6 9 16"},
    {"number-up-layout",      nullptr, "lrtb lrbt rltb rlbt tblr tbrl btlr btrl"},
    {"page-border",           nullptr, "none single single-thick double double-thick"},
    {"sides",                 nullptr, "one-sided two-sided-long-edge two-sided-short-edge"},
    {"multiple-document-handling", nullptr,
                              "separate-documents-collated-copies separate-documents-uncollated-copies"},
    {"collate",               nullptr, kTruths},
    {"outputorder",           nullptr, "normal reverse"},
    {"mirror",                nullptr, kTruths},
    {"fit-to-page",           nullptr, kTruths},
    {"print-scaling",         nullptr, "auto auto-fit fill fit none"},
    {"scaling",               "[1-9][0-9]{0,2}", "a percentage from 1 to 999"},
    {"orientation-requested", nullptr, "3 4 5 6"},
    {"landscape",             nullptr, kTruths},
    {"media",                 kAny,    "names of media"},
    {"output-bin",            kAny,    "the name of a tray"},
    {"print-color-mode",      nullptr, "auto color monochrome bi-level"},
    {"print-quality",         nullptr, "3 4 5"},
    {"printer-resolution",    "[1-9][0-9]*(x[1-9][0-9]*)?dpi", "a resolution such as 600dpi"},
    {"job-priority",          "[1-9][0-9]?|100", "a whole number from 1 to 100"},
    {"job-hold-until",        kAny,    "a time or its name"},
    {"job-sheets",            kAny,    "names of banner pages"},
    {"job-billing",           kAny,    "any text"},
};
// clang-format on

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

} // namespace

bool isJobSetting(const QString &name)
{
    return rowOf(name) != nullptr;
}

QStringList jobSettingNames()
{
    QStringList names;
    for (const JobSettingRow &row : kJobSettings)
        names.append(QString::fromLatin1(row.name));
    return names;
}

QString jobSettingProblem(const Choice &setting)
{
    const JobSettingRow &row = *rowOf(setting.option);
    if (row.pattern ? matches(row.pattern, setting.choice) : wordsOf(row).contains(setting.choice))
        return {};
    const QString values =
        row.pattern ? QString::fromLatin1(row.values) : wordsOf(row).join(QStringLiteral(", "));
    return QStringLiteral("%1 cannot be %2; it takes %3")
        .arg(setting.option, setting.choice, values);
}

} // namespace dialog::batch
