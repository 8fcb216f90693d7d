#include "tests/support/covering_array.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace test;

namespace {

bool has(const CoveringRow &row, const Assignment &part)
{
    return row[static_cast<std::size_t>(part.factor)] == part.choice;
}

bool isExcluded(const CoveringRow &row, const std::vector<Exclusion> &exclusions)
{
    return std::any_of(exclusions.begin(), exclusions.end(), [&](const Exclusion &excluded) {
        return std::all_of(excluded.begin(), excluded.end(),
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
void expectEveryPossiblePair(const std::vector<int> &counts,
                             const std::vector<Exclusion> &exclusions, unsigned seed = 0)
{
    const CoveringArray array = coverPairs(counts, exclusions, seed);
    for (const CoveringRow &row : array.rows)
        EXPECT_FALSE(isExcluded(row, exclusions));
    std::vector<CoveringRow> allowed = everyRow(counts);
    const std::set<AssignmentPair> all = pairsIn(allowed);
    std::erase_if(allowed, [&](const CoveringRow &row) { return isExcluded(row, exclusions); });
    EXPECT_EQ(pairsIn(array.rows), pairsIn(allowed));
    EXPECT_EQ(array.covered, pairsIn(allowed));
    EXPECT_EQ(array.covered.size() + array.impossible.size(), all.size());
}

} // namespace

TEST(CoveringArray, HasEveryPair)
{
    expectEveryPossiblePair({2, 2, 2, 2}, {});
    expectEveryPossiblePair({4, 3, 3, 2, 5}, {});
    expectEveryPossiblePair({1, 3}, {});
}

TEST(CoveringArray, HasNoRowWithAnExclusionAndEveryPairThatIsLeft)
{
    expectEveryPossiblePair({3, 3, 3, 2}, {{{0, 1}, {1, 2}}});
    expectEveryPossiblePair({3, 3, 3, 2}, {{{0, 1}, {1, 2}, {3, 0}}, {{2, 0}, {3, 1}}});
}

/// The second factor's choice 0 stands beside no choice of the first, so that it is in no row.
TEST(CoveringArray, FindsPairsThatTwoExclusionsMakeImpossibleTogether)
{
    const std::vector<Exclusion> exclusions{{{0, 0}, {1, 0}}, {{0, 1}, {1, 0}}};
    expectEveryPossiblePair({2, 3, 4}, exclusions);
    EXPECT_TRUE(coverPairs({2, 3, 4}, exclusions).impossible.contains({{1, 0}, {2, 3}}));
}

TEST(CoveringArray, HasFewRows)
{
    EXPECT_LE(coverPairs({2, 2, 2, 2}, {}).rows.size(), 7U);
    const std::vector<int> tenOfFour(10, 4);
    EXPECT_LE(coverPairs(tenOfFour, {}).rows.size(), 40U); // of more than a million
}

TEST(CoveringArray, IsTheSameForTheSameSeedAndAnotherForAnother)
{
    const std::vector<int> counts{4, 3, 3, 2, 5};
    expectEveryPossiblePair(counts, {}, 7);
    EXPECT_EQ(coverPairs(counts, {}, 7).rows, coverPairs(counts, {}, 7).rows);
    EXPECT_NE(coverPairs(counts, {}, 7).rows, coverPairs(counts, {}, 8).rows);
}
