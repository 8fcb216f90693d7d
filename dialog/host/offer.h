#pragma once

#include "dialog/printers/choice.h"

namespace dialog {

class PpdDocument;

/// What the dialog makes of an offer.
enum class OfferVerdict { Accepted, NullChoice, UnknownOption, UnknownChoice, Conflicts, Refused };

struct OfferOutcome
{
    OfferVerdict verdict = OfferVerdict::Accepted;
    Choice offered;
    Choices inTheWay; ///< marked choices that forbid it, for OfferVerdict::Conflicts
};

/// Judges an offer against the PPD and what is marked in it. Marks nothing.
[[nodiscard]] OfferOutcome judgeOffer(const PpdDocument &printer, const Choice &offered);

} // namespace dialog
