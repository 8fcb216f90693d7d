#include "dialog/printers/constraint_table.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace dialog {
namespace {

/// Whether a choice fulfils each part of its own option.
bool fulfilsItsParts(const Constraint &constraint, const Choice &byKey)
{
    return std::all_of(constraint.begin(), constraint.end(), [&](const Choice &part) {
        return part.option != byKey.option || isFulfilledBy(part, byKey.choice);
    });
}

void addOnce(Choices &choices, const Choice &choice)
{
    if (std::find(choices.begin(), choices.end(), choice) == choices.end())
        choices.push_back(choice);
}

bool isListed(const std::vector<Conflict> &conflicts, const Choice &one, const Choice &other)
{
    return std::any_of(conflicts.begin(), conflicts.end(), [&](const Conflict &conflict) {
        return (conflict.one == one && conflict.other == other) ||
               (conflict.one == other && conflict.other == one);
    });
}

} // namespace

QString constraintKey(const QString &option)
{
    const QString folded = option.toCaseFolded();
    return folded == QLatin1String("pageregion") ? QStringLiteral("pagesize") : folded;
}

MarkTable::MarkTable(const Choices &marks)
{
    for (const Choice &mark : marks) {
        const QString key = constraintKey(mark.option);
        if (!marks_.contains(key))
            order_.append(key);
        marks_[key].push_back(mark);
    }
}

const Choices &MarkTable::at(const QString &key) const
{
    static const Choices none;
    const auto found = marks_.constFind(key);
    return found == marks_.cend() ? none : *found;
}

const Choices &MarkTable::of(const QString &option) const
{
    return at(constraintKey(option));
}

Choices MarkTable::exchange(const QString &option, const Choices &marks)
{
    const QString key = constraintKey(option);
    if (!order_.contains(key))
        order_.append(key);
    return std::exchange(marks_[key], marks);
}

const Choice *MarkTable::fulfilling(const Choice &partByKey) const
{
    const Choices &marks = at(partByKey.option);
    const auto found = std::find_if(marks.begin(), marks.end(), [&](const Choice &mark) {
        return isFulfilledBy(partByKey, mark.choice);
    });
    return found == marks.end() ? nullptr : &*found;
}

Choices MarkTable::all() const
{
    Choices marks;
    for (const QString &key : order_) {
        const Choices &ofOption = at(key);
        marks.insert(marks.end(), ofOption.begin(), ofOption.end());
    }
    return marks;
}

ConstraintTable::ConstraintTable(const Constraints &constraints)
{
    std::copy_if(constraints.begin(), constraints.end(), std::back_inserter(constraints_),
                 [](const Constraint &constraint) { return constraint.size() > 1; });
    for (std::size_t i = 0; i < constraints_.size(); ++i) {
        for (Choice &part : constraints_[i]) {
            part.option = constraintKey(part.option);
            std::vector<int> &numbers = naming_[part.option];
            if (numbers.empty() || numbers.back() != static_cast<int>(i))
                numbers.push_back(static_cast<int>(i));
        }
    }
}

const std::vector<int> &ConstraintTable::naming(const QString &option) const
{
    static const std::vector<int> none;
    const auto found = naming_.constFind(constraintKey(option));
    return found == naming_.cend() ? none : *found;
}

std::vector<int> ConstraintTable::broken(const MarkTable &marks) const
{
    std::vector<int> numbers;
    for (int i = 0; i < static_cast<int>(constraints_.size()); ++i) {
        if (!breaking(i, marks).empty())
            numbers.push_back(i);
    }
    return numbers;
}

Choices ConstraintTable::breaking(int constraint, const MarkTable &marks) const
{
    Choices breaking;
    for (const Choice &part : constraints_[static_cast<std::size_t>(constraint)]) {
        const Choice *mark = marks.fulfilling(part);
        if (!mark)
            return {};
        breaking.push_back(*mark);
    }
    return breaking;
}

std::vector<Conflict> ConstraintTable::conflicts(const MarkTable &marks) const
{
    std::vector<Conflict> conflicts;
    for (const int number : broken(marks)) {
        const Choices together = breaking(number, marks);
        for (std::size_t i = 1; i < together.size(); ++i) {
            if (!isListed(conflicts, together[0], together[i]))
                conflicts.push_back({together[0], together[i]});
        }
    }
    return conflicts;
}

Choices ConstraintTable::conflictsWith(const Choice &choice, const MarkTable &marks) const
{
    const auto inTheWay = forbidden(choice.option, {choice.choice}, marks);
    return inTheWay.empty() ? Choices() : inTheWay.begin()->second;
}

/// The marks that fulfil every part of a constraint but the option's own; none unless they do.
Choices ConstraintTable::inTheWay(const Constraint &constraint, const QString &key,
                                  const MarkTable &marks) const
{
    Choices others;
    for (const Choice &part : constraint) {
        const Choice *mark = part.option == key ? nullptr : marks.fulfilling(part);
        if (mark)
            others.push_back(*mark);
        else if (part.option != key)
            return {};
    }
    return others;
}

std::map<QString, Choices> ConstraintTable::forbidden(const QString &option,
                                                      const QStringList &choices,
                                                      const MarkTable &marks) const
{
    const QString key = constraintKey(option);
    std::map<QString, Choices> forbidden;
    for (const int number : naming(option)) {
        const Constraint &constraint = constraints_[static_cast<std::size_t>(number)];
        const Choices others = inTheWay(constraint, key, marks);
        if (others.empty())
            continue;
        for (const QString &choice : choices) {
            if (fulfilsItsParts(constraint, {key, choice})) {
                for (const Choice &other : others)
                    addOnce(forbidden[choice], other);
            }
        }
    }
    return forbidden;
}

} // namespace dialog
