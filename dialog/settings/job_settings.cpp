#include "dialog/settings/job_settings.h"

#include "dialog/printers/standard_options.h"
#include "platform/strings.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {
namespace {

constexpr const char *kContext = "JobSettings";
const QString kCopies = QStringLiteral("copies");
const QString kHandling = QStringLiteral("multiple-document-handling");
const QString kCollated = QStringLiteral("separate-documents-collated-copies");
const QString kUncollated = QStringLiteral("separate-documents-uncollated-copies");
const QString kOrder = QStringLiteral("outputorder");
const QString kRanges = QStringLiteral("page-ranges");
const QString kMirror = QStringLiteral("mirror");
const QString kTrue = QStringLiteral("true");

// clang-format off
constexpr JobListItem kPageSets[] = {
    {nullptr, QT_TRANSLATE_NOOP("JobSettings", "Both")},
    {"odd",   QT_TRANSLATE_NOOP("JobSettings", "Odd pages only")},
    {"even",  QT_TRANSLATE_NOOP("JobSettings", "Even pages only")},
};

constexpr JobListItem kOrientations[] = {
    {nullptr, QT_TRANSLATE_NOOP("JobSettings", "Automatic")},
    {"3",     QT_TRANSLATE_NOOP("JobSettings", "Portrait")},
    {"4",     QT_TRANSLATE_NOOP("JobSettings", "Landscape")},
    {"6",     QT_TRANSLATE_NOOP("JobSettings", "Reverse portrait")},
    {"5",     QT_TRANSLATE_NOOP("JobSettings", "Reverse landscape")},
};

// The numbers of kSharedSheets.
constexpr JobListItem kPagesPerSheet[] = {
    {nullptr, "1"}, {"2", "2"}, {"4", "4"}, {"6", "6"}, {"9", "9"}, {"16", "16"},
};

constexpr JobListItem kLayoutOrders[] = {
    {nullptr, QT_TRANSLATE_NOOP("JobSettings", "Right, then down")},
    {"tblr",  QT_TRANSLATE_NOOP("JobSettings", "Down, then right")},
    {"rltb",  QT_TRANSLATE_NOOP("JobSettings", "Left, then down")},
    {"tbrl",  QT_TRANSLATE_NOOP("JobSettings", "Down, then left")},
    {"lrbt",  QT_TRANSLATE_NOOP("JobSettings", "Right, then up")},
    {"btlr",  QT_TRANSLATE_NOOP("JobSettings", "Up, then right")},
    {"rlbt",  QT_TRANSLATE_NOOP("JobSettings", "Left, then up")},
    {"btrl",  QT_TRANSLATE_NOOP("JobSettings", "Up, then left")},
};

constexpr JobListItem kBorders[] = {
    {nullptr,        QT_TRANSLATE_NOOP("JobSettings", "No border")},
    {"single",       QT_TRANSLATE_NOOP("JobSettings", "Thin line")},
    {"single-thick", QT_TRANSLATE_NOOP("JobSettings", "Thick line")},
    {"double",       QT_TRANSLATE_NOOP("JobSettings", "Two thin lines")},
    {"double-thick", QT_TRANSLATE_NOOP("JobSettings", "Two thick lines")},
};

constexpr JobListItem kScalings[] = {
    {nullptr, QT_TRANSLATE_NOOP("JobSettings", "Automatic")},
    {"none",  QT_TRANSLATE_NOOP("JobSettings", "Actual size")},
    {"fit",   QT_TRANSLATE_NOOP("JobSettings", "Fit to the paper")},
    {"fill",  QT_TRANSLATE_NOOP("JobSettings", "Fill the paper")},
};

constexpr JobListRow kLists[] = {
    {JobList::PageSet,       "page-set",              kPageSets},
    {JobList::Orientation,   "orientation-requested", kOrientations},
    {JobList::PagesPerSheet, "number-up",             kPagesPerSheet},
    {JobList::LayoutOrder,   "number-up-layout",      kLayoutOrders},
    {JobList::Border,        "page-border",           kBorders},
    {JobList::Scaling,       "print-scaling",         kScalings},
};

/// The word that says the same as a setting that is not there.
struct Default
{
    JobList list;
    const char *value;
};

constexpr Default kDefaults[] = {
    {JobList::PageSet,       "all"},
    {JobList::PagesPerSheet, "1"},
    {JobList::LayoutOrder,   "lrtb"},
    {JobList::Border,        "none"},
    {JobList::Scaling,       "auto"},
};
// clang-format on

constexpr bool areInOrder()
{
    for (std::size_t i = 0; i < std::size(kLists); ++i) {
        if (kLists[i].list != static_cast<JobList>(i) || kLists[i].items[0].value)
            return false;
    }
    return true;
}
static_assert(areInOrder(), "a list at its place, its first item the missing setting");
static_assert(std::size(kPagesPerSheet) == std::size(kSharedSheets));

QVariant valueOf(const PrintSettingsMap &settings, const QString &key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? QVariant() : found->second;
}

bool isText(const PrintSettingsMap &settings, const QString &key, const QString &text)
{
    return valueOf(settings, key).toString().compare(text, Qt::CaseInsensitive) == 0;
}

bool isDefault(JobList list, const QString &value)
{
    return std::any_of(std::begin(kDefaults), std::end(kDefaults), [&](const Default &row) {
        return row.list == list && value == QLatin1String(row.value);
    });
}

/// Columns of a sheet with that many pages, of the next larger one that there is.
int columnsOf(int pages)
{
    for (const SharedSheet &sheet : kSharedSheets) {
        if (sheet.pages >= pages)
            return sheet.columns;
    }
    return std::end(kSharedSheets)[-1].columns;
}

} // namespace

