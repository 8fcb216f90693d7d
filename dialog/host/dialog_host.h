#pragma once

#include "dialog/host/choice_ledger.h"
#include "dialog/host/choice_state.h"
#include "dialog/host/offer.h"
#include "dialog/printers/option_groups.h"
#include "platform/panel_protocol.h"

#include <QObject>

#include <map>
#include <optional>
#include <vector>

namespace dialog {

class PpdDocument;

/// What committing the panels came to.
struct CommitResult
{
    std::vector<Conflict> conflicts;
    std::vector<Difference> differences;

    [[nodiscard]] bool isClean() const { return conflicts.empty() && differences.empty(); }
};

/// The dialog as the panels see it: judges and marks their offers, tells the other panels, and
/// keeps the job's objects.
///
/// Calls into panels go through this class, so that it knows which panel offers: the one that is
/// being called, else the one in front. Accepted choices reach the other panels after the outermost
/// offer has returned, from the event loop.
class DialogHost : public QObject, public PDEPlugInCallback
{
    Q_OBJECT

public:
    /// Borrows the printer, which outlives the host.
    explicit DialogHost(PpdDocument &printer, QObject *parent = nullptr);

    // The protocol.
    [[nodiscard]] ppd_file_t *ppdFile() override;
    [[nodiscard]] PMPrintSettings printSettings() override { return &settings_; }
    [[nodiscard]] PMPageFormat pageFormat() override { return &format_; }
    [[nodiscard]] PMPrintSession printSession() override { return &session_; }
    void panelViewDidResize() override;
    bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) override;

    // The dialog's side.
    void setPanels(const PDEPanelList &panels) { panels_ = panels; }
    void setFrontPanel(PDEPanel *panel) { front_ = panel; }
    /// Calls an operation of a panel; offers that it makes are the panel's, not a person's.
    template <class Call>
    void callPanel(PDEPanel *panel, const Call &call)
    {
        PDEPanel *const former = std::exchange(called_, panel);
        call(*panel);
        called_ = former;
    }

    /// Saves every panel: marks each pair that the PPD knows, then looks at the whole once.
    CommitResult commitPanels();
    /// Takes back what a commit has marked and set since @p before, because nothing comes of it.
    /// The panels are not told: they hold what they have handed over, and will do so again.
    void takeBackCommit(const ChoiceState &before);
    /// Counts what is marked beside the defaults as chosen: a preset's marks, before the panels
    /// look.
    void takeMarksAsChosen();
    /// A person chose with a control of a panel; its offers, if any, have been answered.
    void recordPersonsChoice(const Choice &choice);
    /// Marks a choice as another panel's and tells every panel the word as it stands.
    void changeFromElsewhere(const Choice &choice);
    /// A person's choice in a control of the dialog's own. It is judged as an offer of a panel is;
    /// an accepted one is marked and reaches every panel, any other leaves everything as it was.
    /// The last word counts: print settings that would stand for the option go.
    OfferOutcome choose(const Choice &choice);
    /// The same of an option where several choices can stand: switches one of them on or off. Of
    /// any other option, On chooses.
    OfferOutcome switchChoice(const Choice &choice, Switch to);
    /// What a person wants and has been asked about, so far without an answer: a job that is made
    /// meanwhile differs from it. None: nothing.
    void setUnanswered(const std::optional<Choice> &wanted) { unanswered_ = wanted; }
    /// A person's print setting, and what is kept in step with it; an invalid value removes it.
    void setSetting(const QString &key, const QVariant &value);
    [[nodiscard]] ChoiceState state() const;
    /// Sets exactly this, whatever was set before; then every panel takes over what is marked.
    /// Marks that the printer does not have are left out; nothing is judged.
    void setState(const ChoiceState &state);
    /// Tells the panels what has been accepted since, without waiting for the event loop.
    void deliverChanges();
    /// Refuses that many of the next offers of an option, all without a count; a count of 0 ends
    /// it.
    void refuseOffers(const QString &option, std::optional<int> count);

    /// Page format's paper: this name, or else the marked page size.
    void setPaperName(const QString &ppdName);
    [[nodiscard]] const QString &explicitPaperName() const { return paperName_; }
    void followPageSize();

    [[nodiscard]] const platform::PrintSettings &settings() const { return settings_; }
    [[nodiscard]] const ChoiceLedger &ledger() const { return ledger_; }

Q_SIGNALS:
    /// A person's action made its first offer, or used a control of the dialog's own.
    void actionBegan();
    /// Every offer, with the answer that the panel gets; commits included.
    void answered(const dialog::Choice &choice, bool accepted);
    /// Offers outside a commit, in more detail.
    void judged(const dialog::OfferOutcome &outcome);
    /// What a person chose with a control of a panel, after the offers that it led to.
    void chosen(const dialog::Choice &choice);
    void panelResized();
    /// Everything was set at once; what a person was about to type is past.
    void stateReplaced();
    /// Marks, print settings or what was chosen may be others than before. Once for all that one
    /// event changed, from the event loop.
    void stateChanged();

private:
    struct Change
    {
        Choice choice;
        const PDEPanel *from; ///< not told; null tells all
    };

    [[nodiscard]] OfferOutcome judge(const Choice &offered);
    [[nodiscard]] bool takesRefusal(const QString &option);
    [[nodiscard]] bool answer(const Choice &offered);
    [[nodiscard]] bool commit(const Choice &offered);
    [[nodiscard]] OfferedBy recordPersonsOffer(const OfferOutcome &outcome);
    [[nodiscard]] Choice asChosen(const Choice &choice) const;
    [[nodiscard]] std::vector<Difference> differences() const;
    void openAction();
    void accept(const Choice &offered);
    void queueChange(const Change &change);
    void tellPanels(const Change &change);
    void restorePanels();
    void dropStandIns(const QString &option);
    void announceChange();

    PpdDocument &printer_;
    platform::PrintSettings settings_;
    platform::PageFormat format_;
    platform::PrintSession session_{&settings_, &format_};
    QString paperName_;

    PDEPanelList panels_;
    PDEPanel *front_ = nullptr;  ///< borrowed
    PDEPanel *called_ = nullptr; ///< borrowed
    bool isCommitting_ = false;
    bool isActionOpen_ = false;
    bool isChangeAnnounced_ = false;
    std::vector<Change> changes_;
    std::map<QString, std::optional<int>> refusals_;
    ChoiceLedger ledger_;
    std::optional<Choice> unanswered_;
};

} // namespace dialog
