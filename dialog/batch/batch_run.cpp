#include "dialog/batch/batch_run.h"

#include "dialog/batch/control_use.h"
#include "dialog/batch/job_setting.h"
#include "dialog/choice_words.h"
#include "dialog/print_dialog.h"
#include "dialog/printers/ppd_cache.h"
#include "dialog/printers/queue_list.h"
#include "dialog/printers/unsendable.h"
#include "dialog/replay/nearest_name.h"
#include "dialog/threads/errand.h"
#include "dialog/usage.h"
#include "dialog/window/printer_words.h"
#include "platform/controls/modal_session.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace dialog::batch {
namespace {

/// The names of the other queues, where the server tells them.
QString noSuchQueue(const QString &queue, const QueueListing &listing)
{
    QStringList names;
    for (const Queue &other : listing.queues)
        names.append(other.name);
    return replay::noSuchName(QStringLiteral("queue"), queue, names) +
           (replay::nearestName(queue, names).isNull()
                ? QStringLiteral("; korvane-print --list shows those that there are")
                : QString());
}

QJsonObject lossJson(const Loss &loss)
{
    return {{QStringLiteral("option"), loss.option},
            {QStringLiteral("chosen"), loss.asked},
            {QStringLiteral("prints"), textJson(loss.prints)},
            {QStringLiteral("reason"), loss.reason}};
}

} // namespace

BatchRun::BatchRun(const PrintCase &printCase, const Request &request)
    : case_(printCase), request_(request)
{
}

BatchRun::~BatchRun() = default;

void BatchRun::start()
{
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false); // lists open at once
    const QString problem = PrintDialog::prepare(case_);
    if (!problem.isNull())
        return fail(CouldNotStart, problem);
    if (!case_.document.isNull() && QFileInfo(case_.document).size() == 0)
        return fail(CouldNotStart, QStringLiteral("the document %1 is empty").arg(case_.document));
    if (case_.ppd.isNull())
        return openQueue();
    PpdDocument::Opened opened = PpdDocument::open(case_.ppd);
    if (const auto *error = std::get_if<PpdError>(&opened))
        return fail(CouldNotStart, error->message());
    show(std::move(std::get<std::unique_ptr<PpdDocument>>(opened)));
}

void BatchRun::openQueue()
{
    const ServerTimes times;
    runErrand<QueuePrinter>(
        this, times.printer,
        [queue = case_.queue, times] { return openQueuePrinter(queue, times); },
        [this](auto answer) { takeQueue(std::move(answer)); });
}

void BatchRun::takeQueue(std::optional<QueuePrinter> answer)
{
    using Outcome = QueuePrinter::Outcome;
    if (!answer)
        return fail(CouldNotStart, problemText({ServerFault::Silent, {}}));
    switch (answer->outcome) {
    case Outcome::Opened:
    case Outcome::NoPpd:
        return show(std::move(answer->printer));
    case Outcome::NoQueue:
        return missQueue();
    case Outcome::BrokenPpd:
        return fail(
            CouldNotStart,
            QStringLiteral("the PPD of queue %1 is damaged: %2").arg(case_.queue, answer->reason));
    case Outcome::ServerFailed:
        return fail(CouldNotStart, problemText(answer->problem));
    }
}

void BatchRun::missQueue()
{
    const ServerTimes times;
    runErrand<QueueListing>(
        this, times.list, [times] { return listQueues(times); },
        [this](const std::optional<QueueListing> &listing) {
            fail(CouldNotStart, noSuchQueue(case_.queue, listing.value_or(QueueListing{})));
        });
}

void BatchRun::show(std::unique_ptr<PpdDocument> printer)
{
    if (!readSets(*printer))
        return finish(CouldNotStart);
    dialog_ = PrintDialog::withPrinter(case_, std::move(printer));
    connectDialog();
    watchQuestions();
    dialog_->showPanels();
    settings_ = dialog_->host().settings().all();
    QMetaObject::invokeMethod(this, &BatchRun::takeTurn, Qt::QueuedConnection);
}

