#pragma once

#include "dialog/host/dialog_host.h"
#include "dialog/printers/resolutions.h"
#include "dialog/window/notice_area.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace dialog {

class ConflictSheet;
class PpdDocument;
class UndoHistory;

/// What a refused choice leads to: a person's own choice that breaks a constraint opens the sheet
/// with the ways out, anything else that is refused stands in a notice. Choices that differ from
/// what is marked stand in a notice until they are resolved.
class ConflictDesk : public QObject
{
    Q_OBJECT

public:
    /// Borrows all of them.
    ConflictDesk(PpdDocument &printer, DialogHost &host, UndoHistory &history,
                 QObject *parent = nullptr);

    /// The window's; without one nothing is asked.
    void setSheet(ConflictSheet *sheet);

Q_SIGNALS:
    void noticed(const dialog::Notice &notice);
    /// The notices whose keys begin so are past.
    void dismissed(const QString &prefix);
    /// The sheet has opened with this problem.
    void asked(const QString &problem);

private:
    void beginAction();
    void take(const OfferOutcome &outcome);
    void takeRefusal(const OfferOutcome &outcome);
    void want(const OfferOutcome &refusal);
    void tellRefusal(const OfferOutcome &refusal);
    void followControl(const Choice &choice);
    void leaveToPanel();
    void forget();
    void askWhenPossible();
    void ask();
    [[nodiscard]] bool isWanting() const;
    void followState();
    void withdrawTold();
    void change(int way);
    void keep();
    [[nodiscard]] bool isToldOf(const QString &option) const;
    [[nodiscard]] std::vector<Difference> standing() const;
    void rememberStanding();
    void showDifferences();
    void acceptDifferences();

    PpdDocument &printer_;
    DialogHost &host_;
    UndoHistory &history_;
    QPointer<ConflictSheet> sheet_;
    std::optional<Choice> wanted_;       ///< what the sheet is about, or will be
    Choices had_;                        ///< marks of its option before
    std::vector<OfferOutcome> refusals_; ///< conflicts of this action, in their order
    Choices used_;                       ///< of this action's control, once it is known
    std::map<QString, QString> told_; ///< option and choice that notices of this action are about
    ResolutionQuestion question_;     ///< what the sheet shows the answers to
    std::vector<Resolution> ways_;
    std::set<std::pair<QString, QString>> offered_; ///< options with what was offered or marked
    QString differences_;                           ///< what the notice about them says
};

} // namespace dialog
