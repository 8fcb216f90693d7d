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
    Greedy(const std::vector<int> &choiceCounts, const std::vector<Exclusion> &exclusions,
           unsigned seed)
        : counts_(choiceCounts), exclusions_(exclusions), random_(seed),
          missing_(everyPair(choiceCounts))
    {
        orderFactors();
    }

    CoveringArray build()
    {
        while (!missing_.empty())
            addRowWith(*missing_.begin());
        return std::move(array_);
    }

private:
    /// Factors of exclusions first, so that a dead end shows early; then those with most choices.
    void orderFactors()
    {
        order_.resize(counts_.size());
        std::iota(order_.begin(), order_.end(), 0);
        std::stable_sort(order_.begin(), order_.end(), [this](int a, int b) {
            return std::pair(isInExclusion(a), count(a)) > std::pair(isInExclusion(b), count(b));
        });
    }

    [[nodiscard]] bool isInExclusion(int factor) const
    {
        return std::any_of(exclusions_.begin(), exclusions_.end(), [&](const Exclusion &excluded) {
            return std::any_of(excluded.begin(), excluded.end(),
                               [&](const Assignment &part) { return part.factor == factor; });
        });
    }

    [[nodiscard]] int count(int factor) const { return counts_[static_cast<std::size_t>(factor)]; }

    static int &at(CoveringRow &row, int factor) { return row[static_cast<std::size_t>(factor)]; }
    static int at(const CoveringRow &row, int factor)
    {
        return row[static_cast<std::size_t>(factor)];
    }

    void addRowWith(AssignmentPair pair)
    {
        CoveringRow row(counts_.size(), kOpen);
        at(row, pair.first.factor) = pair.first.choice;
        at(row, pair.second.factor) = pair.second.choice;
        if (!isAllowed(row) || !complete(row, 0)) {
            array_.impossible.insert(pair);
            missing_.erase(pair);
            return;
        }
        for (const AssignmentPair &got : pairsOf(row)) {
            missing_.erase(got);
            array_.covered.insert(got);
        }
        array_.rows.push_back(row);
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
        return std::none_of(exclusions_.begin(), exclusions_.end(), [&](const Exclusion &excluded) {
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

    const std::vector<int> &counts_;
    const std::vector<Exclusion> &exclusions_;
    std::mt19937 random_;
    std::vector<int> order_;
    std::set<AssignmentPair> missing_;
    CoveringArray array_;
};

} // namespace

CoveringArray coverPairs(const std::vector<int> &choiceCounts,
                         const std::vector<Exclusion> &exclusions, unsigned seed)
{
    return Greedy(choiceCounts, exclusions, seed).build();
}

} // namespace test