/// Every mistake is told, and then nothing begun.
bool BatchRun::readSets(const PpdDocument &printer)
{
    bool isRight = true;
    for (const QString &word : request_.sets) {
        const auto read = readAssignment(word);
        const auto known = std::holds_alternative<Mistake>(read)
                               ? std::variant<Assignment, Mistake>(std::get<Mistake>(read))
                               : assignmentOf(std::get<Choice>(read), printer);
        if (const auto *mistake = std::get_if<Mistake>(&known)) {
            complain(mistake->message);
            isRight = false;
        } else {
            assignments_.push_back(std::get<Assignment>(known));
        }
    }
    return isRight;
}

void BatchRun::connectDialog()
{
    connect(&dialog_->panels(), &PanelStack::noticed, this, &BatchRun::tell);
    connect(&dialog_->desk(), &JobDesk::noticed, this, &BatchRun::tell);
    connect(&dialog_->host(), &DialogHost::judged, this, [this](const OfferOutcome &offer) {
        course_.push_back({offer, during_});
    });
    connect(&dialog_->host(), &DialogHost::answered, this, [this](const Choice &choice, bool yes) {
        if (during_ == kWhileCommitting && yes)
            course_.push_back({{OfferVerdict::Accepted, choice, {}}, during_});
    });
    connect(dialog_.get(), &PrintDialog::jobMade, this, [this](const JobRecord &job) {
        say(case_.queue.isNull() ? job.ticketPath : job.id);
        finish(Done);
    });
    connect(dialog_.get(), &PrintDialog::jobFailed, this, &BatchRun::takeFailure,
            Qt::QueuedConnection);
}

/// A panel that asks ends the run: without an answer nobody knows what is to print.
void BatchRun::watchQuestions()
{
    connect(&platform::ModalSessions::shared(), &platform::ModalSessions::opened, this,
            [this](QDialog *window) {
                const QString question = window->windowTitle();
                QMetaObject::invokeMethod(
                    this, [this, question] { failByQuestion(question); }, Qt::QueuedConnection);
            });
}

void BatchRun::failByQuestion(const QString &question)
{
    const QString where = during_ == kWhileCommitting
                              ? QString()
                              : written(assignments_[static_cast<std::size_t>(during_)].wanted) +
                                    QStringLiteral(": ");
    if (!isFinished_)
        fail(NotPrinted,
             where + QStringLiteral("a panel asks, and nobody is there to answer: ") + question);
}

/// One assignment a turn of the event loop, so that each is an action of its own.
void BatchRun::takeTurn()
{
    if (isFinished_)
        return;
    if (next_ == assignments_.size())
        return conclude();
    during_ = static_cast<int>(next_);
    make(assignments_[next_++]);
    dialog_->host().deliverChanges();
    noteSettings();
    QMetaObject::invokeMethod(this, &BatchRun::takeTurn, Qt::QueuedConnection);
}

void BatchRun::make(const Assignment &assignment)
{
    DialogHost &host = dialog_->host();
    const Choice &wanted = assignment.wanted;
    if (assignment.target == Assignment::Target::JobSetting)
        for (const auto &[key, value] : changesFor(wanted, host.settings().all()))
            host.setSetting(key, value);
    else if (!chooseInPanel(wanted))
        static_cast<void>(host.choose(wanted)); // judged() tells
}

/// False where no panel has a control with which a person could do it, or needs to.
bool BatchRun::chooseInPanel(const Choice &choice)
{
    PanelStack &panels = dialog_->panels();
    for (const LoadedPanel &entry : panels.loaded()) {
        PDEPanelDiagnostics *diagnostics = entry.panel->diagnostics();
        if (!diagnostics || !entry.view ||
            !entry.panel->supportedPPDOptionKeys().contains(choice.option))
            continue;
        panels.bringForward(panels.indexOf(entry.kind)); // fills its controls, too
        QCoreApplication::processEvents();               // and they get their places
        if (chooseWithControl(diagnostics->optionControls(), entry.view, choice) == Use::Acted)
            return true;
    }
    return false;
}

