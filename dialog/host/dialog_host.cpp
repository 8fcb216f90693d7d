#include "dialog/host/dialog_host.h"

#include "dialog/printers/ppd_document.h"
#include "dialog/printers/standard_options.h"
#include "dialog/settings/job_settings.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace dialog {
namespace {

const QString kPageSize = QStringLiteral("PageSize");

/// A refusal that a null, unknown or forbidden offer has earned is not shown as a choice of a
/// person's.
bool namesKnownChoice(OfferVerdict verdict)
{
    return verdict == OfferVerdict::Accepted || verdict == OfferVerdict::Conflicts ||
           verdict == OfferVerdict::Refused;
}

} // namespace

DialogHost::DialogHost(PpdDocument &printer, QObject *parent) : QObject(parent), printer_(printer)
{
}

ppd_file_t *DialogHost::ppdFile()
{
    return printer_.handle();
}

void DialogHost::panelViewDidResize()
{
    Q_EMIT panelResized();
}

bool DialogHost::willChangePPDOptionKeyValue(const QString &option, const QString &choice)
{
    const Choice offered{option, choice};
    const bool accepted = isCommitting_ ? commit(offered) : answer(offered);
    Q_EMIT answered(offered, accepted);
    return accepted;
}

OfferOutcome DialogHost::judge(const Choice &offered)
{
    OfferOutcome outcome = judgeOffer(printer_, offered);
    if (takesRefusal(offered.option))
        outcome.verdict = OfferVerdict::Refused;
    return outcome;
}

bool DialogHost::takesRefusal(const QString &option)
{
    const auto found = refusals_.find(option);
    if (found == refusals_.end())
        return false;
    if (found->second && --*found->second == 0)
        refusals_.erase(found);
    return true;
}

bool DialogHost::answer(const Choice &offered)
{
    OfferOutcome outcome = judge(offered);
    if (!called_ && namesKnownChoice(outcome.verdict))
        outcome.by = recordPersonsOffer(outcome);
    const bool accepted = outcome.verdict == OfferVerdict::Accepted;
    if (accepted)
        accept(offered);
    announceChange(); // of a refused one too: the panel's action may set more than it offers
    Q_EMIT judged(outcome);
    return accepted;
}

bool DialogHost::commit(const Choice &offered)
{
    const bool known = !offered.choice.isNull() && printer_.hasChoice(offered);
    if (known)
        printer_.mark(offered);
    return known;
}

/// The first offer of an action passes for the person's own, the others for a rule's.
OfferedBy DialogHost::recordPersonsOffer(const OfferOutcome &outcome)
{
    const OfferedBy by = isActionOpen_ ? OfferedBy::Rule : OfferedBy::Person;
    openAction();
    ledger_.recordOffer(asChosen(outcome.offered));
    return by;
}

/// Of an option where several choices can stand, all that are chosen with this one.
Choice DialogHost::asChosen(const Choice &choice) const
{
    if (!printer_.isPickMany(choice.option))
        return choice;
    return {choice.option,
            marksAfterSwitching(printer_.option(choice.option), printer_.allMarked(choice.option),
                                choice.choice, Switch::On)
                .join(u',')};
}

void DialogHost::recordPersonsChoice(const Choice &choice)
{
    openAction();
    ledger_.recordAction(asChosen(choice));
    announceChange();
    Q_EMIT chosen(choice);
}

/// An action lasts until the event loop is reached again, a modal window's loop included.
void DialogHost::openAction()
{
    if (std::exchange(isActionOpen_, true))
        return;
    ledger_.beginAction();
    Q_EMIT actionBegan();
    QMetaObject::invokeMethod(
        this, [this] { isActionOpen_ = false; }, Qt::QueuedConnection);
}

void DialogHost::accept(const Choice &offered)
{
    printer_.mark(offered);
    followPageSize();
    queueChange({offered, called_ ? called_ : front_});
}

void DialogHost::queueChange(const Change &change)
{
    changes_.push_back(change);
    QMetaObject::invokeMethod(this, &DialogHost::deliverChanges, Qt::QueuedConnection);
}

void DialogHost::deliverChanges()
{
    const std::vector<Change> changes = std::exchange(changes_, {});
    for (const Change &change : changes)
        tellPanels(change);
}

void DialogHost::tellPanels(const Change &change)
{
    const PDEPanelList panels = panels_;
    for (const auto &panel : panels) {
        if (panel.get() != change.from)
            callPanel(panel.get(), [&](PDEPanel &told) {
                told.PPDOptionKeyValueDidChange(change.choice.option, change.choice.choice);
            });
    }
}

CommitResult DialogHost::commitPanels()
{
    deliverChanges();
    const QScopedValueRollback committing(isCommitting_, true);
    const PDEPanelList panels = panels_;
    for (const auto &panel : panels)
        callPanel(panel.get(), [](PDEPanel &saved) { saved.saveValuesAndReturnError(nullptr); });
    followPageSize();
    announceChange();
    return {printer_.conflicts(), differences()};
}

