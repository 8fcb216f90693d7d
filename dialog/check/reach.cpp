#include "dialog/check/reach.h"

#include <algorithm>
#include <optional>

namespace dialog::check {
namespace {

constexpr int kUnset = -1;
/// A pick-many option without any choice.
constexpr int kEmpty = -2;

/// One part of a constraint: an option by index, and which of its choices fulfil the part.
struct Part
{
    std::size_t option;
    std::vector<bool> fulfilling;
};
using Parts = std::vector<Part>;

/// The parts of a constraint that names options and choices which are there; empty when it can
/// never be fulfilled.
Parts partsOf(const Constraint &constraint, const std::vector<OptionChoices> &options)
{
    Parts parts;
    for (const Choice &part : constraint) {
        Part found{options.size(), {}};
        for (std::size_t i = 0; i < options.size() && found.option == options.size(); ++i) {
            std::vector<bool> fulfilling;
            for (const QString &choice : options[i].choices)
                fulfilling.push_back(matches(part, {options[i].option, choice}));
            if (std::find(fulfilling.begin(), fulfilling.end(), true) != fulfilling.end())
                found = {i, std::move(fulfilling)};
        }
        if (found.option == options.size())
            return {};
        parts.push_back(std::move(found));
    }
    return parts;
}

/// A search for combinations by backtracking.
class Search
{
public:
    Search(const std::vector<OptionChoices> &options, const Constraints &constraints, int budget)
        : options_(options), values_(options.size(), kUnset), constraintsOf_(options.size()),
          budget_(budget)
    {
        for (const Constraint &constraint : constraints)
            if (Parts parts = partsOf(constraint, options); !parts.empty())
                constraints_.push_back(std::move(parts));
        for (std::size_t i = 0; i < constraints_.size(); ++i)
            for (const Part &part : constraints_[i])
                constraintsOf_[part.option].push_back(i);
    }

    [[nodiscard]] bool isConstrained(std::size_t option) const
    {
        return !constraintsOf_[option].empty();
    }
    /// The choice of every constrained option in a combination with this one; nothing when there
    /// is none or isGivenUp().
    [[nodiscard]] std::optional<std::vector<int>> combinationWith(std::size_t option, int choice)
    {
        std::fill(values_.begin(), values_.end(), kUnset);
        left_ = budget_;
        values_[option] = choice;
        if (hasConflict(option) || !assignFrom(0))
            return std::nullopt;
        return values_;
    }
    [[nodiscard]] bool isGivenUp() const { return left_ <= 0; }

private:
    [[nodiscard]] bool isFulfilled(const Parts &parts) const
    {
        return std::all_of(parts.begin(), parts.end(), [this](const Part &part) {
            const int value = values_[part.option];
            return value >= 0 && part.fulfilling[static_cast<std::size_t>(value)];
        });
    }
    [[nodiscard]] bool hasConflict(std::size_t option) const
    {
        return std::any_of(constraintsOf_[option].begin(), constraintsOf_[option].end(),
                           [this](std::size_t i) { return isFulfilled(constraints_[i]); });
    }
    [[nodiscard]] bool tryValue(std::size_t option, int value)
    {
        if (--left_ <= 0)
            return false;
        values_[option] = value;
        return !hasConflict(option) && assignFrom(option + 1);
    }
    [[nodiscard]] bool assignFrom(std::size_t option)
    {
        while (option < options_.size() && (values_[option] != kUnset || !isConstrained(option)))
            ++option;
        if (option == options_.size())
            return true;
        if (options_[option].mayBeEmpty && tryValue(option, kEmpty))
            return true;
        for (int value = 0; value < static_cast<int>(options_[option].choices.size()); ++value)
            if (tryValue(option, value))
                return true;
        values_[option] = kUnset;
        return false;
    }

    const std::vector<OptionChoices> &options_;
    std::vector<Parts> constraints_;
    std::vector<int> values_;
    std::vector<std::vector<std::size_t>> constraintsOf_;
    const int budget_;
    int left_ = 0;
};

} // namespace

Reach reachOfChoices(const std::vector<OptionChoices> &options, const Constraints &constraints,
                     int budget)
{
    Search search(options, constraints, budget);
    std::vector<std::vector<bool>> isReached;
    for (const OptionChoices &option : options)
        isReached.emplace_back(static_cast<std::size_t>(option.choices.size()), false);
    Reach reach;
    for (std::size_t i = 0; i < options.size(); ++i) {
        for (std::size_t choice = 0; search.isConstrained(i) && choice < isReached[i].size();
             ++choice) {
            if (isReached[i][choice])
                continue;
            const auto combination = search.combinationWith(i, static_cast<int>(choice));
            for (std::size_t other = 0; combination && other < options.size(); ++other)
                if ((*combination)[other] >= 0)
                    isReached[other][static_cast<std::size_t>((*combination)[other])] = true;
            if (combination)
                continue;
            Choices &kind = search.isGivenUp() ? reach.undecided : reach.unreachable;
            kind.push_back({options[i].option, options[i].choices[static_cast<qsizetype>(choice)]});
        }
    }
    return reach;
}

} // namespace dialog::check
