#include "dialog/queue_dialog.h"

#include "dialog/jobs/document.h"
#include "dialog/threads/errand.h"
#include "dialog/window/print_window.h"
#include "dialog/window/printer_picker.h"
#include "dialog/window/printer_words.h"
#include "platform/controls/modal_session.h"

#include <QTimer>

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
    connect(&watch_, &QueueWatch::answered, this, &QueueDialog::hearListing);
    connect(window_.get(), &PrintWindow::left, this, &QueueDialog::leave);
    if (case_.memory)
        case_.memory->recallWindow(
            this, [this](const WindowMemory &window) { window_->setPersonsSize(window.size); });
    isRemembered_ = case_.queue.isNull();
    runErrand<QString>(this, sources_.lastUsedDeadline, sources_.lastUsed,
                       [this](const auto &queue) { takeLastUsed(queue.value_or(QString())); });
    window_->setWaiting(tr("Connecting to %1…").arg(serverName()));
    if (sources_.emptyWindowDelay.count() == 0)
        window_->show();
    else
        QTimer::singleShot(sources_.emptyWindowDelay, window_.get(), [this] { window_->show(); });
    if (!isRemembered_)
        connectTo(case_.queue);
}

QueueDialog::~QueueDialog() = default;

void QueueDialog::takeLastUsed(const QString &queue)
{
    lastUsed_ = queue;
    if (isRemembered_ && !queue.isNull())
        connectTo(queue);
    if (early_)
        takeListing(*std::exchange(early_, std::nullopt));
}

/// Which one was used last stands before all others.
void QueueDialog::hearListing(const QueueListing &listing)
{
    if (lastUsed_)
        takeListing(listing);
    else
        early_ = listing;
}

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
    queues_ = inOrderOfUse(listing.queues, *lastUsed_);
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
    queues_ = inOrderOfUse(std::move(known), *lastUsed_);
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
    takeAlong();
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
        recall(std::move(printer.printer));
    else if (printer.outcome == QueuePrinter::Outcome::NoQueue)
        missQueue();
    else
        failPrinter(printerProblem(printer, queue_));
}

/// Before it is shown, so that it is shown once.
void QueueDialog::recall(std::unique_ptr<PpdDocument> printer)
{
    if (!case_.memory) {
        show(std::move(printer), {});
        return;
    }
    const RememberedPrinter remembered = rememberedPrinter(queue_, *printer);
    arrived_ = std::move(printer);
    connecting_ = case_.memory->recall(this, remembered, [this](const Recollection &recollection) {
        connecting_.clear();
        show(std::move(arrived_), recollection);
    });
}

void QueueDialog::show(std::unique_ptr<PpdDocument> printer, const Recollection &recollection)
{
    PrintCase printCase = case_;
    printCase.queue = queue_;
    dialog_ = PrintDialog::withPrinter(printCase, std::move(printer));
    dialog_->begin(recollection, carried_);
    connect(dialog_.get(), &PrintDialog::jobMade, this, [this](const JobRecord &job) {
        lastUsed_ = queue_;
        case_.files->add([queue = queue_] { rememberLastUsedQueue(queue); });
        Q_EMIT jobMade(job);
    });
    connect(dialog_.get(), &PrintDialog::left, this, &QueueDialog::left);
    takeSize(recollection.window.size);
    window_->setWaiting({});
    dialog_->offerSignIn();
    dialog_->showPanelsIn(*window_);
    tellLeftBehind(dialog_->start());
    Q_EMIT ready(queue_);
}

/// Of the dialog before this one; what a person has done since counts.
void QueueDialog::takeSize(QSize size)
{
    if (!window_->personsSize().isValid())
        window_->setPersonsSize(size);
}

/// Before another printer comes.
void QueueDialog::takeAlong()
{
    if (!dialog_)
        return;
    dialog_->rememberWindow();
    carried_ = carriedFrom(carried_, dialog_->start(), dialog_->host().state(), dialog_->printer());
}

void QueueDialog::tellLeftBehind(const StartPlan &start)
{
    QStringList lines = start.leftBehindLines();
    if (lines.isEmpty())
        return;
    lines.prepend(tr("This printer does not have what you chose for the one before:"));
    window_->notices().show({kLeftBehindKey, Severity::Warning, lines.join(u'\n'), {}});
}

/// With a printer there its dialog leaves.
void QueueDialog::leave()
{
    if (dialog_)
        return;
    if (case_.memory)
        case_.memory->keepWindow({window_->personsSize(), {}});
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