/// Rules may set print settings, too.
void BatchRun::noteSettings()
{
    const std::map<QString, QVariant> now = dialog_->host().settings().all();
    for (const auto &[key, value] : now) {
        const auto before = settings_.find(key);
        if (before == settings_.end() || before->second != value)
            course_.push_back({{OfferVerdict::Accepted, {key, value.toString()}, {}}, during_});
    }
    settings_ = now;
}

void BatchRun::conclude()
{
    during_ = kWhileCommitting;
    const Ticket ticket = dialog_->desk().ticket();
    const std::vector<Loss> losses =
        lossesOf(assignments_, course_, ticket.settings, ticket.differences);
    const std::vector<Conflict> conflicts = dialog_->printer().conflicts();
    const QString unsendable = unsendableReason(jobOptions(ticket.settings));
    for (const Loss &loss : losses)
        complain(lossLine(loss));
    for (const Conflict &conflict : conflicts)
        complain(conflictWords(dialog_->printer(), conflict));
    if (!unsendable.isNull())
        complain(unsendable);
    if (!request_.sends)
        sayOptions(ticket.settings, losses);
    const bool isWhole = losses.empty() && conflicts.empty();
    if (!unsendable.isNull() || (!isWhole && !request_.sendsLess))
        return finish(NotPrinted);
    if (!request_.sends)
        return finish(Done);
    dialog_->print(Review::Skip);
}

/// A lost answer is looked for once: what has arrived is not sent again, what has not is.
void BatchRun::takeFailure()
{
    const Aftermath aftermath = dialog_->desk().aftermath();
    if (interruptedBy_)
        finish(BySignal + interruptedBy_);
    else if (aftermath == Aftermath::Unsettled && !std::exchange(hasTriedAgain_, true))
        dialog_->print(Review::Skip);
    else
        finish(aftermath == Aftermath::None ? NotPrinted : NotKnown);
}

void BatchRun::sayOptions(const JobSettings &job, const std::vector<Loss> &losses) const
{
    const JobOptions options = jobOptions(job);
    if (request_.output == Request::Output::Lines) {
        for (const auto &[name, value] : options)
            say(written({name, value}));
        return;
    }
    QJsonArray lost;
    for (const Loss &loss : losses)
        lost.append(lossJson(loss));
    const QJsonObject object{{QStringLiteral("printer"), dialog_->printer().nickName()},
                             {QStringLiteral("queue"), textJson(case_.queue)},
                             {QStringLiteral("document"), textJson(case_.document)},
                             {QStringLiteral("options"), optionsJson(options)},
                             {QStringLiteral("lost"), lost}};
    static_cast<void>(writeOut(QJsonDocument(object).toJson()));
}

/// Nobody looks at the window: what is worth a warning there is told here.
void BatchRun::tell(const Notice &notice) const
{
    if (notice.severity != Severity::Information)
        complain(notice.text);
}

void BatchRun::interrupt(int signalNumber)
{
    interruptedBy_ = signalNumber;
    if (dialog_ && dialog_->desk().isSending())
        dialog_->desk().cancel(); // whether it came in time, the desk tells
    else
        finish(BySignal + signalNumber);
}

void BatchRun::fail(Status status, const QString &words)
{
    complain(words);
    finish(status);
}

void BatchRun::finish(int status)
{
    if (std::exchange(isFinished_, true))
        return;
    platform::stopAllModalSessions();
    QMetaObject::invokeMethod(
        this, [this, status] { Q_EMIT finished(status); }, Qt::QueuedConnection);
}

} // namespace dialog::batch
