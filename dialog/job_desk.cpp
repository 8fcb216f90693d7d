#include "dialog/job_desk.h"

#include "dialog/choice_words.h"
#include "dialog/jobs/document.h"
#include "dialog/jobs/job_folder.h"
#include "dialog/jobs/job_messages.h"
#include "dialog/jobs/queue_printing.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/printers/queue_job.h"
#include "dialog/printers/standard_options.h"
#include "dialog/printers/unsendable.h"
#include "dialog/threads/errand.h"

#include <QFileInfo>

#include <chrono>
#include <utility>

namespace dialog {
namespace {

const QString kReviewKey = QStringLiteral("review");
const QString kJobKey = QStringLiteral("job");

/// The name inside the job folder keeps the document's kind and nothing else of its name.
QString documentFileName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    return suffix.isEmpty() ? QStringLiteral("document") : QStringLiteral("document.") + suffix;
}

} // namespace

JobDesk::JobDesk(const PrintCase &printCase, const PpdDocument &printer, DialogHost &host,
                 QObject *parent)
    : QObject(parent), case_(printCase), printer_(printer), host_(host)
{
    constexpr int kShortJobMilliseconds = 500;
    progressDelay_.setSingleShot(true);
    progressDelay_.setInterval(kShortJobMilliseconds);
    connect(&progressDelay_, &QTimer::timeout, this, &JobDesk::showProgress);
    connect(&folderPrinting_, &FolderPrinting::progressed, this, &JobDesk::takeProgress);
    if (!case_.queue.isNull())
        makeQueuePrinting();
}

void JobDesk::makeQueuePrinting()
{
    queuePrinting_ = new QueuePrinting(case_.queue, case_.serverLimits, this);
    connect(queuePrinting_, &QueuePrinting::progressed, this, &JobDesk::takeProgress);
    connect(queuePrinting_, &QueuePrinting::signInWanted, this, &JobDesk::signInWanted);
    connect(queuePrinting_, &QueuePrinting::earlierSettled, this, [this](const QString &message) {
        Q_EMIT noticed({QStringLiteral("earlier:") + message, Severity::Warning, message, {}});
    });
}

void JobDesk::cancel()
{
    folderPrinting_.cancel();
    if (queuePrinting_)
        queuePrinting_->cancel();
}

void JobDesk::offerSignIn()
{
    if (queuePrinting_)
        queuePrinting_->setSignInBy(SignInBy::Person);
}

void JobDesk::signIn(std::unique_ptr<Credentials> credentials)
{
    if (queuePrinting_)
        queuePrinting_->signIn(std::move(credentials));
}

void JobDesk::settleEarlier()
{
    if (queuePrinting_)
        queuePrinting_->settleEarlier();
}

void JobDesk::fail(const QString &words)
{
    Q_EMIT noticed({kJobKey, Severity::Critical, words, {}});
    Q_EMIT jobFailed(words);
}

QString JobDesk::problemBeforePrinting() const
{
    if (!case_.document.isNull())
        return documentProblem(case_.document);
    return case_.queue.isNull()
               ? QString()
               : tr("There is nothing to print. Start the dialog with a document.");
}

void JobDesk::print(Review review)
{
    if (isSending())
        return; // a second press of Print prints nothing twice
    const QString problem = problemBeforePrinting();
    if (!problem.isNull()) {
        fail(problem);
        return;
    }
    host_.deliverChanges();
    const ChoiceState before = host_.state();
    const CommitResult result = host_.commitPanels();
    if (review == Review::Ask && !result.isClean()) {
        askForReview(result);
        host_.takeBackCommit(before); // until a person has agreed
        return;
    }
    if (case_.queue.isNull())
        printToFolder(makeTicket(result));
    else
        printToQueue(makeTicket(result));
}

void JobDesk::askForReview(const CommitResult &result)
{
    Q_EMIT noticed({kReviewKey,
                    Severity::Warning,
                    reviewText(result),
                    {{tr("Go Back"), QStringLiteral("goBackButton"), [] {}},
                     {tr("Print Anyway"), QStringLiteral("printAnywayButton"),
                      [this] { print(Review::Skip); }}}});
}

QString JobDesk::reviewText(const CommitResult &result) const
{
    QStringList lines{tr("Before this prints:")};
    for (const Conflict &conflict : result.conflicts)
        lines.append(conflictWords(printer_, conflict));
    for (const Difference &difference : result.differences)
        lines.append(differenceWords(printer_, difference));
    return lines.join(u'\n');
}

JobSettings JobDesk::jobSettings() const
{
    JobSettings settings{printer_.defaults(), printer_.marks(), {}, {}, host_.explicitPaperName()};
    settings.counterparts = standardCounterparts(printer_);
    for (const auto &[option, choice] : host_.ledger().chosen())
        settings.chosen.append(option);
    settings.printSettings = host_.settings().all();
    return settings;
}

Ticket JobDesk::ticket()
{
    return makeTicket(host_.commitPanels());
}

