#include "dialog/print_dialog.h"

#include "dialog/jobs/document.h"
#include "dialog/panels/features_panel.h"
#include "dialog/panels/layout_panel.h"
#include "dialog/panels/summary_panel.h"
#include "dialog/preview/job_look.h"
#include "dialog/preview/preview_pane.h"
#include "dialog/printers/errand.h"
#include "dialog/printers/ppd_cache.h"
#include "dialog/printers/standard_options.h"
#include "dialog/texts.h"
#include "dialog/window/conflict_sheet.h"
#include "dialog/window/help_window.h"
#include "dialog/window/print_window.h"
#include "dialog/window/printer_words.h"
#include "dialog/window/sign_in_prompt.h"
#include "platform/controls/modal_session.h"
#include "platform/values.h"

#include <QFileInfo>
#include <QTimer>

#include <utility>

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

QObject *openQueueLater(QObject *parent, const PrintCase &printCase,
                        std::function<void(PrintDialog::Opened)> opened)
{
    const auto open = [queue = printCase.queue, times = printCase.serverTimes] {
        return openQueuePrinter(queue, times);
    };
    const auto take = [printCase, opened](std::optional<QueuePrinter> answer) {
        QueuePrinter printer = answer ? std::move(*answer) : silentPrinter();
        if (printer.printer)
            opened(PrintDialog::withPrinter(printCase, std::move(printer.printer)));
        else
            opened(printerProblem(printer, printCase.queue));
    };
    return runErrand<QueuePrinter>(parent, printCase.serverTimes.printer, open, take);
}

const QString kUndoKey = QStringLiteral("undo");
const QString kHelpKey = QStringLiteral("help");

/// Options of the PPD that the window's own sections show.
QStringList shownElsewhere(const PpdDocument &printer)
{
    return {QStringLiteral("PageSize"), QStringLiteral("PageRegion"),
            counterpartOf(QStringLiteral("sides"), standardCounterparts(printer))};
}

} // namespace

QString PrintDialog::prepare(const PrintCase &printCase)
{
    setPlatformValues(printCase);
    installTexts();
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
    if (printCase.ppd.isNull())
        return QStringLiteral("no printer; name one with --ppd FILE or --queue NAME");
    PpdDocument::Opened opened = PpdDocument::open(printCase.ppd);
    if (const auto *error = std::get_if<PpdError>(&opened))
        return error->message();
    return withPrinter(printCase, std::move(std::get<std::unique_ptr<PpdDocument>>(opened)));
}

QObject *PrintDialog::openLater(QObject *parent, const PrintCase &printCase,
                                std::function<void(Opened)> opened)
{
    const bool isQueue = printCase.ppd.isNull() && !printCase.queue.isNull();
    if (isQueue && prepare(printCase).isNull())
        return openQueueLater(parent, printCase, std::move(opened));
    auto *soon = new QObject(parent);
    QTimer::singleShot(0, soon, [=] {
        soon->deleteLater();
        opened(open(printCase));
    });
    return soon;
}

PrintDialog::PrintDialog(const PrintCase &printCase, std::unique_ptr<PpdDocument> printer)
    : case_(printCase), printer_(std::move(printer)), host_(*printer_), history_(host_),
      conflicts_(*printer_, host_, history_), desk_(case_, *printer_, host_), panels_(host_),
      presets_(*printer_, host_,
               [this](const QString &title, const auto &change) { changeWithUndo(title, change); })
{
    host_.followPageSize();
    formerHelpOpener_ = platform::setHelpOpener(
        [this](const platform::HelpRequest &request) { showBook(request); });
    connectParts();
}

PrintDialog::~PrintDialog()
{
    platform::setHelpOpener(formerHelpOpener_);
    host_.setFrontPanel(nullptr);
    host_.setPanels({});
    saving_.reset();
    if (window_ && !ownWindow_) {
        delete helpWindow_;
        window_->clearPanels();
    }
    ownWindow_.reset();
}

