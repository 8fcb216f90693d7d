#include "dialog/printers/standard_options.h"
#include "dialog/settings/job_settings.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

PrintSettingsMap applied(const SettingChanges &changes, PrintSettingsMap settings = {})
{
    for (const auto &[key, value] : changes) {
        if (value.isNull())
            settings.erase(key);
        else
            settings[key] = value;
    }
    return settings;
}

TEST(JobSettingsLists, ReadBackEachItemThatIsPicked)
{
    for (int i = 0; i <= static_cast<int>(JobList::Scaling); ++i) {
        const auto list = static_cast<JobList>(i);
        const int items = static_cast<int>(jobList(list).items.size());
        for (int item = 0; item < items; ++item) {
            const PrintSettingsMap settings = applied(jobListChanges(list, item));
            EXPECT_EQ(jobListIndex(list, settings), item) << jobList(list).key;
            EXPECT_FALSE(
                jobListItemText(jobList(list).items[static_cast<std::size_t>(item)]).isEmpty());
        }
        EXPECT_TRUE(jobListChanges(list, items).empty()) << jobList(list).key;
        EXPECT_TRUE(applied(jobListChanges(list, 0)).empty()) << "the first one sends nothing";
    }
}

TEST(JobSettingsLists, KnowTheWordsOfSettingsThatSayNothing)
{
    const std::pair<JobList, const char *> table[] = {{JobList::PageSet, "all"},
                                                      {JobList::PagesPerSheet, "1"},
                                                      {JobList::LayoutOrder, "lrtb"},
                                                      {JobList::Border, "none"},
                                                      {JobList::Scaling, "auto"}};
    for (const auto &[list, value] : table)
        EXPECT_EQ(jobListIndex(list, {{q(jobList(list).key), q(value)}}), 0) << value;
    EXPECT_EQ(jobListIndex(JobList::PagesPerSheet, {{q("number-up"), q("3")}}), -1);
    EXPECT_EQ(jobListIndex(JobList::PagesPerSheet, {{q("number-up"), 4}}), 2) << "a number, too";
}

TEST(JobSettingsLists, TellThePanelsOfSharedSheets)
{
    const std::pair<const char *, const char *> table[] = {
        {"2", "2"}, {"4", "2"}, {"6", "3"}, {"9", "3"}, {"16", "4"}, {"12", "4"}, {"99", "4"}};
    for (const auto &[pages, columns] : table) {
        const SettingChanges expected{{q("number-up"), q(pages)}, {columnsKey(), q(columns)}};
        EXPECT_EQ(withCompanions({q("number-up"), q(pages)}), expected) << pages;
    }
    const SettingChanges single{{q("number-up"), QVariant()}, {columnsKey(), QVariant()}};
    EXPECT_EQ(withCompanions({q("number-up"), QVariant()}), single);
    EXPECT_EQ(withCompanions({q("number-up"), q("1")})[1].value, QVariant());
    EXPECT_EQ(withCompanions({q("copies"), q("2")}).size(), 1U);
}

TEST(JobSettingsLists, KnowWhatPagesPerSheetHaveBroughtAlong)
{
    const PrintSettingsMap shared{{q("number-up"), q("4")}, {columnsKey(), q("2")}};
    EXPECT_TRUE(isCompanion(columnsKey(), shared));
    EXPECT_FALSE(isCompanion(q("number-up"), shared));
    EXPECT_FALSE(isCompanion(columnsKey(), {{columnsKey(), q("2")}})) << "a panel's own";
}

TEST(JobSettingsCopies, AreCollatedFromTheSecondOn)
{
    const PrintSettingsMap two = applied(copiesChanges(2, {}));
    EXPECT_EQ(copiesOf(two), 2);
    EXPECT_TRUE(isCollated(two));
    EXPECT_TRUE(applied(copiesChanges(1, two), two).empty());
    const PrintSettingsMap uncollated = applied(collateChanges(OnOff::Off), two);
    EXPECT_FALSE(isCollated(uncollated));
    const PrintSettingsMap one = applied(copiesChanges(1, uncollated), uncollated);
    EXPECT_FALSE(isCollated(applied(copiesChanges(12, one), one)))
        << "what a person chose stays, also behind a 1 that is typed first";
}

TEST(JobSettingsCopies, AreOneToThreeDigits)
{
    const std::pair<QVariant, int> table[] = {{q("12"), 12}, {7, 7},       {q("0"), 1},
                                              {q("x"), 1},   {q("-3"), 1}, {q("1000"), 999}};
    for (const auto &[value, expected] : table)
        EXPECT_EQ(copiesOf({{q("copies"), value}}), expected) << testing::PrintToString(value);
    EXPECT_EQ(copiesOf({}), 1);
    EXPECT_EQ(copiesChanges(5000, {}).front().value, QVariant(q("999")));
}

TEST(JobSettings, SwitchReverseAndFlip)
{
    EXPECT_TRUE(isReversed(applied(reverseChanges(OnOff::On))));
    EXPECT_TRUE(applied(reverseChanges(OnOff::Off), applied(reverseChanges(OnOff::On))).empty());
    EXPECT_EQ(applied(flipChanges(OnOff::On)), PrintSettingsMap({{q("mirror"), q("true")}}));
    EXPECT_TRUE(applied(flipChanges(OnOff::Off), applied(flipChanges(OnOff::On))).empty());
}

TEST(JobSettings, MirrorForTheTextTrueOnly)
{
    EXPECT_TRUE(isFlipped({{q("mirror"), q("true")}}));
    for (const QVariant &value :
         {QVariant(true), QVariant(1), QVariant(q("True")), QVariant(q("on"))})
        EXPECT_FALSE(isFlipped({{q("mirror"), value}})) << testing::PrintToString(value);
}

TEST(JobSettings, HavePagesOrAll)
{
    EXPECT_SAME(pageRangesOf(applied(pageRangesChanges(q("1-3,5")))), q("1-3,5"));
    EXPECT_NULL(pageRangesOf(applied(pageRangesChanges({}), applied(pageRangesChanges(q("2"))))));
    EXPECT_NULL(pageRangesOf({{q("page-ranges"), q("")}}));
}

} // namespace
