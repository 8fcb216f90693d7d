#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <span>
#include <vector>

/// The job's own settings: print settings under the standard names of CUPS, as texts. What is not
/// there is left to printer and document.
namespace dialog {

using PrintSettingsMap = std::map<QString, QVariant>;

/// To be made in the print settings; a null value removes.
struct SettingChange
{
    QString key;
    QVariant value;

    bool operator==(const SettingChange &) const = default;
};
using SettingChanges = std::vector<SettingChange>;

/// A setting with a list of values that a person picks from.
enum class JobList { PageSet, Orientation, PagesPerSheet, LayoutOrder, Border, Scaling };

struct JobListItem
{
    const char *value; ///< null: the setting is not there
    const char *text;  ///< see jobListItemText()
};

struct JobListRow
{
    JobList list;
    const char *key;
    std::span<const JobListItem> items;
};

[[nodiscard]] const JobListRow &jobList(JobList list);
/// Every value that the setting can have, first the one that says the same as its absence, where
/// there is such a word.
[[nodiscard]] QStringList jobListValues(JobList list);
/// What a person reads.
[[nodiscard]] QString jobListItemText(const JobListItem &item);
/// The item of the present setting; -1 for a value that is not in the list.
[[nodiscard]] int jobListIndex(JobList list, const PrintSettingsMap &settings);
/// What picking an item changes; nothing for an item outside the list.
[[nodiscard]] SettingChanges jobListChanges(JobList list, int item);
/// A change with what has to be kept in step: pages per sheet are what the panels know of shared
/// sheets, too.
[[nodiscard]] SettingChanges withCompanions(const SettingChange &change);
/// Whether a setting that is there has brought this one along, or would have: it alone counts.
[[nodiscard]] bool isCompanion(const QString &key, const PrintSettingsMap &settings);

inline constexpr int kMostCopies = 999;

/// 1 without a good number.
[[nodiscard]] int copiesOf(const PrintSettingsMap &settings);
[[nodiscard]] bool isCollated(const PrintSettingsMap &settings);
[[nodiscard]] bool isReversed(const PrintSettingsMap &settings);
/// Null: all pages.
[[nodiscard]] QString pageRangesOf(const PrintSettingsMap &settings);
/// As they come out: 1 for a number that no sheet has room for.
[[nodiscard]] int pagesPerSheetOf(const PrintSettingsMap &settings);
/// Whether the job is mirrored; the text "true" alone says so.
[[nodiscard]] bool isFlipped(const PrintSettingsMap &settings);

/// Several copies are collated unless a person has set something else, which stays even while a
/// single copy has nothing to collate.
[[nodiscard]] SettingChanges copiesChanges(int copies, const PrintSettingsMap &settings);

enum class OnOff { Off, On };
[[nodiscard]] SettingChanges collateChanges(OnOff state);
[[nodiscard]] SettingChanges reverseChanges(OnOff state);
[[nodiscard]] SettingChanges flipChanges(OnOff state);
/// Null: all pages.
[[nodiscard]] SettingChanges pageRangesChanges(const QString &ranges);

} // namespace dialog
