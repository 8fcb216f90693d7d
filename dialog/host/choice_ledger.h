#pragma once

#include "dialog/printers/choice.h"

#include <map>

namespace dialog {

/// A choice of a person that the job will not have.
struct Difference
{
    QString option;
    QString chosen;
    QString marked; ///< null when nothing is marked

    bool operator==(const Difference &) const = default;
};

/// Remembers what a person chose, accepted or refused, beside what rules offered afterwards.
///
/// The first offer of an action is the person's own; the offers that follow in the same action are
/// the consequences that the panel's rules draw, and replace nobody's choice.
class ChoiceLedger
{
public:
    void beginAction() { isFirst_ = true; }
    void recordOffer(const Choice &choice);
    /// A choice made elsewhere: by a preset, by a job that is printed again, in another panel.
    void recordChosen(const Choice &choice) { chosen_[choice.option] = choice.choice; }

    /// What a person chose last for each option.
    [[nodiscard]] const std::map<QString, QString> &chosen() const { return chosen_; }
    void setChosen(const std::map<QString, QString> &chosen) { chosen_ = chosen; }
    /// Where the marks differ from it, by option.
    [[nodiscard]] std::vector<Difference> differences(const Choices &marks) const;

private:
    std::map<QString, QString> chosen_;
    bool isFirst_ = true;
};

} // namespace dialog
