#include "tests/support/covering_array.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace test;

namespace {

bool has(const CoveringRow &row, const Assignment &part)
{
    return row[static_cast<std::size_t>(part.factor)] == part.choice;
}

bool isExcluded(const CoveringRow &row, const std::vector<Assignments> &excluded)
{
    return std::any_of(excluded.begin(), excluded.end(), [&](const Assignments &parts) {
        return std::all_of(parts.begin(), parts.end(),
                           [&](const Assignment &part) { return has(row, part); });
    });
}

std::vector<CoveringRow> everyRow(const std::vector<int> &counts)
{
    std::vector<CoveringRow> rows{{}};
    for (const int count : counts) {
        std::vector<CoveringRow> longer;
        for (const CoveringRow &row : rows) {
            for (int choice = 0; choice < count; ++choice) {
                longer.push_back(row);
                longer.back().push_back(choice);
            }
        }
        rows = std::move(longer);
    }
    return rows;
}

std::set<AssignmentPair> pairsIn(const std::vector<CoveringRow> &rows)
{
    std::set<AssignmentPair> pairs;
    for (const CoveringRow &row : rows)
        for (int one = 0; one < static_cast<int>(row.size()); ++one)
            for (int other = one + 1; other < static_cast<int>(row.size()); ++other)
                pairs.insert({{one, row[static_cast<std::size_t>(one)]},
                              {other, row[static_cast<std::size_t>(other)]}});
    return pairs;
}

/// Looks at every row there is, one after the other.
void expectEveryPossiblePair(const CoveringTask &task)
{
    const CoveringArray array = coverPairs(task);
    for (const CoveringRow &row : array.rows)
        EXPECT_FALSE(isExcluded(row, task.excluded));
    std::vector<CoveringRow> allowed = everyRow(task.choiceCounts);
    const std::set<AssignmentPair> all = pairsIn(allowed);
    std::erase_if(allowed, [&](const CoveringRow &row) { return isExcluded(row, task.excluded); });
    EXPECT_EQ(pairsIn(array.rows), pairsIn(allowed));
    EXPECT_EQ(array.covered, pairsIn(allowed));
    EXPECT_EQ(array.covered.size() + array.impossible.size(), all.size());
}

} // namespace

TEST(CoveringArray, HasEveryPair)
{
    expectEveryPossiblePair({{2, 2, 2, 2}});
    expectEveryPossiblePair({{4, 3, 3, 2, 5}});
    expectEveryPossiblePair({{1, 3}});
}

TEST(CoveringArray, HasNothingThatIsExcludedAndEveryPairThatIsLeft)
{
    expectEveryPossiblePair({{3, 3, 3, 2}, {{{0, 1}, {1, 2}}}});
    expectEveryPossiblePair({{3, 3, 3, 2}, {{{0, 1}, {1, 2}, {3, 0}}, {{2, 0}, {3, 1}}}});
}

/// The second factor's choice 0 stands beside no choice of the first, so that it is in no row.
TEST(CoveringArray, FindsPairsThatTwoExclusionsMakeImpossibleTogether)
{
    const CoveringTask task{{2, 3, 4}, {{{0, 0}, {1, 0}}, {{0, 1}, {1, 0}}}};
    expectEveryPossiblePair(task);
    EXPECT_TRUE(coverPairs(task).impossible.contains({{1, 0}, {2, 3}}));
}

TEST(CoveringArray, HasWhatIsRequiredBesideThePairs)
{
    const Assignments required{{0, 3}, {2, 1}, {3, 1}, {4, 4}};
    const CoveringTask task{{4, 3, 3, 2, 5}, {{{0, 3}, {1, 0}}}, {required}};
    expectEveryPossiblePair(task);
    const CoveringArray array = coverPairs(task);
    EXPECT_TRUE(std::all_of(required.begin(), required.end(),
                            [&](const Assignment &part) { return has(array.rows.front(), part); }));
    EXPECT_TRUE(array.unmet.empty());
}

TEST(CoveringArray, TellsWhatIsRequiredInVain)
{
    const CoveringTask task{{2, 2}, {{{0, 0}, {1, 0}}}, {{{0, 0}, {1, 0}}}};
    expectEveryPossiblePair(task);
    EXPECT_EQ(coverPairs(task).unmet, task.required);
}

TEST(CoveringArray, HasFewRows)
{
    EXPECT_LE(coverPairs({{2, 2, 2, 2}}).rows.size(), 7U);
    const std::vector<int> tenOfFour(10, 4);
    EXPECT_LE(coverPairs({tenOfFour}).rows.size(), 40U); // of more than a million
}

TEST(CoveringArray, IsTheSameForTheSameSeedAndAnotherForAnother)
{
    const CoveringTask task{{4, 3, 3, 2, 5}, {}, {}, 7};
    CoveringTask other = task;
    other.seed = 8;
    expectEveryPossiblePair(task);
    EXPECT_EQ(coverPairs(task).rows, coverPairs(task).rows);
    EXPECT_NE(coverPairs(task).rows, coverPairs(other).rows);
}
