#pragma once

#include "dialog/batch/assignment.h"
#include "dialog/host/choice_ledger.h"
#include "dialog/host/offer.h"
#include "dialog/printers/job_options.h"

#include <vector>

/// Which of the values that were asked for the job has, and why not the others.
namespace dialog::batch {

/// A value that something set or was refused, in the course of the assignments.
struct Happening
{
    OfferOutcome offer;
    int during; ///< index of the assignment; kWhileCommitting at their end
};
inline constexpr int kWhileCommitting = -1;

/// A value that was asked for and that the job will not have.
struct Loss
{
    QString option;
    QString asked;
    QString prints; ///< null: nothing for this option
    QString reason; ///< a clause, to follow "because"

    bool operator==(const Loss &) const = default;
};

/// Of several assignments to one option the last one counts. @p differences are what the ledger of
/// choices holds beside, such as choices that were saved for the queue.
[[nodiscard]] std::vector<Loss> lossesOf(const std::vector<Assignment> &assignments,
                                         const std::vector<Happening> &course,
                                         const JobSettings &job,
                                         const std::vector<Difference> &differences);

/// "OPTION: ASKED was chosen, PRINTS will print, because REASON".
[[nodiscard]] QString lossLine(const Loss &loss);

} // namespace dialog::batch