void PrintDialog::connectParts()
{
    connect(&history_, &UndoHistory::changed, this, &PrintDialog::offerUndo);
    connect(&conflicts_, &ConflictDesk::noticed, this, &PrintDialog::notify);
    connect(&conflicts_, &ConflictDesk::asked, this, &PrintDialog::noticeShown);
    connect(&host_, &DialogHost::stateChanged, this, &PrintDialog::takeChange);
    connect(&panels_, &PanelStack::noticed, this, &PrintDialog::notify);
    connect(&desk_, &JobDesk::noticed, this, &PrintDialog::notify);
    connect(&desk_, &JobDesk::jobMade, this, &PrintDialog::jobMade);
    connect(&desk_, &JobDesk::jobFailed, this, &PrintDialog::jobFailed);
    connect(&desk_, &JobDesk::idle, this, [this] {
        if (leavesAfterJob_)
            Q_EMIT left();
    });
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
    panels_.load(*printer_,
                 case_.root.isNull() ? TrustedOwner::RootOnly : TrustedOwner::RootAndUser);
    window_ = &window;
    connectWindow();
    buildPresets();
    buildGeneral();
    buildPanels();
    showPreview();
    saving_ = std::make_unique<SaveDesk>(desk_, *window_);
    connect(saving_.get(), &SaveDesk::noticed, this, &PrintDialog::notify);
    connect(saving_.get(), &SaveDesk::saved, this, &PrintDialog::fileSaved);
    connect(saving_.get(), &SaveDesk::failed, this, &PrintDialog::saveFailed);
    window_->fitContents();
    window_->show();
    window_->activateWindow();
    for (const Notice &notice : std::exchange(early_, {}))
        notify(notice);
    desk_.settleEarlier();
}

void PrintDialog::connectWindow()
{
    connect(window_, &PrintWindow::panelPicked, &panels_, &PanelStack::bringForward);
    connect(window_, &PrintWindow::helpRequested, this, &PrintDialog::showHelp);
    connect(window_, &PrintWindow::printRequested, &desk_, [this] { print(Review::Ask); });
    connect(window_, &PrintWindow::left, this, &PrintDialog::leave);
    connect(&desk_, &JobDesk::sendingChanged, window_, &PrintWindow::setSending);
    connect(&desk_, &JobDesk::progressed, &window_->notices(),
            qOverload<const Notice &>(&NoticeArea::show));
    connect(&desk_, &JobDesk::dismissed, &window_->notices(), &NoticeArea::dismiss);
    connect(&host_, &DialogHost::panelResized, window_, &PrintWindow::fitContents);
    connect(&conflicts_, &ConflictDesk::dismissed, &window_->notices(), &NoticeArea::dismissGroup);
    conflicts_.setSheet(&window_->conflictSheet());
    connect(window_, &PrintWindow::resetRequested, this, &PrintDialog::resetToDefaults);
    connect(window_, &PrintWindow::undoRequested, &history_, &UndoHistory::undo);
    connect(window_, &PrintWindow::redoRequested, &history_, &UndoHistory::redo);
    // There is something newer to undo, or nothing any more.
    connect(&host_, &DialogHost::actionBegan, &window_->notices(),
            [this] { window_->notices().dismiss(kUndoKey); });
    connect(&history_, &UndoHistory::undone, &window_->notices(),
            [this] { window_->notices().dismiss(kUndoKey); });
}

void PrintDialog::buildPresets()
{
    connect(&presets_, &PresetDesk::noticed, this, &PrintDialog::notify);
    connect(&presets_, &PresetDesk::dismissed, &window_->notices(), &NoticeArea::dismiss);
    PresetBar *bar = presets_.makeBar();
    connect(bar, &PresetBar::heightChanged, window_, &PrintWindow::fitContents);
    window_->setPresets(bar);
}

void PrintDialog::buildGeneral()
{
    general_ = new GeneralView;
    general_->show(generalState());
    window_->setGeneral(general_);
    connect(general_, &GeneralView::settingsChanged, this, &PrintDialog::setSettings);
    connect(general_, &GeneralView::chosen, this, &PrintDialog::choose);
    connect(general_, &GeneralView::problemChanged, window_, &PrintWindow::setPrintProblem);
    connect(general_, &GeneralView::heightChanged, window_, &PrintWindow::fitContents);
    connect(&window_->preview(), &PreviewPane::pageCountKnown, general_,
            &GeneralView::setPageCount);
    connect(&host_, &DialogHost::stateReplaced, general_,
            [this] { general_->reset(generalState()); });
}

