#pragma once

#include <QString>

#include <vector>

namespace dialog {

/// An option of the printer and one of its choices, both by keyword. A null choice is none.
struct Choice
{
    QString option;
    QString choice;

    bool operator==(const Choice &) const = default;
};

using Choices = std::vector<Choice>;

/// What is marked of an option as one word, the way a job says it: several choices joined by
/// commas; null when nothing is.
[[nodiscard]] QString joinedChoices(const Choices &marks, const QString &option);

/// The marks of one option, in their order.
[[nodiscard]] Choices marksOf(const Choices &marks, const QString &option);

/// Two marked choices that a constraint of the PPD forbids together.
struct Conflict
{
    Choice one;
    Choice other;
};

} // namespace dialog
