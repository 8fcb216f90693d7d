#pragma once

#include "dialog/printers/choice.h"

#include <map>

namespace dialog {

/// A choice of a person that the job will not have.
struct Difference
{
    QString option;
    QString chosen; ///< several choices of one option are joined by commas
    QString marked; ///< likewise; null when nothing is marked

    bool operator==(const Difference &) const = default;
};

/// Remembers what a person chose, accepted or refused, beside what rules offered afterwards.
///
/// Where a panel tells what its controls stand for, the person's choice is known. Else the first
/// offer of an action counts as it. The other offers of the action are the consequences that the
/// panel's rules draw, and replace nobody's choice.
class ChoiceLedger
{
public:
    void beginAction();
    void recordOffer(const Choice &choice);
    /// What a person's action was about, once it has made its offers, if any.
    void recordAction(const Choice &choice);
    /// A choice made elsewhere: by a preset, by a job that is printed again, in another panel.
    void recordChosen(const Choice &choice) { chosen_[choice.option] = choice.choice; }

    /// What a person chose last for each option.
    [[nodiscard]] const std::map<QString, QString> &chosen() const { return chosen_; }
    void setChosen(const std::map<QString, QString> &chosen) { chosen_ = chosen; }
    /// Where the marks differ from it, by option.
    [[nodiscard]] std::vector<Difference> differences(const Choices &marks) const;

private:
    std::map<QString, QString> chosen_;
    std::map<QString, QString> beforeAction_;
    bool isFirst_ = true;
};

} // namespace dialog
