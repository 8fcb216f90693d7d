#include "dialog/conflict_desk.h"

#include "dialog/choice_words.h"
#include "dialog/host/undo_history.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/window/conflict_sheet.h"
#include "platform/controls/modal_session.h"

#include <algorithm>
#include <utility>

namespace dialog {
namespace {

const QString kOfferGroup = QStringLiteral("offer:");
const QString kDifferencesKey = QStringLiteral("differences");

/// Whether something that is built into the printer, or missing, is in the way.
bool isBuiltIn(const OptionGroups &groups, const Choices &choices)
{
    const QStringList builtIn = installableOptions(groups);
    return std::any_of(choices.begin(), choices.end(), [&](const Choice &choice) {
        return builtIn.contains(choice.option, Qt::CaseInsensitive);
    });
}

QString wayWords(const PpdDocument &printer, const Resolution &way)
{
    QStringList lines;
    for (const ChoiceChange &change : way)
        lines.append(changeWords(printer, change));
    return lines.join(u'\n');
}

/// What was chosen then counts as chosen, so that nobody is asked about it again.
ChoiceState stateWith(ChoiceState state, const ResolutionQuestion &question, const Resolution &way)
{
    state.marks = marksWith(question, way);
    state.chosen[question.wanted.option] = joinedChoices(state.marks, question.wanted.option);
    for (const ChoiceChange &change : way) {
        state.chosen[change.option] = joinedChoices(state.marks, change.option);
        if (change.option == QLatin1String("PageSize"))
            state.paperName = QString();
    }
    return state;
}

} // namespace

ConflictDesk::ConflictDesk(PpdDocument &printer, DialogHost &host, UndoHistory &history,
                           QObject *parent)
    : QObject(parent), printer_(printer), host_(host), history_(history)
{
    connect(&host, &DialogHost::actionBegan, this, &ConflictDesk::beginAction);
    connect(&host, &DialogHost::judged, this, &ConflictDesk::take);
    connect(&host, &DialogHost::chosen, this, &ConflictDesk::followControl);
    connect(&host, &DialogHost::stateReplaced, this, &ConflictDesk::beginAction);
    connect(&host, &DialogHost::stateChanged, this, &ConflictDesk::followState);
    connect(&platform::ModalSessions::shared(), &platform::ModalSessions::closed, this,
            &ConflictDesk::leaveToPanel);
}

void ConflictDesk::setSheet(ConflictSheet *sheet)
{
    sheet_ = sheet;
    connect(sheet, &ConflictSheet::wayPicked, this, &ConflictDesk::change);
    connect(sheet, &ConflictSheet::kept, this, &ConflictDesk::keep);
}

/// What an earlier action was refused is told, and past, once a person tries something else.
void ConflictDesk::beginAction()
{
    forget();
    refusals_.clear();
    used_.clear();
    told_.clear();
    if (sheet_)
        sheet_->withdraw();
    Q_EMIT dismissed(kOfferGroup);
}

void ConflictDesk::take(const OfferOutcome &outcome)
{
    const Choice &offered = outcome.offered;
    const bool conflicts = outcome.verdict == OfferVerdict::Conflicts;
    offered_.emplace(offered.option, offered.choice);
    if (conflicts) {
        takeRefusal(outcome);
    } else if (outcome.verdict == OfferVerdict::Refused) {
        told_[offered.option] = offered.choice;
        Q_EMIT noticed(
            {kOfferGroup + offered.option, Severity::Warning, refusedWords(printer_, offered), {}});
    }
}

/// The first offer of an action passes for the person's own until the control is known.
void ConflictDesk::takeRefusal(const OfferOutcome &outcome)
{
    refusals_.push_back(outcome);
    if (outcome.by == OfferedBy::Person && sheet_)
        want(outcome);
    else
        tellRefusal(outcome);
}

void ConflictDesk::want(const OfferOutcome &refusal)
{
    wanted_ = refusal.offered;
    had_ = marksOf(printer_.marks(), wanted_->option);
    if (told_.erase(wanted_->option) > 0)
        Q_EMIT dismissed(kOfferGroup + wanted_->option);
    QMetaObject::invokeMethod(this, &ConflictDesk::askWhenPossible, Qt::QueuedConnection);
}

void ConflictDesk::tellRefusal(const OfferOutcome &refusal)
{
    const Choice &offered = refusal.offered;
    told_[offered.option] = offered.choice;
    Q_EMIT noticed({kOfferGroup + offered.option,
                    Severity::Warning,
                    forbiddenWords(printer_, offered, refusal.inTheWay),
                    {}});
}

/// The sheet is about what a person chose, not about what a rule made of it: that is told. One
/// control may stand for several options.
void ConflictDesk::followControl(const Choice &choice)
{
    used_.push_back(choice);
    const bool isOwn = wanted_ && std::find(used_.begin(), used_.end(), *wanted_) != used_.end();
    if (!sheet_ || isOwn)
        return;
    const auto refusalOf = [&](const Choice &offered) {
        return std::find_if(refusals_.begin(), refusals_.end(), [&](const OfferOutcome &refusal) {
            return refusal.offered == offered;
        });
    };
    if (const std::optional<Choice> rules = std::exchange(wanted_, std::nullopt))
        tellRefusal(*refusalOf(*rules));
    if (const auto own = refusalOf(choice); own != refusals_.end())
        want(*own);
}

/// A panel that has asked a person itself may hold what was refused, and hand it over later.
void ConflictDesk::leaveToPanel()
{
    for (const OfferOutcome &refusal : refusals_)
        offered_.erase({refusal.offered.option, refusal.offered.choice});
}

void ConflictDesk::forget()
{
    wanted_.reset();
    host_.setUnanswered(std::nullopt);
}

/// Not before a modal window of the action has been closed: what it asks may settle the matter.
void ConflictDesk::askWhenPossible()
{
    if (platform::modalDepth() == 0)
        ask();
    else
        connect(&platform::ModalSessions::shared(), &platform::ModalSessions::closed, this,
                &ConflictDesk::askWhenPossible,
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

bool ConflictDesk::isWanting() const
{
    return wanted_ && sheet_ && !printer_.conflictsWith(*wanted_).empty();
}

void ConflictDesk::ask()
{
    if (!isWanting()) {
        if (wanted_)
            beginAction();
        return;
    }
    question_ = resolutionQuestion(printer_, *wanted_);
    ways_ = findResolutions(question_);
    const Choices inTheWay = printer_.conflictsWith(*wanted_);
    ConflictQuestion words{forbiddenWords(printer_, *wanted_, inTheWay), {}, {}};
    for (const Resolution &way : ways_)
        words.ways.append(wayWords(printer_, way));
    words.advice = isBuiltIn(question_.groups, inTheWay)
                       ? tr("What is installed in the printer is set by whoever administers it.")
                       : tr("No change of a few other settings makes it possible.");
    host_.setUnanswered(wanted_);
    sheet_->ask(words);
    showDifferences();
    Q_EMIT asked(words.problem);
}

/// What the sheet offers must be true of what is set.
void ConflictDesk::followState()
{
    if (sheet_ && sheet_->isAsking()) {
        if (!isWanting())
            beginAction();
        else if (printer_.marks() != question_.marks)
            ask();
    }
    withdrawTold();
    showDifferences();
}

/// What stands after all is no refusal: panels are believed when they commit.
void ConflictDesk::withdrawTold()
{
    std::erase_if(told_, [this](const auto &told) {
        const auto &[option, choice] = told;
        const bool stands = printer_.allMarked(option).contains(choice, Qt::CaseInsensitive);
        if (stands)
            Q_EMIT dismissed(kOfferGroup + option);
        return stands;
    });
}

/// Nothing but what the sheet listed: when something else has been set in between, it asks again.
void ConflictDesk::change(int way)
{
    const Resolution changes = ways_.at(static_cast<std::size_t>(way));
    const ResolutionQuestion now = resolutionQuestion(printer_, question_.wanted);
    const std::vector<Resolution> ways = findResolutions(now);
    if (std::find(ways.begin(), ways.end(), changes) == ways.end()) {
        ask();
        return;
    }
    forget();
    history_.change(namedChoice(printer_, now.wanted),
                    [&] { host_.setState(stateWith(host_.state(), now, changes)); });
}

/// A panel may show the refused choice still, and a job that was about to be made may have marked
/// it.
void ConflictDesk::keep()
{
    if (!wanted_)
        return;
    const QString option = wanted_->option;
    const ChoiceState before = host_.state();
    ChoiceState state = before;
    std::erase_if(state.marks, [&](const Choice &mark) { return mark.option == option; });
    state.marks.insert(state.marks.end(), had_.begin(), had_.end());
    if (state.chosen.contains(option))
        state.chosen[option] = joinedChoices(had_, option);
    forget();
    if (state.chosen != before.chosen || marksOf(before.marks, option) != had_)
        host_.setState(state);
}

/// What a panel holds until it is saved has not been offered, and is no difference so far.
void ConflictDesk::rememberStanding()
{
    const Choices marks = printer_.marks();
    for (const auto &[option, choice] : host_.ledger().chosen()) {
        if (joinedChoices(marks, option) == choice)
            offered_.emplace(option, choice);
    }
}

/// Whether the sheet or a notice is about the option anyway.
bool ConflictDesk::isToldOf(const QString &option) const
{
    return told_.contains(option) || (wanted_ && option == wanted_->option);
}

/// What the notice says.
std::vector<Difference> ConflictDesk::standing() const
{
    std::vector<Difference> differences = host_.ledger().differences(printer_.marks());
    std::erase_if(differences, [this](const Difference &difference) {
        return isToldOf(difference.option) ||
               !offered_.contains({difference.option, difference.chosen});
    });
    return differences;
}

void ConflictDesk::showDifferences()
{
    rememberStanding();
    QStringList lines;
    for (const Difference &difference : standing())
        lines.append(standingDifferenceWords(printer_, difference));
    const QString text = lines.join(u'\n');
    if (std::exchange(differences_, text) == text)
        return;
    if (text.isEmpty())
        Q_EMIT dismissed(kDifferencesKey);
    else
        Q_EMIT noticed({kDifferencesKey,
                        Severity::Warning,
                        text,
                        {{tr("Keep It This Way"), QStringLiteral("acceptDifferences"),
                          [this] { acceptDifferences(); }}}});
}

/// What the notice has not said stays a difference.
void ConflictDesk::acceptDifferences()
{
    ChoiceState state = host_.state();
    for (const Difference &difference : standing()) {
        if (difference.marked.isNull())
            state.chosen.erase(difference.option);
        else
            state.chosen[difference.option] = difference.marked;
    }
    differences_.clear(); // the notice has gone with the press of its button
    host_.setState(state);
}

} // namespace dialog