Ticket JobDesk::makeTicket(const CommitResult &result) const
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    Ticket ticket;
    ticket.id = newJobId(now);
    ticket.time = now;
    ticket.printerName = printer_.nickName();
    ticket.ppdFile = QFileInfo(printer_.path()).fileName();
    ticket.queue = case_.queue;
    ticket.documentName = documentName(case_.document);
    ticket.settings = jobSettings();
    ticket.differences = result.differences;
    return ticket;
}

void JobDesk::printToFolder(const Ticket &made)
{
    Ticket ticket = made;
    if (!case_.document.isNull())
        ticket.documentFile = documentFileName(case_.document);
    begin();
    connect(
        &folderPrinting_, &FolderPrinting::finished, this,
        [this, ticket](const JobFolderResult &result) { finishFolderJob(ticket, result); },
        Qt::SingleShotConnection);
    folderPrinting_.start([folder = jobsFolder(case_.jobFolder), ticket,
                           document = case_.document](const FolderWatch &watch) {
        return writeJobFolder(folder, ticket, document, watch);
    });
}

void JobDesk::finishFolderJob(const Ticket &ticket, const JobFolderResult &result)
{
    end();
    if (!result.ticketPath.isNull())
        Q_EMIT jobMade(
            {ticket.id, jobOptions(ticket.settings), result.ticketPath, {}, ticket.settings});
    else if (result.error.isNull())
        fail(faultMessage({0, JobFault::Cancelled}, {}));
    else
        fail(tr("The job could not be written to %1: %2. Make room or allow writing there, then "
                "print again.")
                 .arg(jobsFolder(case_.jobFolder), result.error));
    Q_EMIT idle();
}

void JobDesk::begin()
{
    isSending_ = true;
    sentPercent_ = 0;
    aftermath_ = Aftermath::None;
    progressDelay_.start();
    Q_EMIT sendingChanged(true);
}

void JobDesk::end()
{
    isSending_ = false;
    progressDelay_.stop();
    Q_EMIT sendingChanged(false);
    Q_EMIT dismissed(kJobKey);
}

void JobDesk::printToQueue(const Ticket &ticket)
{
    const JobOptions options = jobOptions(ticket.settings);
    const QString reason = unsendableReason(options);
    if (!reason.isNull()) {
        fail(tr("Nothing was sent, because a setting would get lost: %1. Choose another value for "
                "it.")
                 .arg(reason));
        return;
    }
    begin();
    connect(
        queuePrinting_, &QueuePrinting::finished, this,
        [this, ticket](const QueueJobResult &result) { finishQueueJob(ticket, result); },
        Qt::SingleShotConnection);
    queuePrinting_->send({ticket.documentName, case_.document, options});
}

void JobDesk::takeProgress(qint64 done, qint64 all)
{
    constexpr int kWhole = 100;
    const int percent = all > 0 ? static_cast<int>(kWhole * done / all) : 0;
    const bool isNews = std::exchange(sentPercent_, percent) != percent;
    if (isNews && !progressDelay_.isActive())
        showProgress();
}

QString JobDesk::progressWords() const
{
    const QString percent = QString::number(sentPercent_);
    return case_.queue.isNull() ? tr("Writing the job: %1 %.").arg(percent)
                                : tr("Sending to %1: %2 %.").arg(case_.queue, percent);
}

void JobDesk::showProgress()
{
    Q_EMIT progressed(
        {kJobKey,
         Severity::Information,
         progressWords(),
         {{tr("Cancel Job"), QStringLiteral("cancelJobButton"), [this] { cancel(); }}}});
}

Aftermath JobDesk::aftermathOf(const QueueJobResult &result) const
{
    if (result.fault == JobFault::MaybePrinted)
        return Aftermath::MaybePrinted;
    return queuePrinting_->isUnsettled(case_.document) ? Aftermath::Unsettled : Aftermath::None;
}

void JobDesk::finishQueueJob(Ticket ticket, const QueueJobResult &result)
{
    aftermath_ = aftermathOf(result);
    if (result.jobId == 0) {
        end();
        fail(faultMessage(result, case_.queue));
        Q_EMIT idle();
        return;
    }
    // The job is printing: a ticket that cannot be written is no reason to send it again.
    constexpr auto kTicketLimit = std::chrono::seconds(2);
    ticket.jobId = result.jobId;
    runErrand<JobFolderResult>(
        this, kTicketLimit,
        [folder = jobsFolder(case_.jobFolder), ticket] {
            return writeJobFolder(folder, ticket, {});
        },
        [this, ticket, told = remarks(result, case_.queue)](const auto &written) {
            tellMade(ticket, told, written ? written->ticketPath : QString());
        });
}

void JobDesk::tellMade(const Ticket &ticket, const QStringList &told, const QString &ticketPath)
{
    end();
    const QString number = QString::number(ticket.jobId);
    Q_EMIT noticed({kJobKey,
                    told.isEmpty() ? Severity::Information : Severity::Warning,
                    (QStringList{tr("Sent as job %1.").arg(number)} + told).join(u'\n'),
                    {}});
    Q_EMIT jobMade({number, jobOptions(ticket.settings), ticketPath, told, ticket.settings});
    Q_EMIT idle();
}

} // namespace dialog
