#include "dialog/host/offer.h"

#include "dialog/printers/ppd_document.h"

namespace dialog {

OfferOutcome judgeOffer(const PpdDocument &printer, const Choice &offered)
{
    if (offered.choice.isNull())
        return {OfferVerdict::NullChoice, offered, {}};
    if (!printer.hasOption(offered.option))
        return {OfferVerdict::UnknownOption, offered, {}};
    if (!printer.hasChoice(offered))
        return {OfferVerdict::UnknownChoice, offered, {}};
    const Choices inTheWay = printer.conflictsWith(offered);
    if (!inTheWay.empty())
        return {OfferVerdict::Conflicts, offered, inTheWay};
    return {OfferVerdict::Accepted, offered, {}};
}

} // namespace dialog
