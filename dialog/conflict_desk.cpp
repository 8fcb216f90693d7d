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
    connect(&host, &DialogHost::stateChanged, this, &ConflictDesk::followState);
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
    wanted_.reset();
    refused_ = QString();
    if (sheet_)
        sheet_->withdraw();
    Q_EMIT dismissed(kOfferGroup);
}

void ConflictDesk::take(const OfferOutcome &outcome)
{
    const Choice &offered = outcome.offered;
    const bool conflicts = outcome.verdict == OfferVerdict::Conflicts;
    offered_.emplace(offered.option, offered.choice);
    if (conflicts && outcome.by == OfferedBy::Person && sheet_) {
        wanted_ = offered;
        QMetaObject::invokeMethod(this, &ConflictDesk::askWhenPossible, Qt::QueuedConnection);
    } else if (conflicts) {
        refused_ = offered.option;
        Q_EMIT noticed({kOfferGroup + offered.option,
                        Severity::Warning,
                        forbiddenWords(printer_, offered, outcome.inTheWay),
                        {}});
    } else if (outcome.verdict == OfferVerdict::Refused) {
        refused_ = offered.option;
        Q_EMIT noticed(
            {kOfferGroup + offered.option, Severity::Warning, refusedWords(printer_, offered), {}});
    }
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
    return wanted_ && sheet_ && !printer_.conflictsWith(*wanted_).empty() &&
           !printer_.allMarked(wanted_->option).contains(wanted_->choice, Qt::CaseInsensitive);
}

void ConflictDesk::ask()
{
    if (!isWanting()) {
        wanted_.reset();
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
    showDifferences();
}

void ConflictDesk::change(int way)
{
    const Resolution &changes = ways_.at(static_cast<std::size_t>(way));
    wanted_.reset();
    history_.change(namedChoice(printer_, question_.wanted),
                    [&] { host_.setState(stateWith(host_.state(), question_, changes)); });
}

/// A panel may show the refused choice still.
void ConflictDesk::keep()
{
    const Choice wanted = *std::exchange(wanted_, std::nullopt);
    ChoiceState state = host_.state();
    const auto chosen = state.chosen.find(wanted.option);
    const QString marked = joinedChoices(state.marks, wanted.option);
    if (chosen == state.chosen.end() || chosen->second == marked)
        return;
    chosen->second = marked;
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
    return option == refused_ || (wanted_ && option == wanted_->option);
}

void ConflictDesk::showDifferences()
{
    rememberStanding();
    QStringList lines;
    for (const Difference &difference : host_.ledger().differences(printer_.marks())) {
        if (!isToldOf(difference.option) &&
            offered_.contains({difference.option, difference.chosen}))
            lines.append(standingDifferenceWords(printer_, difference));
    }
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

void ConflictDesk::acceptDifferences()
{
    ChoiceState state = host_.state();
    for (const Difference &difference : host_.ledger().differences(state.marks)) {
        if (difference.marked.isNull())
            state.chosen.erase(difference.option);
        else
            state.chosen[difference.option] = difference.marked;
    }
    differences_.clear(); // the notice has gone with the press of its button
    host_.setState(state);
}

} // namespace dialog
