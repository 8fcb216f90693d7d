#include "dialog/print_dialog.h"

#include "dialog/jobs/document.h"
#include "dialog/jobs/job_folder.h"
#include "dialog/jobs/job_messages.h"
#include "dialog/jobs/queue_printing.h"
#include "dialog/printers/queue_job.h"
#include "dialog/printers/standard_options.h"
#include "dialog/printers/unsendable.h"
#include "dialog/window/help_window.h"
#include "dialog/window/print_window.h"
#include "dialog/window/summary_view.h"
#include "platform/controls/modal_session.h"
#include "platform/values.h"

#include <QFile>
#include <QFileInfo>

namespace dialog {
namespace {

void setPlatformValues(const PrintCase &printCase)
{
    if (!printCase.root.isNull())
        platform::setDriverRoot(QFileInfo(printCase.root).absoluteFilePath());
    if (printCase.systemVersion)
        platform::setSystemVersion(*printCase.systemVersion);
    if (!printCase.language.isNull()) {
        platform::setPreferredLanguages({printCase.language});
        platform::setLocaleIdentifier(QString(printCase.language).replace(u'-', u'_'));
    }
}

PpdDocument::Opened openPrinter(const PrintCase &printCase)
{
    if (!printCase.ppd.isNull())
        return PpdDocument::open(printCase.ppd);
    const QueuePpd fetched = fetchQueuePpd(printCase.queue);
    if (fetched.path.isNull())
        return PpdError{printCase.queue, 0, fetched.error};
    PpdDocument::Opened opened = PpdDocument::open(fetched.path);
    QFile::remove(fetched.path);
    return opened;
}

/// The name inside the job folder keeps the document's kind and nothing else of its name.
QString documentFileName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    return suffix.isEmpty() ? QStringLiteral("document") : QStringLiteral("document.") + suffix;
}

const QString kOfferGroup = QStringLiteral("offer:");
const QString kReviewKey = QStringLiteral("review");
const QString kJobKey = QStringLiteral("job");
const QString kHelpKey = QStringLiteral("help");

} // namespace

QString PrintDialog::prepare(const PrintCase &printCase)
{
    setPlatformValues(printCase);
    return printCase.document.isNull() ? QString() : documentProblem(printCase.document);
}

std::unique_ptr<PrintDialog> PrintDialog::withPrinter(const PrintCase &printCase,
                                                      std::unique_ptr<PpdDocument> printer)
{
    return std::unique_ptr<PrintDialog>(new PrintDialog(printCase, std::move(printer)));
}

PrintDialog::Opened PrintDialog::open(const PrintCase &printCase)
{
    const QString problem = prepare(printCase);
    if (!problem.isNull())
        return problem;
    if (printCase.ppd.isNull() && printCase.queue.isNull())
        return QStringLiteral("no printer; name one with --ppd FILE or --queue NAME");
    PpdDocument::Opened opened = openPrinter(printCase);
    if (const auto *error = std::get_if<PpdError>(&opened))
        return error->message();
    return withPrinter(printCase, std::move(std::get<std::unique_ptr<PpdDocument>>(opened)));
}

PrintDialog::PrintDialog(const PrintCase &printCase, std::unique_ptr<PpdDocument> printer)
    : case_(printCase), printer_(std::move(printer)), host_(*printer_)
{
    host_.followPageSize();
    formerHelpOpener_ = platform::setHelpOpener(
        [this](const platform::HelpRequest &request) { showBook(request); });
    connect(&host_, &DialogHost::judged, this, &PrintDialog::showOutcome);
    if (!case_.queue.isNull())
        makeQueuePrinting();
}

void PrintDialog::makeQueuePrinting()
{
    constexpr int kShortJobMilliseconds = 500;
    constexpr int kWhole = 100;
    queuePrinting_ = new QueuePrinting(case_.queue, case_.serverLimits, this);
    progressDelay_.setSingleShot(true);
    progressDelay_.setInterval(kShortJobMilliseconds);
    connect(&progressDelay_, &QTimer::timeout, this, [this] {
        if (window_)
            showProgress();
    });
    connect(queuePrinting_, &QueuePrinting::progressed, this, [this](qint64 sent, qint64 total) {
        const int percent = total > 0 ? static_cast<int>(kWhole * sent / total) : 0;
        const bool isNews = std::exchange(sentPercent_, percent) != percent;
        if (isNews && window_ && !progressDelay_.isActive())
            showProgress();
    });
    connect(queuePrinting_, &QueuePrinting::earlierSettled, this, [this](const QString &message) {
        notify({QStringLiteral("earlier:") + message, Severity::Warning, message, {}});
    });
}

