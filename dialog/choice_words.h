#pragma once

#include "dialog/host/choice_ledger.h"
#include "dialog/printers/choice.h"

#include <QString>

namespace dialog {

class PpdDocument;

// Sentences on choices, in the words of the printer and the person's language.

/// Two choices that stand beside each other and must not.
[[nodiscard]] QString conflictWords(const PpdDocument &printer, const Conflict &conflict);
/// A choice that the job will not have.
[[nodiscard]] QString differenceWords(const PpdDocument &printer, const Difference &difference);
/// An offer that is forbidden beside a marked choice.
[[nodiscard]] QString forbiddenWords(const PpdDocument &printer, const Choice &offered,
                                     const Choice &inTheWay);
/// An offer that is refused for no other choice's sake.
[[nodiscard]] QString refusedWords(const PpdDocument &printer, const Choice &offered);

} // namespace dialog