void DialogHost::takeBackCommit(const ChoiceState &before)
{
    printer_.setMarks(before.marks);
    settings_.setAll(before.settings);
    followPageSize();
    announceChange();
}

std::vector<Difference> DialogHost::differences() const
{
    const Choices marks = printer_.marks();
    std::vector<Difference> found = ledger_.differences(marks);
    const auto isKnown = [&](const Difference &known) {
        return isSameOption(known.option, unanswered_->option);
    };
    if (!unanswered_ || std::any_of(found.begin(), found.end(), isKnown) ||
        printer_.allMarked(unanswered_->option).contains(unanswered_->choice, Qt::CaseInsensitive))
        return found;
    found.push_back(
        {unanswered_->option, unanswered_->choice, joinedChoices(marks, unanswered_->option)});
    return found;
}

void DialogHost::takeMarksAsChosen()
{
    const Choices &defaults = printer_.defaults();
    const Choices marks = printer_.marks();
    for (const Choice &mark : marks) {
        if (std::find(defaults.begin(), defaults.end(), mark) == defaults.end())
            ledger_.recordChosen({mark.option, joinedChoices(marks, mark.option)});
    }
}

void DialogHost::changeFromElsewhere(const Choice &choice)
{
    if (printer_.hasChoice(choice))
        ledger_.recordChosen(asChosen(choice));
    printer_.mark(choice);
    followPageSize();
    tellPanels({choice, nullptr});
    announceChange();
}

OfferOutcome DialogHost::choose(const Choice &choice)
{
    Q_EMIT actionBegan();
    OfferOutcome outcome = judge(choice);
    outcome.by = OfferedBy::Person;
    if (outcome.verdict == OfferVerdict::Accepted) {
        deliverChanges(); // in the order in which they were made
        dropStandIns(choice.option);
        changeFromElsewhere(choice);
    }
    Q_EMIT judged(outcome);
    return outcome;
}

void DialogHost::dropStandIns(const QString &option)
{
    settings_.setAll(
        settingsWithoutStandIns(settings_.all(), option, standardCounterparts(printer_)));
    if (option == kPageSize)
        paperName_ = QString();
}

OfferOutcome DialogHost::switchChoice(const Choice &choice, Switch to)
{
    if (!printer_.isPickMany(choice.option))
        return choose(choice);
    const QStringList before = printer_.allMarked(choice.option);
    const QStringList after =
        marksAfterSwitching(printer_.option(choice.option), before, choice.choice, to);
    const auto added = std::find_if(after.begin(), after.end(), [&](const QString &keyword) {
        return !before.contains(keyword);
    });
    Q_EMIT actionBegan();
    OfferOutcome outcome{OfferVerdict::Accepted, choice, {}};
    if (added != after.end())
        outcome = judge({choice.option, *added});
    outcome.by = OfferedBy::Person;
    if (outcome.verdict == OfferVerdict::Accepted) {
        deliverChanges();
        ledger_.recordChosen({choice.option, after.join(u',')});
        printer_.setMarked(choice.option, after);
        tellPanels({{choice.option, after.value(0)}, nullptr});
        announceChange();
    }
    Q_EMIT judged(outcome);
    return outcome;
}

void DialogHost::setSetting(const QString &key, const QVariant &value)
{
    for (const SettingChange &change : withCompanions({key, value})) {
        if (change.value.isValid())
            settings_.setValue(change.key, change.value);
        else
            settings_.remove(change.key);
    }
    announceChange();
}

ChoiceState DialogHost::state() const
{
    return {printer_.marks(), settings_.all(), paperName_, ledger_.chosen()};
}

void DialogHost::setState(const ChoiceState &state)
{
    changes_.clear(); // the panels are about to read what holds
    printer_.setMarks(state.marks);
    settings_.setAll(state.settings);
    paperName_ = state.paperName;
    ledger_.setChosen(state.chosen);
    followPageSize();
    restorePanels();
    Q_EMIT stateReplaced();
    announceChange();
}

void DialogHost::restorePanels()
{
    const PDEPanelList panels = panels_;
    for (const auto &panel : panels)
        callPanel(panel.get(), [](PDEPanel &told) { told.restoreValuesAndReturnError(nullptr); });
    if (front_)
        callPanel(front_, [](PDEPanel &shown) { shown.willShow(); });
}

void DialogHost::announceChange()
{
    if (std::exchange(isChangeAnnounced_, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            isChangeAnnounced_ = false;
            Q_EMIT stateChanged();
        },
        Qt::QueuedConnection);
}

void DialogHost::refuseOffers(const QString &option, std::optional<int> count)
{
    if (count && *count <= 0)
        refusals_.erase(option);
    else
        refusals_[option] = count;
}

void DialogHost::setPaperName(const QString &ppdName)
{
    paperName_ = ppdName;
    followPageSize();
    announceChange();
}

void DialogHost::followPageSize()
{
    format_.setPaperName(paperName_.isNull() ? printer_.marked(kPageSize) : paperName_);
}

} // namespace dialog
