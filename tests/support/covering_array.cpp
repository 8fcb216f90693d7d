#include "tests/support/covering_array.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace test {
namespace {

constexpr int kOpen = -1; ///< a factor that has no choice yet

std::set<AssignmentPair> everyPair(const std::vector<int> &choiceCounts)
{
    std::set<AssignmentPair> pairs;
    const int factors = static_cast<int>(choiceCounts.size());
    for (int one = 0; one < factors; ++one)
        for (int other = one + 1; other < factors; ++other)
            for (int i = 0; i < choiceCounts[static_cast<std::size_t>(one)]; ++i)
                for (int j = 0; j < choiceCounts[static_cast<std::size_t>(other)]; ++j)
                    pairs.insert({{one, i}, {other, j}});
    return pairs;
}

/// Builds one row after the other: each begins with a pair that is still missing, and every further
/// factor takes the choice that adds most missing pairs.
class Greedy
{
public:
    explicit Greedy(const CoveringTask &task)
        : task_(task), random_(task.seed), missing_(everyPair(task.choiceCounts))
    {
        orderFactors();
    }

    CoveringArray build()
    {
        for (const Assignments &required : task_.required) {
            if (!addRowWith(required))
                array_.unmet.push_back(required);
        }
        while (!missing_.empty()) {
            const AssignmentPair pair = *missing_.begin();
            if (!addRowWith({pair.first, pair.second}))
                array_.impossible.insert(missing_.extract(pair));
        }
        return std::move(array_);
    }

private:
    /// Factors of exclusions first, so that a dead end shows early; then those with most choices.
    void orderFactors()
    {
        order_.resize(task_.choiceCounts.size());
        std::iota(order_.begin(), order_.end(), 0);
        std::stable_sort(order_.begin(), order_.end(), [this](int a, int b) {
            return std::pair(isInExcluded(a), count(a)) > std::pair(isInExcluded(b), count(b));
        });
    }

    [[nodiscard]] bool isInExcluded(int factor) const
    {
        return std::any_of(
            task_.excluded.begin(), task_.excluded.end(), [&](const Assignments &excluded) {
                return std::any_of(excluded.begin(), excluded.end(),
                                   [&](const Assignment &part) { return part.factor == factor; });
            });
    }

    [[nodiscard]] int count(int factor) const
    {
        return task_.choiceCounts[static_cast<std::size_t>(factor)];
    }

    static int &at(CoveringRow &row, int factor) { return row[static_cast<std::size_t>(factor)]; }
    static int at(const CoveringRow &row, int factor)
    {
        return row[static_cast<std::size_t>(factor)];
    }

    [[nodiscard]] bool addRowWith(const Assignments &assignments)
    {
        CoveringRow row(task_.choiceCounts.size(), kOpen);
        for (const Assignment &assignment : assignments)
            at(row, assignment.factor) = assignment.choice;
        if (!isAllowed(row) || !complete(row, 0))
            return false;
        for (const AssignmentPair &got : pairsOf(row)) {
            missing_.erase(got);
            array_.covered.insert(got);
        }
        array_.rows.push_back(row);
        return true;
    }

    /// Gives the open factors a choice each; false, and the row as it was, when there is no way.
    bool complete(CoveringRow &row, std::size_t position)
    {
        while (position < order_.size() && at(row, order_[position]) != kOpen)
            ++position;
        if (position == order_.size())
            return true;
        const int factor = order_[position];
        for (const int choice : bestFirst(row, factor)) {
            at(row, factor) = choice;
            if (isAllowed(row) && complete(row, position + 1))
                return true;
        }
        at(row, factor) = kOpen;
        return false;
    }

    std::vector<int> bestFirst(const CoveringRow &row, int factor)
    {
        std::vector<std::pair<int, int>> gains; // with its sign changed, then the choice
        const int first = static_cast<int>(random_() % static_cast<unsigned>(count(factor)));
        for (int i = 0; i < count(factor); ++i) {
            const int choice = (first + i) % count(factor);
            gains.emplace_back(-gain(row, {factor, choice}), choice);
        }
        std::stable_sort(gains.begin(), gains.end(),
                         [](const auto &a, const auto &b) { return a.first < b.first; });
        std::vector<int> choices;
        for (const auto &[negated, choice] : gains)
            choices.push_back(choice);
        return choices;
    }

    [[nodiscard]] int gain(const CoveringRow &row, const Assignment &added) const
    {
        int pairs = 0;
        for (int factor = 0; factor < static_cast<int>(row.size()); ++factor) {
            const Assignment there{factor, at(row, factor)};
            if (there.choice != kOpen && factor != added.factor)
                pairs += missing_.contains(std::minmax(there, added)) ? 1 : 0;
        }
        return pairs;
    }

    [[nodiscard]] bool isAllowed(const CoveringRow &row) const
    {
        return std::none_of(
            task_.excluded.begin(), task_.excluded.end(), [&](const Assignments &excluded) {
                return std::all_of(excluded.begin(), excluded.end(), [&](const Assignment &part) {
                    return at(row, part.factor) == part.choice;
                });
            });
    }

    static std::vector<AssignmentPair> pairsOf(const CoveringRow &row)
    {
        std::vector<AssignmentPair> pairs;
        const int factors = static_cast<int>(row.size());
        for (int one = 0; one < factors; ++one)
            for (int other = one + 1; other < factors; ++other)
                pairs.push_back({{one, at(row, one)}, {other, at(row, other)}});
        return pairs;
    }

    const CoveringTask &task_;
    std::mt19937 random_;
    std::vector<int> order_;
    std::set<AssignmentPair> missing_;
    CoveringArray array_;
};

} // namespace

CoveringArray coverPairs(const CoveringTask &task)
{
    return Greedy(task).build();
}

} // namespace test
