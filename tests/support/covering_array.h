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

/// Of different factors.
using Assignments = std::vector<Assignment>;
/// The choice of every factor.
using CoveringRow = std::vector<int>;
/// The one with the lower factor first.
using AssignmentPair = std::pair<Assignment, Assignment>;

struct CoveringTask
{
    std::vector<int> choiceCounts = {};     ///< of each factor
    std::vector<Assignments> excluded = {}; ///< not all together in a row
    std::vector<Assignments> required = {}; ///< all together in a row, beside the pairs
    unsigned seed = 0; ///< the same one gives the same rows, another one others
};

struct CoveringArray
{
    std::vector<CoveringRow> rows; ///< the required ones first
    std::set<AssignmentPair> covered;
    std::set<AssignmentPair> impossible; ///< in no row without what is excluded
    std::vector<Assignments> unmet;      ///< of the required ones; none if the task makes sense
};

/// Few rows that together have every pair of assignments that any row can have.
[[nodiscard]] CoveringArray coverPairs(const CoveringTask &task);

} // namespace test
