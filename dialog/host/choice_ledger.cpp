#include "dialog/host/choice_ledger.h"

#include <utility>

namespace dialog {

void ChoiceLedger::beginAction()
{
    isFirst_ = true;
    beforeAction_ = chosen_;
}

void ChoiceLedger::recordAction(const Choice &choice)
{
    chosen_ = beforeAction_;
    recordChosen(choice);
    beforeAction_ = chosen_;
}

void ChoiceLedger::recordOffer(const Choice &choice)
{
    if (std::exchange(isFirst_, false))
        recordChosen(choice);
}

std::vector<Difference> ChoiceLedger::differences(const Choices &marks) const
{
    std::vector<Difference> differences;
    for (const auto &[option, choice] : chosen_) {
        const QString marked = joinedChoices(marks, option);
        if (marked.isNull() || marked.compare(choice, Qt::CaseInsensitive) != 0)
            differences.push_back({option, choice, marked});
    }
    return differences;
}

} // namespace dialog
