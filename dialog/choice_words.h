#pragma once

#include "dialog/host/choice_ledger.h"
#include "dialog/printers/choice.h"
#include "dialog/printers/resolutions.h"

#include <QString>

namespace dialog {

class PpdDocument;

// Sentences on choices, in the words of the printer and the person's language.

/// A choice's text, or the texts of several choices that are joined by commas.
[[nodiscard]] QString choicesText(const PpdDocument &printer, const Choice &choice);
/// The same with its option: "Paper Type: Iron-On Transfer".
[[nodiscard]] QString namedChoice(const PpdDocument &printer, const Choice &choice);
/// Two choices that stand beside each other and must not.
[[nodiscard]] QString conflictWords(const PpdDocument &printer, const Conflict &conflict);
/// A choice that the job will not have.
[[nodiscard]] QString differenceWords(const PpdDocument &printer, const Difference &difference);
/// The same before the panels have handed over what they keep.
[[nodiscard]] QString standingDifferenceWords(const PpdDocument &printer,
                                              const Difference &difference);
/// An offer that is forbidden beside a marked choice.
[[nodiscard]] QString forbiddenWords(const PpdDocument &printer, const Choice &offered,
                                     const Choice &inTheWay);
/// The same of several marked choices. At least one is in the way.
[[nodiscard]] QString forbiddenWords(const PpdDocument &printer, const Choice &wanted,
                                     const Choices &inTheWay);
/// Which marked choices forbid another one, as a part of a line.
[[nodiscard]] QString reasonWords(const PpdDocument &printer, const Choices &inTheWay);
/// A change that somebody can make, as it reads before it is made.
[[nodiscard]] QString changeWords(const PpdDocument &printer, const ChoiceChange &change);
/// An offer that is refused for no other choice's sake.
[[nodiscard]] QString refusedWords(const PpdDocument &printer, const Choice &offered);

} // namespace dialog