PrintDialog::~PrintDialog()
{
    platform::setHelpOpener(formerHelpOpener_);
    host_.setFrontPanel(nullptr);
    host_.setPanels({});
    if (window_ && !ownWindow_) {
        delete helpWindow_;
        window_->clearPanels();
    }
    ownWindow_.reset();
    panels_.clear();
}

void PrintDialog::showPanels()
{
    if (window_)
        return;
    ownWindow_ = std::make_unique<PrintWindow>(printer_->nickName(), documentName(case_.document));
    showPanelsIn(*ownWindow_);
}

void PrintDialog::showPanelsIn(PrintWindow &window)
{
    Q_EMIT aboutToShowPanels();
    host_.takeMarksAsChosen();
    loadPanels();
    window_ = &window;
    connectWindow();
    restorePanels();
    if (!panels_.empty())
        bringForward(0);
    window_->fitContents();
    window_->show();
    window_->activateWindow();
    for (const Notice &notice : std::exchange(early_, {}))
        notify(notice);
    if (queuePrinting_)
        queuePrinting_->settleEarlier();
}

void PrintDialog::loadPanels()
{
    const QStringList paths = printer_->attributeValues("APDialogExtension");
    if (paths.isEmpty())
        notify({QStringLiteral("panels"),
                Severity::Information,
                text(printer_->path().isNull() ? Text::QueueWithoutPpd : Text::PanelsMissing),
                {}});
    for (const QString &path : paths)
        loadPanelsOf(path);
    PDEPanelList list;
    for (const Panel &panel : panels_)
        list.push_back(panel.panel);
    host_.setPanels(list);
}

void PrintDialog::loadPanelsOf(const QString &literalBundlePath)
{
    const TrustedOwner owner =
        case_.root.isNull() ? TrustedOwner::RootOnly : TrustedOwner::RootAndUser;
    const QString key = QStringLiteral("plug-in:") + literalBundlePath;
    auto loaded = loadPlugIn(literalBundlePath, owner);
    if (const auto *failure = std::get_if<PlugInFailure>(&loaded)) {
        notify({key, Severity::Warning, failure->notice, {}});
        return;
    }
    plugIns_.push_back(std::move(std::get<PlugIn>(loaded)));
    const auto panels =
        plugIns_.back().principal->PDEPanelsForType(kPDEPrintDialogType.toString(), &host_);
    if (!panels || panels->empty())
        notify({key, Severity::Information, text(Text::NoPanelsForPrinter), {}});
    else
        for (const auto &panel : *panels)
            panels_.push_back({panel, {}, {}});
}

void PrintDialog::connectWindow()
{
    connect(window_, &PrintWindow::panelPicked, this, &PrintDialog::bringForward);
    connect(window_, &PrintWindow::helpRequested, this, &PrintDialog::showHelp);
    connect(window_, &PrintWindow::printRequested, this, [this] { print(Review::Ask); });
    connect(window_, &PrintWindow::left, this, &PrintDialog::leave);
    connect(&host_, &DialogHost::panelResized, window_, &PrintWindow::fitContents);
    // What an earlier action was refused is told, and past, once a person tries something else.
    connect(&host_, &DialogHost::actionBegan, &window_->notices(),
            [this] { window_->notices().dismissGroup(kOfferGroup); });
}

void PrintDialog::restorePanels()
{
    for (Panel &entry : panels_) {
        host_.callPanel(entry.panel.get(), [&](PDEPanel &panel) {
            QWidget *view = panel.panelView();
            entry.title = panel.panelName();
            entry.kind = panel.panelKind();
            window_->addPanel(entry.title, view);
            panel.restoreValuesAndReturnError(nullptr);
        });
    }
    if (panels_.empty())
        return;
    summary_ = new SummaryView;
    window_->addPanel(text(Text::Summary), summary_);
}

int PrintDialog::frontIndex() const
{
    return window_ ? window_->frontIndex() : -1;
}

PDEPanel *PrintDialog::panelAt(int index) const
{
    return index >= 0 && index < static_cast<int>(panels_.size())
               ? panels_[static_cast<std::size_t>(index)].panel.get()
               : nullptr;
}

