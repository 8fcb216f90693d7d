#pragma once

#include "dialog/printers/constraint_table.h"
#include "dialog/printers/option_groups.h"

#include <vector>

namespace dialog {

class PpdDocument;

/// Another choice of one option. Of an option where several choices can stand, a null @p to means
/// that @p from stands no longer.
struct ChoiceChange
{
    QString option;
    QString from;
    QString to;

    bool operator==(const ChoiceChange &) const = default;
};

/// A way out of a conflict: what has to change beside the choice that is wanted.
using Resolution = std::vector<ChoiceChange>;

/// A choice that constraints forbid beside what is marked, and what may change for its sake.
struct ResolutionQuestion
{
    OptionGroups groups;
    ConstraintTable constraints;
    Choices marks; ///< as they stand, the wanted choice not among them
    Choice wanted;
    std::vector<Choices> proposals = {}; ///< choices that somebody else would make of it
};

/// The most ways that are offered at a time, and the most changes of one of them.
inline constexpr int kMostResolutions = 4;
inline constexpr int kMostChanges = 3;
/// The most trials of the search; beyond it the ways found so far are all.
inline constexpr int kMostTrials = 4000;

/// Ways to have the wanted choice without any conflict, the one that changes least first. None
/// changes the wanted option or what is built into the printer. Among ways of equally many changes,
/// those to defaults come first, then other settings before the paper's size.
[[nodiscard]] std::vector<Resolution> findResolutions(const ResolutionQuestion &question);

/// What is marked once the wanted choice stands, with the changes.
[[nodiscard]] Choices marksWith(const ResolutionQuestion &question, const Resolution &changes);

/// The question for a printer as it is marked, libcups' answer among the proposals.
[[nodiscard]] ResolutionQuestion resolutionQuestion(const PpdDocument &printer,
                                                    const Choice &wanted);

} // namespace dialog
