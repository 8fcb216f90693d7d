#pragma once

#include <set>
#include <utility>
#include <vector>

namespace test {

/// One choice of one factor, both counted from 0.
struct Assignment
{
    int factor;
    int choice;

    auto operator<=>(const Assignment &) const = default;
};

/// Assignments of different factors that cannot all stand in one row.
using Exclusion = std::vector<Assignment>;
/// The choice of every factor.
using CoveringRow = std::vector<int>;
/// The one with the lower factor first.
using AssignmentPair = std::pair<Assignment, Assignment>;

struct CoveringArray
{
    std::vector<CoveringRow> rows;
    std::set<AssignmentPair> covered;
    std::set<AssignmentPair> impossible; ///< in no row without an exclusion
};

/// Few rows that together have every pair of assignments that any row without an exclusion can
/// have. @p choiceCounts says how many choices each factor has. The same seed gives the same rows,
/// another one others.
[[nodiscard]] CoveringArray coverPairs(const std::vector<int> &choiceCounts,
                                       const std::vector<Exclusion> &exclusions, unsigned seed = 0);

} // namespace test