void PrintDialog::bringForward(int index)
{
    if (index == frontIndex() || index < 0 || index > static_cast<int>(panels_.size()))
        return;
    if (!hideFront()) {
        window_->bringForward(frontIndex());
        return;
    }
    PDEPanel *panel = panelAt(index);
    host_.setFrontPanel(panel);
    if (panel)
        host_.callPanel(panel, [](PDEPanel &shown) { shown.willShow(); });
    else
        showSummary();
    window_->bringForward(index);
}

/// False when the panel in front wants to stay.
bool PrintDialog::hideFront()
{
    bool hides = true;
    if (PDEPanel *panel = panelAt(frontIndex()))
        host_.callPanel(panel, [&](PDEPanel &hidden) { hides = hidden.shouldHide(); });
    return hides;
}

void PrintDialog::showSummary()
{
    std::vector<SummarySection> sections;
    for (const Panel &entry : panels_)
        host_.callPanel(entry.panel.get(), [&](PDEPanel &panel) {
            sections.push_back({entry.title, panel.summaryInfo()});
        });
    summary_->show(sections);
}

void PrintDialog::showHelp()
{
    bool showsOwn = true;
    if (PDEPanel *panel = panelAt(frontIndex()))
        host_.callPanel(panel, [&](PDEPanel &front) { showsOwn = front.shouldShowHelp(); });
    if (showsOwn)
        notify({kHelpKey, Severity::Information, text(Text::HelpPage), {}});
}

/// A book that cannot be found leaves the dialog's own page.
void PrintDialog::showBook(const platform::HelpRequest &request)
{
    Q_EMIT helpOpened(request);
    if (!window_)
        return;
    const QString page = helpPagePath(request.bookPath, request.page);
    if (page.isNull()) {
        notify({kHelpKey, Severity::Information, text(Text::HelpPage), {}});
        return;
    }
    if (!helpWindow_)
        helpWindow_ = new HelpWindow(window_);
    helpWindow_->showPage(request.bookName, page, request.anchor);
}

void PrintDialog::showOutcome(const OfferOutcome &outcome)
{
    const Choice &offered = outcome.offered;
    const QString key = kOfferGroup + offered.option;
    if (outcome.verdict == OfferVerdict::Conflicts)
        notify({key,
                Severity::Warning,
                pairText(Text::OfferConflicts, offered, outcome.inTheWay.front()),
                {}});
    else if (outcome.verdict == OfferVerdict::Refused)
        notify({key,
                Severity::Warning,
                text(Text::OfferRefused,
                     {printer_->optionText(offered.option), printer_->choiceText(offered)}),
                {}});
}

QString PrintDialog::pairText(Text id, const Choice &one, const Choice &other) const
{
    return text(id, {printer_->optionText(one.option), printer_->choiceText(one),
                     printer_->optionText(other.option), printer_->choiceText(other)});
}

void PrintDialog::notify(const Notice &notice)
{
    if (!window_) {
        early_.push_back(notice);
        return;
    }
    window_->notices().show(notice);
    Q_EMIT noticeShown(notice.text);
}

void PrintDialog::fail(const QString &notice)
{
    notify({kJobKey, Severity::Critical, notice, {}});
    Q_EMIT jobFailed(notice);
}

void PrintDialog::setDocument(const QString &path)
{
    case_.document = path;
    if (window_)
        window_->setDocument(documentName(path));
}

QString PrintDialog::problemBeforePrinting() const
{
    if (!case_.document.isNull())
        return documentProblem(case_.document);
    return case_.queue.isNull() ? QString() : text(Text::DocumentNeeded);
}

void PrintDialog::print(Review review)
{
    if (queuePrinting_ && queuePrinting_->isSending())
        return; // one job at a time: a second press of Print prints nothing twice
    const QString problem = problemBeforePrinting();
    if (!problem.isNull()) {
        fail(problem);
        return;
    }
    const CommitResult result = commit();
    if (review == Review::Ask && !result.isClean()) {
        askForReview(result);
        return;
    }
    const Ticket ticket = makeTicket(result);
    if (case_.queue.isNull())
        printToFolder(ticket);
    else
        printToQueue(ticket);
}

void PrintDialog::askForReview(const CommitResult &result)
{
    notify({kReviewKey,
            Severity::Warning,
            reviewText(result),
            {{text(Text::GoBack), QStringLiteral("goBackButton"), [] {}},
             {text(Text::PrintAnyway), QStringLiteral("printAnywayButton"),
              [this] { print(Review::Skip); }}}});
}

