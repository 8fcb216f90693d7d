#pragma once

#include "dialog/printers/constraints.h"

#include <QStringList>

#include <vector>

namespace dialog::check {

struct OptionChoices
{
    QString option;
    QStringList choices;     ///< the default first, if there is one
    bool mayBeEmpty = false; ///< a pick-many option
};

struct Reach
{
    Choices unreachable; ///< choices that stand in no combination without conflict
    Choices undecided;   ///< choices for which the search was given up
};

/// Looks for a combination without conflict for each choice. @p budget bounds the number of
/// assignments that are tried for one choice.
[[nodiscard]] Reach reachOfChoices(const std::vector<OptionChoices> &options,
                                   const Constraints &constraints, int budget = 20'000);

} // namespace dialog::check
