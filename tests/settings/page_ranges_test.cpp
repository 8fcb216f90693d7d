#include "dialog/settings/page_ranges.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

TEST(PageRangesField, ReadsRangesAndSaysThemInTheJobsForm)
{
    const std::pair<const char *, const char *> table[] = {
        {"1-3, 5, 8-", "1-3,5,8-"},
        {"7", "7"},
        {"-4", "1-4"},
        {" 2 - 3 ; 9 ", "2-3,9"},
        {"5, 1-3", "1-3,5"},
        {"1-3,2-6", "1-6"},
        {"1-3,4", "1-4"},
        {"8-,9,20-30", "8-"},
        {"3-3", "3"},
        {"1-", "1-"},
        {"1,,2,", "1-2"},
        {"007", "7"},
        {"１〜３、５", "1-3,5"},
        {"٣-٥", "3-5"},
        {"1–3", "1-3"},
    };
    for (const auto &[typed, expected] : table) {
        const PageRanges read = readPageRanges(q(typed));
        EXPECT_TRUE(read.isValid()) << typed;
        EXPECT_TEXT(pageRangesSetting(read.ranges), expected);
        EXPECT_NULL(rangeProblemText(read));
    }
}

struct Wrong
{
    const char *typed;
    RangeProblem problem;
    qsizetype place;
    const char *part;
};

TEST(PageRangesField, TellsWhatIsWrongAndWhere)
{
    const Wrong table[] = {
        {"", RangeProblem::Nothing, 0, ""},
        {" , ,", RangeProblem::Nothing, 0, " , ,"},
        {"1-3, x", RangeProblem::NoNumber, 5, "x"},
        {"1 2", RangeProblem::NoNumber, 0, "1 2"},
        {"2.5", RangeProblem::NoNumber, 0, "2.5"},
        {"+1", RangeProblem::NoNumber, 0, "+1"},
        {"1, 0", RangeProblem::Zero, 3, "0"},
        {"0-4", RangeProblem::Zero, 0, "0-4"},
        {"1,  5-3", RangeProblem::Backwards, 4, "5-3"},
        {"1-2-3", RangeProblem::Hyphens, 0, "1-2-3"},
        {"4,-", RangeProblem::Hyphens, 2, "-"},
        {"1--3", RangeProblem::Hyphens, 0, "1--3"},
        {"99999999999999999999", RangeProblem::TooLarge, 0, "99999999999999999999"},
    };
    for (const Wrong &wrong : table) {
        const PageRanges read = readPageRanges(q(wrong.typed));
        EXPECT_EQ(read.problem, wrong.problem) << wrong.typed;
        EXPECT_EQ(read.place, wrong.place) << wrong.typed;
        EXPECT_SAME(read.part, q(wrong.part));
        EXPECT_TRUE(read.ranges.empty()) << wrong.typed;
        EXPECT_FALSE(rangeProblemText(read).isEmpty()) << wrong.typed;
    }
}

TEST(PageRangesField, SaysARemedy)
{
    EXPECT_TEXT(rangeProblemText(readPageRanges(q("15-3"))), "“15-3” runs backwards. Write 3-15.");
    EXPECT_TEXT(rangeProblemText(readPageRanges(q("1,%2"))),
                "“%2” is no page number. Write pages as 1-3, 5, 8-.");
}

TEST(PageRangesField, ComparesWithTheDocumentWhenItsPagesAreKnown)
{
    const PageRanges behind = readPageRanges(q("2,13-"), 12);
    EXPECT_EQ(behind.problem, RangeProblem::BehindEnd);
    EXPECT_TRUE(rangeProblemText(behind, 12).contains(q("12")))
        << rangeProblemText(behind, 12).toStdString();
    EXPECT_TRUE(readPageRanges(q("10-20"), 12).isCut);
    EXPECT_TRUE(readPageRanges(q("10-20"), 12).isValid());
    EXPECT_FALSE(readPageRanges(q("10-12"), 12).isCut);
    EXPECT_FALSE(readPageRanges(q("10-"), 12).isCut) << "an open end is no end behind the last";
    EXPECT_TRUE(readPageRanges(q("13")).isValid()) << "nothing is known of the document";
}

TEST(PagesOnSides, AreThoseOfTheDocument)
{
    const std::vector<PageRange> sides{{1, 1}, {3, 4}, {6, PageRange::kEnd}};
    EXPECT_TEXT(pageRangesSetting(pagesOnSides(sides, 1)), "1,3-4,6-");
    EXPECT_TEXT(pageRangesSetting(pagesOnSides(sides, 4)), "1-4,9-16,21-");
    EXPECT_TEXT(pageRangesSetting(pagesOnSides({{1, 3}}, 4, 10)), "1-10") << "the last is not full";
    EXPECT_TEXT(pageRangesSetting(pagesOnSides({{9'999'999, 9'999'999}}, 16)),
                "159999969-159999984");
}

} // namespace