QString PrintDialog::reviewText(const CommitResult &result) const
{
    QStringList lines{text(Text::ReviewHeading)};
    for (const Conflict &conflict : result.conflicts)
        lines.append(pairText(Text::ReviewConflict, conflict.one, conflict.other));
    for (const Difference &difference : result.differences)
        lines.append(text(Text::ReviewDifference,
                          {printer_->optionText(difference.option),
                           printer_->choiceText({difference.option, difference.chosen}),
                           printer_->choiceText({difference.option, difference.marked})}));
    return lines.join(u'\n');
}

JobSettings PrintDialog::jobSettings() const
{
    JobSettings settings{
        printer_->defaults(), printer_->marks(), {}, {}, host_.explicitPaperName()};
    settings.counterparts = standardCounterparts(*printer_);
    for (const auto &[option, choice] : host_.ledger().chosen())
        settings.chosen.append(option);
    settings.printSettings = host_.settings().all();
    return settings;
}

Ticket PrintDialog::makeTicket(const CommitResult &result) const
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    Ticket ticket;
    ticket.id = newJobId(now);
    ticket.time = now;
    ticket.printerName = printer_->nickName();
    ticket.ppdFile = QFileInfo(printer_->path()).fileName();
    ticket.queue = case_.queue;
    ticket.documentName = documentName(case_.document);
    ticket.settings = jobSettings();
    ticket.differences = result.differences;
    return ticket;
}

void PrintDialog::printToFolder(const Ticket &made)
{
    Ticket ticket = made;
    if (!case_.document.isNull())
        ticket.documentFile = documentFileName(case_.document);
    const QString folder = jobsFolder(case_.jobFolder);
    const JobFolderResult written = writeJobFolder(folder, ticket, case_.document);
    if (written.ticketPath.isNull())
        fail(text(Text::JobFolderFailed, {folder, written.error}));
    else
        Q_EMIT jobMade({ticket.id, jobOptions(ticket.settings), written.ticketPath});
}

void PrintDialog::printToQueue(const Ticket &ticket)
{
    const JobOptions options = jobOptions(ticket.settings);
    const QString reason = unsendableReason(options);
    if (!reason.isNull()) {
        fail(text(Text::JobUnsendable, {reason}));
        return;
    }
    if (window_)
        window_->setSending(true);
    sentPercent_ = 0;
    progressDelay_.start();
    connect(
        queuePrinting_, &QueuePrinting::finished, this,
        [this, ticket](const QueueJobResult &result) { finishQueueJob(ticket, result); },
        Qt::SingleShotConnection);
    queuePrinting_->send({ticket.documentName, case_.document, options});
}

void PrintDialog::showProgress()
{
    window_->notices().show(
        {kJobKey,
         Severity::Information,
         text(Text::SendingProgress, {case_.queue, QString::number(sentPercent_)}),
         {{text(Text::CancelJob), QStringLiteral("cancelJobButton"),
           [this] { queuePrinting_->cancel(); }}}});
}

void PrintDialog::finishQueueJob(Ticket ticket, const QueueJobResult &result)
{
    progressDelay_.stop();
    if (window_) {
        window_->setSending(false);
        window_->notices().dismiss(kJobKey);
    }
    if (result.jobId == 0) {
        fail(faultMessage(result, case_.queue));
    } else {
        ticket.jobId = result.jobId;
        // The job is printing: a ticket that cannot be written is no reason to send it again.
        const JobFolderResult written = writeJobFolder(jobsFolder(case_.jobFolder), ticket, {});
        const QString number = QString::number(result.jobId);
        const QStringList told = remarks(result, case_.queue);
        notify({kJobKey,
                told.isEmpty() ? Severity::Information : Severity::Warning,
                QStringList(QStringList{text(Text::JobSent, {number})} + told).join(u'\n'),
                {}});
        Q_EMIT jobMade({number, jobOptions(ticket.settings), written.ticketPath, told});
    }
    if (leavesAfterJob_)
        Q_EMIT left();
}

/// Modal windows of panels end first; the panels' calls return before anything is destroyed.
void PrintDialog::leave()
{
    platform::stopAllModalSessions();
    window_->hide();
    if (helpWindow_)
        helpWindow_->hide();
    leavesAfterJob_ = queuePrinting_ && queuePrinting_->isSending();
    if (leavesAfterJob_)
        queuePrinting_->cancel(); // nothing half is left behind
    else
        Q_EMIT left();
}

} // namespace dialog