void PrintDialog::buildPanels()
{
    auto *layout = new LayoutPanel(host_.settings());
    connect(layout, &LayoutPanel::settingsChanged, this, &PrintDialog::setSettings);
    std::vector<OwnPanel *> following;
    auto features = std::make_unique<FeaturesPanel>(
        *printer_, host_, panels_.claimedOptions() + shownElsewhere(*printer_));
    if (!features->isEmpty())
        following.push_back(features.release());
    following.push_back(makeSummary());
    panels_.showIn(*window_, {layout}, following);
    panels_.bringForward(panels_.firstIndex());
}

SummaryPanel *PrintDialog::makeSummary()
{
    return new SummaryPanel(
        panels_, host_,
        {[this] { return printer_->groups(); }, [this] { return desk_.jobSettings(); }});
}

void PrintDialog::offerSignIn()
{
    desk_.offerSignIn();
    connect(&desk_, &JobDesk::signInWanted, this, &PrintDialog::askToSignIn);
}

/// The question goes with its answer, or with the job that gave rise to it.
void PrintDialog::askToSignIn(const SignInQuestion &question)
{
    auto *prompt = new SignInPrompt(question, case_.queue);
    window_->showQuestion(prompt);
    prompt->takeFocus();
    connect(&desk_, &JobDesk::idle, prompt, &QObject::deleteLater);
    connect(prompt, &SignInPrompt::cancelPressed, &desk_, &JobDesk::cancel);
    connect(prompt, &SignInPrompt::signInPressed, this, [this, prompt] {
        prompt->deleteLater();
        desk_.signIn(prompt->takeCredentials());
    });
}

void PrintDialog::showPreview()
{
    PreviewPane &preview = window_->preview();
    preview.setLook(sheetLook(*printer_, host_.state()));
    preview.setDocument(case_.document);
}

/// Everything that shows what is set follows here.
void PrintDialog::takeChange()
{
    if (!window_)
        return;
    general_->show(generalState());
    window_->preview().setLook(sheetLook(*printer_, host_.state()));
    panels_.refreshFront();
}

GeneralState PrintDialog::generalState() const
{
    const PrintSettingsMap &settings = host_.settings().all();
    return {settings, paperList(*printer_, settings, host_.explicitPaperName()),
            sidesList(*printer_, settings)};
}

void PrintDialog::setSettings(const SettingChanges &changes)
{
    for (const auto &[key, value] : changes)
        host_.setSetting(key, value);
}

/// A refused one goes back to what holds.
void PrintDialog::choose(const Choice &choice)
{
    static_cast<void>(host_.choose(choice));
    takeChange();
}

void PrintDialog::showHelp()
{
    if (panels_.wantsOwnHelp())
        showOwnHelp();
}

void PrintDialog::showOwnHelp()
{
    notify({kHelpKey,
            Severity::Information,
            tr("Choose a group of settings from the pop-up menu, change what you need, and press "
               "Print. Where the printer cannot combine a choice with another one, the window says "
               "which one is in the way, and what could change instead."),
            {}});
}

/// A book that cannot be found leaves the dialog's own page.
void PrintDialog::showBook(const platform::HelpRequest &request)
{
    Q_EMIT helpOpened(request);
    if (!window_)
        return;
    const QString page = helpPagePath(request.bookPath, request.page);
    if (page.isNull()) {
        showOwnHelp();
        return;
    }
    if (!helpWindow_)
        helpWindow_ = new HelpWindow(window_);
    helpWindow_->showPage(request.bookName, page, request.anchor);
}

/// The printer's, and nothing said beside them.
void PrintDialog::resetToDefaults()
{
    changeWithUndo(tr("Reset to Defaults"), [this] {
        host_.setState({printer_->defaults(), {}, {}, {}});
    });
}

void PrintDialog::offerUndo(const QString &title)
{
    notify({kUndoKey,
            Severity::Information,
            tr("Changed: %1").arg(title),
            {{tr("Undo"), QStringLiteral("undoButton"), [this] { history_.undo(); }}}});
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

void PrintDialog::setDocument(const QString &path)
{
    case_.document = path;
    desk_.setDocument(path);
    if (!window_)
        return;
    window_->setDocument(documentName(path));
    window_->preview().setDocument(path);
}

/// Modal windows of panels end first; the panels' calls return before anything is destroyed.
void PrintDialog::leave()
{
    platform::stopAllModalSessions();
    window_->hide();
    if (helpWindow_)
        helpWindow_->hide();
    leavesAfterJob_ = desk_.isSending();
    if (leavesAfterJob_)
        desk_.cancel(); // nothing half is left behind
    else
        Q_EMIT left();
}

} // namespace dialog