const JobListRow &jobList(JobList list)
{
    return kLists[static_cast<std::size_t>(list)];
}

QStringList jobListValues(JobList list)
{
    QStringList values;
    for (const Default &row : kDefaults) {
        if (row.list == list)
            values.append(QString::fromLatin1(row.value));
    }
    for (const JobListItem &item : jobList(list).items) {
        if (item.value)
            values.append(QString::fromLatin1(item.value));
    }
    return values;
}

QString jobListItemText(const JobListItem &item)
{
    return QCoreApplication::translate(kContext, item.text);
}

int jobListIndex(JobList list, const PrintSettingsMap &settings)
{
    const JobListRow &row = jobList(list);
    const QString value = valueOf(settings, QLatin1String(row.key)).toString();
    if (value.isNull() || isDefault(list, value))
        return 0;
    for (std::size_t i = 1; i < row.items.size(); ++i) {
        if (value == QLatin1String(row.items[i].value))
            return static_cast<int>(i);
    }
    return -1;
}

SettingChanges jobListChanges(JobList list, int item)
{
    const JobListRow &row = jobList(list);
    if (item < 0 || item >= static_cast<int>(row.items.size()))
        return {};
    const char *value = row.items[static_cast<std::size_t>(item)].value;
    return {{QLatin1String(row.key), value ? QVariant(QString::fromLatin1(value)) : QVariant()}};
}

SettingChanges withCompanions(const SettingChange &change)
{
    SettingChanges changes{change};
    if (change.key == QLatin1String(jobList(JobList::PagesPerSheet).key)) {
        const int columns = columnsOf(platform::integerValue(change.value));
        changes.push_back(
            {columnsKey(), columns > 1 ? QVariant(QString::number(columns)) : QVariant()});
    }
    return changes;
}

bool isCompanion(const QString &key, const PrintSettingsMap &settings)
{
    return key == columnsKey() &&
           settings.contains(QLatin1String(jobList(JobList::PagesPerSheet).key));
}

int copiesOf(const PrintSettingsMap &settings)
{
    return std::clamp(platform::integerValue(valueOf(settings, kCopies)), 1, kMostCopies);
}

bool isCollated(const PrintSettingsMap &settings)
{
    return isText(settings, kHandling, kCollated);
}

bool isReversed(const PrintSettingsMap &settings)
{
    return isText(settings, kOrder, QStringLiteral("reverse"));
}

QString pageRangesOf(const PrintSettingsMap &settings)
{
    const QString ranges = valueOf(settings, kRanges).toString();
    return ranges.isEmpty() ? QString() : ranges;
}

int pagesPerSheetOf(const PrintSettingsMap &settings)
{
    const int index = jobListIndex(JobList::PagesPerSheet, settings);
    return kSharedSheets[static_cast<std::size_t>(std::max(index, 0))].pages;
}

bool isFlipped(const PrintSettingsMap &settings)
{
    const QVariant value = valueOf(settings, kMirror);
    return value.typeId() == QMetaType::QString && value.toString() == kTrue;
}

SettingChanges copiesChanges(int copies, const PrintSettingsMap &settings)
{
    const QVariant value =
        copies > 1 ? QVariant(QString::number(std::min(copies, kMostCopies))) : QVariant();
    SettingChanges changes{{kCopies, value}};
    if (copies <= 1 && isCollated(settings))
        changes.push_back({kHandling, {}});
    if (copies > 1 && !settings.contains(kHandling))
        changes.push_back({kHandling, kCollated});
    return changes;
}

SettingChanges collateChanges(OnOff state)
{
    return {{kHandling, state == OnOff::On ? kCollated : kUncollated}};
}

SettingChanges reverseChanges(OnOff state)
{
    return {{kOrder, state == OnOff::On ? QVariant(QStringLiteral("reverse")) : QVariant()}};
}

SettingChanges flipChanges(OnOff state)
{
    return {{kMirror, state == OnOff::On ? QVariant(kTrue) : QVariant()}};
}

SettingChanges pageRangesChanges(const QString &ranges)
{
    return {{kRanges, ranges.isNull() ? QVariant() : QVariant(ranges)}};
}

} // namespace dialog
