#include "dialog/printers/constraints.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <optional>

namespace dialog {
namespace {

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Two names for the size of the sheet, of which only one is marked at a time.
QString constrainedName(const QString &option)
{
    const QString size = QStringLiteral("PageSize");
    return isSame(option, QStringLiteral("PageRegion")) ? size : option;
}

bool isSameOption(const QString &a, const QString &b)
{
    return isSame(constrainedName(a), constrainedName(b));
}

bool switchesOn(const QString &choice)
{
    return !isSame(choice, QStringLiteral("None")) && !isSame(choice, QStringLiteral("Off")) &&
           !isSame(choice, QStringLiteral("False"));
}

} // namespace

bool matches(const Choice &part, const Choice &mark)
{
    return isSameOption(part.option, mark.option) &&
           (part.choice.isNull() ? switchesOn(mark.choice) : isSame(part.choice, mark.choice));
}

namespace {

/// The marks that fulfil the constraint, one per part; nothing unless every part is fulfilled.
std::optional<Choices> fulfilledBy(const Constraint &constraint, const Choices &marks)
{
    Choices fulfilling;
    for (const Choice &part : constraint) {
        const auto found = std::find_if(marks.begin(), marks.end(),
                                        [&](const Choice &mark) { return matches(part, mark); });
        if (found == marks.end())
            return std::nullopt;
        fulfilling.push_back(*found);
    }
    return fulfilling;
}

bool names(const Constraint &constraint, const QString &option)
{
    return std::any_of(constraint.begin(), constraint.end(),
                       [&](const Choice &part) { return isSameOption(part.option, option); });
}

Choices withMark(const Choices &marks, const Choice &choice)
{
    Choices changed{choice};
    std::copy_if(marks.begin(), marks.end(), std::back_inserter(changed),
                 [&](const Choice &mark) { return !isSameOption(mark.option, choice.option); });
    return changed;
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

Constraint parseConstraint(const QString &value)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    Constraint constraint;
    for (const QString &word : value.split(blanks, Qt::SkipEmptyParts)) {
        if (word.startsWith(u'*'))
            constraint.push_back({word.mid(1), {}});
        else if (!constraint.empty())
            constraint.back().choice = word;
    }
    return constraint;
}

Choices conflictsWith(const Choice &choice, const Choices &marks, const Constraints &constraints)
{
    const Choices trial = withMark(marks, choice);
    Choices inTheWay;
    for (const Constraint &constraint : constraints) {
        if (!names(constraint, choice.option))
            continue;
        for (const Choice &mark : fulfilledBy(constraint, trial).value_or(Choices())) {
            if (!isSameOption(mark.option, choice.option))
                addOnce(inTheWay, mark);
        }
    }
    return inTheWay;
}

std::vector<Conflict> activeConflicts(const Choices &marks, const Constraints &constraints)
{
    std::vector<Conflict> conflicts;
    for (const Constraint &constraint : constraints) {
        const Choices fulfilling = fulfilledBy(constraint, marks).value_or(Choices());
        for (std::size_t i = 1; i < fulfilling.size(); ++i) {
            if (!isListed(conflicts, fulfilling[0], fulfilling[i]))
                conflicts.push_back({fulfilling[0], fulfilling[i]});
        }
    }
    return conflicts;
}

} // namespace dialog
