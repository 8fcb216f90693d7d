#include "dialog/printers/constraints.h"

#include "dialog/printers/constraint_table.h"

#include <QRegularExpression>
#include <QStringList>

namespace dialog {
namespace {

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

bool switchesOn(const QString &choice)
{
    return !isSame(choice, QStringLiteral("None")) && !isSame(choice, QStringLiteral("Off")) &&
           !isSame(choice, QStringLiteral("False"));
}

bool isFulfilledBy(const Choice &part, const QString &choice)
{
    return part.choice.isNull() ? switchesOn(choice) : isSame(part.choice, choice);
}

bool matches(const Choice &part, const Choice &mark)
{
    return constraintKey(part.option) == constraintKey(mark.option) &&
           isFulfilledBy(part, mark.choice);
}

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
    return ConstraintTable(constraints).conflictsWith(choice, MarkTable(marks));
}

std::vector<Conflict> activeConflicts(const Choices &marks, const Constraints &constraints)
{
    return ConstraintTable(constraints).conflicts(MarkTable(marks));
}

} // namespace dialog
