#pragma once

#include "dialog/printers/choice.h"

namespace dialog {

class PpdDocument;

/// What the dialog makes of an offer.
enum class OfferVerdict { Accepted, NullChoice, UnknownOption, UnknownChoice, Conflicts, Refused };

/// Whether an offer is what a person picked, or what a rule of a panel makes of it.
enum class OfferedBy { Person, Rule };

struct OfferOutcome
{
    OfferVerdict verdict = OfferVerdict::Accepted;
    Choice offered;
    Choices inTheWay; ///< marked choices that forbid it, for OfferVerdict::Conflicts
    OfferedBy by = OfferedBy::Rule;
};

/// Judges an offer against the PPD and what is marked in it. Marks nothing.
[[nodiscard]] OfferOutcome judgeOffer(const PpdDocument &printer, const Choice &offered);

} // namespace dialog
