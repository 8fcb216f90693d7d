#include "dialog/queue_dialog.h"

#include "dialog/host/offer.h"
#include "dialog/jobs/document.h"
#include "dialog/printers/errand.h"
#include "dialog/settings/setting_words.h"
#include "dialog/window/print_window.h"
#include "dialog/window/printer_picker.h"
#include "dialog/window/printer_words.h"
#include "platform/controls/modal_session.h"

#include <QTimer>

#include <algorithm>

namespace dialog {
namespace {

constexpr std::chrono::seconds kPollInterval{5};
constexpr std::chrono::milliseconds kEmptyWindowDelay{100};

const QString kServerKey = QStringLiteral("server");
const QString kPrinterKey = QStringLiteral("printer");
const QString kLeftBehindKey = QStringLiteral("left-behind");

} // namespace

QueueSources serverSources(const ServerTimes &times)
{
    return {[times](const ListingHeard &heard) { return listQueues(times, heard); },
            [times](const QString &queue) { return openQueuePrinter(queue, times); },
            {times.list, kPollInterval},
            times.printer,
            kEmptyWindowDelay};
}

QueueDialog::QueueDialog(const PrintCase &printCase, QueueSources sources)
    : case_(printCase), sources_(std::move(sources)), watch_(sources_.list, sources_.listTimes)
{
    watch_.ask(); // the server answers while the window is built
    picker_ = new PrinterPicker;
    window_ = std::make_unique<PrintWindow>(picker_, documentName(printCase.document));
    connect(picker_, &PrinterPicker::picked, this, &QueueDialog::switchTo, Qt::QueuedConnection);
    connect(&watch_, &QueueWatch::answered, this, &QueueDialog::takeListing);
    connect(window_.get(), &PrintWindow::left, this, &QueueDialog::leave);
    isRemembered_ = case_.queue.isNull();
    const QString wanted = isRemembered_ ? lastUsedQueue() : case_.queue;
    window_->setWaiting(tr("Connecting to %1…").arg(serverName()));
    if (sources_.emptyWindowDelay.count() == 0)
        window_->show();
    else
        QTimer::singleShot(sources_.emptyWindowDelay, window_.get(), [this] { window_->show(); });
    if (!wanted.isNull())
        connectTo(wanted);
}

QueueDialog::~QueueDialog() = default;

void QueueDialog::takeListing(const QueueListing &listing)
{
    if (listing.problem) {
        takeProblem(listing.problem);
        return;
    }
    if (!listing.isWhole) {
        takeSoFar(listing);
        return;
    }
    queues_ = inOrderOfUse(listing.queues, lastUsedQueue());
    picker_->setQueues(queues_);
    if (queues_.empty()) {
        window_->setWaiting(dialog_ ? QString() : QLatin1String(""));
        tell(kServerKey,
             tr("The print server at %1 has no printers. Add one there, then try again.")
                 .arg(serverName()),
             {tryAgainAction()});
        return;
    }
    retract(kServerKey);
    if (queue_.isNull())
        chooseQueue();
    else
        followQueue();
}

/// Queues known from before stay until it is certain that they are gone.
void QueueDialog::takeSoFar(const QueueListing &listing)
{
    if (queue_.isNull() && queues_.empty() && !listing.defaultName.isNull()) {
        isRemembered_ = true;
        connectTo(listing.defaultName);
    }
    std::vector<Queue> known = listing.queues;
    for (const Queue &queue : queues_) {
        if (!findQueue(listing.queues, queue.name))
            known.push_back(queue);
    }
    queues_ = inOrderOfUse(std::move(known), lastUsedQueue());
    picker_->setQueues(queues_);
}

/// The chosen queue may go, come back, or answer again.
void QueueDialog::followQueue()
{
    const bool isThere = findQueue(queues_, queue_) != nullptr;
    if (dialog_ && !isThere)
        tell(kPrinterKey, printerProblem({QueuePrinter::Outcome::NoQueue}, queue_), {});
    else if (dialog_)
        retract(kPrinterKey);
    else if (isThere && !connecting_ && automaticTries_ > 0)
        connectTo(queue_, automaticTries_ - 1);
}

/// What was known of the queues stays, but none can be reached.
void QueueDialog::takeProblem(const ServerProblem &problem)
{
    for (Queue &queue : queues_) {
        queue.state = QueueState::Unreachable;
        queue.reason = QString();
    }
    automaticTries_ = kAutomaticTries; // who comes back is asked as often as at first
    picker_->setQueues(queues_);
    if (queue_.isNull())
        window_->setWaiting(QLatin1String(""));
    if (told_.find(kPrinterKey) == told_.end())
        tell(kServerKey, problemText(problem), {tryAgainAction()});
}

void QueueDialog::chooseQueue()
{
    if (queues_.empty())
        return;
    isRemembered_ = false;
    connectTo(queues_.front().name);
}

void QueueDialog::missQueue()
{
    if (!isRemembered_) {
        failPrinter(printerProblem({QueuePrinter::Outcome::NoQueue}, queue_));
        return;
    }
    queue_ = QString();
    picker_->select(queue_);
    chooseQueue();
}

void QueueDialog::tryAgain()
{
    told_.clear();
    watch_.ask();
    if (!queue_.isNull() && !dialog_)
        connectTo(queue_);
    else if (!dialog_)
        window_->setWaiting(tr("Connecting to %1…").arg(serverName()));
}

/// Comes from the event loop, so that no panel's call is under way but one that runs a modal
/// window; that ends first.
void QueueDialog::switchTo(const QString &queue)
{
    if (platform::modalDepth() > 0) {
        platform::stopAllModalSessions();
        QMetaObject::invokeMethod(
            this, [this, queue] { switchTo(queue); }, Qt::QueuedConnection);
        return;
    }
    isRemembered_ = false;
    rememberChoices();
    connectTo(queue);
}

void QueueDialog::connectTo(const QString &queue, int automaticTries)
{
    delete connecting_;
    automaticTries_ = automaticTries;
    dialog_.reset();
    told_.clear();
    window_->clearPanels();
    queue_ = queue;
    picker_->select(queue);
    window_->setWaiting(tr("Connecting to %1…").arg(queue));
    connecting_ = runErrand<QueuePrinter>(
        this, sources_.printerDeadline, [open = sources_.printer, queue] { return open(queue); },
        [this](auto answer) { takePrinter(std::move(answer)); });
}

void QueueDialog::takePrinter(std::optional<QueuePrinter> answer)
{
    connecting_.clear();
    QueuePrinter printer = answer ? std::move(*answer) : silentPrinter();
    if (printer.outcome == QueuePrinter::Outcome::BrokenPpd)
        automaticTries_ = 0; // whether somebody has repaired it, only a person knows
    if (printer.printer)
        show(std::move(printer.printer));
    else if (printer.outcome == QueuePrinter::Outcome::NoQueue)
        missQueue();
    else
        failPrinter(printerProblem(printer, queue_));
}

void QueueDialog::show(std::unique_ptr<PpdDocument> printer)
{
    PrintCase printCase = case_;
    printCase.queue = queue_;
    dialog_ = PrintDialog::withPrinter(printCase, std::move(printer));
    saved_ = dialog_->printer().marks();
    QStringList leftBehind = carryChoices();
    carrySettings(leftBehind);
    connect(dialog_.get(), &PrintDialog::jobMade, this, [this](const JobRecord &job) {
        rememberLastUsedQueue(queue_);
        Q_EMIT jobMade(job);
    });
    connect(dialog_.get(), &PrintDialog::left, this, &QueueDialog::left);
    window_->setWaiting({});
    dialog_->offerSignIn();
    dialog_->showPanelsIn(*window_);
    if (!leftBehind.isEmpty()) {
        leftBehind.prepend(tr("This printer does not have what you chose for the one before:"));
        window_->notices().show({kLeftBehindKey, Severity::Warning, leftBehind.join(u'\n'), {}});
    }
    Q_EMIT ready(queue_);
}

/// What the user has saved for a queue is that queue's, and no choice for another one.
void QueueDialog::rememberChoices()
{
    if (!dialog_)
        return;
    PrintSettingsMap settings = dialog_->host().settings().all();
    settings.merge(settings_); // what has been left behind, for the way back
    settings_ = std::move(settings);
    const PpdDocument &printer = dialog_->printer();
    for (const auto &[option, keyword] : dialog_->host().ledger().chosen()) {
        const Choice choice{option, keyword};
        if (std::find(saved_.begin(), saved_.end(), choice) == saved_.end())
            chosen_[option] = {keyword, printer.optionText(option), printer.choiceText(choice)};
    }
}

/// Answers, a line each, what this printer does not have or cannot combine.
QStringList QueueDialog::carryChoices()
{
    QStringList leftBehind;
    for (const auto &[option, words] : chosen_) {
        const Choice choice{option, words.choice};
        if (judgeOffer(dialog_->printer(), choice).verdict == OfferVerdict::Accepted)
            dialog_->host().changeFromElsewhere(choice);
        else
            leftBehind.append(tr("%1: %2").arg(words.optionText, words.choiceText));
    }
    return leftBehind;
}

/// Mirror may come from a choice that is left behind, and is left with it.
void QueueDialog::carrySettings(QStringList &leftBehind)
{
    const bool carriesMirror = leftBehind.isEmpty();
    for (const auto &[key, value] : std::exchange(settings_, {})) {
        if (key != QLatin1String("mirror") || carriesMirror) {
            dialog_->host().setSetting(key, value);
            continue;
        }
        settings_[key] = value;
        leftBehind.append(tr("%1: %2").arg(settingTitle(key), settingValue(key, value.toString())));
    }
}

/// With a printer there its dialog leaves.
void QueueDialog::leave()
{
    if (dialog_)
        return;
    window_->hide();
    Q_EMIT left();
}

void QueueDialog::tell(const QString &key, const QString &words, std::vector<NoticeAction> actions)
{
    if (std::exchange(told_[key], words) != words)
        window_->notices().show({key, Severity::Critical, words, std::move(actions)});
}

void QueueDialog::retract(const QString &key)
{
    told_.erase(key);
    window_->notices().dismiss(key);
}

void QueueDialog::failPrinter(const QString &words)
{
    window_->setWaiting(QLatin1String(""));
    retract(kServerKey);
    tell(kPrinterKey, words, {tryAgainAction()});
}

NoticeAction QueueDialog::tryAgainAction()
{
    return {tr("Try Again"), QStringLiteral("tryAgainButton"), [this] { tryAgain(); }};
}

} // namespace dialog
