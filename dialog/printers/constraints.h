#pragma once

#include "dialog/printers/choice.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace dialog {

/// Choices that a PPD forbids together, two or more of different options. A part without a choice
/// (null) means any choice but None, Off and False.
using Constraint = Choices;
using Constraints = std::vector<Constraint>;

/// The value of a cupsUIConstraints line: "*Option Choice *Option ...".
[[nodiscard]] Constraint parseConstraint(const QString &value);

/// Whether a choice is another than None, Off and False.
[[nodiscard]] bool switchesOn(const QString &choice);

/// Whether a choice of its option fulfils a part of a constraint.
[[nodiscard]] bool isFulfilledBy(const Choice &part, const QString &choice);
/// The same for a mark of any option.
[[nodiscard]] bool matches(const Choice &part, const Choice &mark);

/// Marked choices that would be forbidden beside @p choice, were it marked. Names are compared
/// without regard to case. What is forbidden already without it does not count.
[[nodiscard]] Choices conflictsWith(const Choice &choice, const Choices &marks,
                                    const Constraints &constraints);

/// Every forbidden pair among the marks, once.
[[nodiscard]] std::vector<Conflict> activeConflicts(const Choices &marks,
                                                    const Constraints &constraints);

} // namespace dialog
