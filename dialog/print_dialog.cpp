#include "dialog/print_dialog.h"

#include "dialog/jobs/document.h"
#include "dialog/memory/memory_messages.h"
#include "dialog/panels/features_panel.h"
#include "dialog/panels/layout_panel.h"
#include "dialog/panels/summary_panel.h"
#include "dialog/preview/job_look.h"
#include "dialog/preview/preview_pane.h"
#include "dialog/printers/ppd_cache.h"
#include "dialog/settings/printer_lists.h"
#include "dialog/texts.h"
#include "dialog/threads/errand.h"
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

using Opened = PrintDialog::Opened;

/// Hands a dialog on as soon as it has begun with what is remembered. The scope goes then.
void beginLater(QObject *scope, Opened opened, const std::function<void(Opened)> &done)
{
    auto *dialog = std::get_if<std::unique_ptr<PrintDialog>>(&opened);
    const auto memory = dialog ? (*dialog)->printCase().memory : nullptr;
    if (!memory) {
        scope->deleteLater();
        done(std::move(opened));
        return;
    }
    const auto held = std::make_shared<std::unique_ptr<PrintDialog>>(std::move(*dialog));
    memory->recall(scope, (*held)->remembered(), [=](const Recollection &recollection) {
        scope->deleteLater();
        (*held)->begin(recollection, {});
        done(std::move(*held));
    });
}

void openQueueLater(QObject *scope, const PrintCase &printCase, std::function<void(Opened)> done)
{
    const auto open = [queue = printCase.queue, times = printCase.serverTimes] {
        return openQueuePrinter(queue, times);
    };
    const auto take = [scope, printCase, done](std::optional<QueuePrinter> answer) {
        QueuePrinter printer = answer ? std::move(*answer) : silentPrinter();
        beginLater(scope,
                   printer.printer
                       ? Opened(PrintDialog::withPrinter(printCase, std::move(printer.printer)))
                       : Opened(printerProblem(printer, printCase.queue)),
                   done);
    };
    runErrand<QueuePrinter>(scope, printCase.serverTimes.printer, open, take);
}

const QString kUndoKey = QStringLiteral("undo");
const QString kHelpKey = QStringLiteral("help");

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
    auto *scope = new QObject(parent);
    const bool isQueue = printCase.ppd.isNull() && !printCase.queue.isNull();
    if (isQueue && prepare(printCase).isNull())
        openQueueLater(scope, printCase, std::move(opened));
    else
        QTimer::singleShot(0, scope, [=] { beginLater(scope, open(printCase), opened); });
    return scope;
}

PrintDialog::PrintDialog(const PrintCase &printCase, std::unique_ptr<PpdDocument> printer)
    : case_(printCase), printer_(std::move(printer)), host_(*printer_), history_(host_),
      conflicts_(*printer_, host_, history_), desk_(case_, *printer_, host_), panels_(host_),
      presets_(
          *printer_, host_,
          [this](const QString &title, const auto &change) { changeWithUndo(title, change); },
          case_.files)
{
    host_.followPageSize();
    formerHelpOpener_ = platform::setHelpOpener(
        [this](const platform::HelpRequest &request) { showBook(request); });
    connectParts();
    start_ = planStart({.marks = printer_->marks()}, *printer_);
    presets_.start(start_);
}

PrintDialog::~PrintDialog()
{
    platform::setHelpOpener(formerHelpOpener_);
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
    connect(&presets_, &PresetDesk::noticed, this, &PrintDialog::notify);
    connect(&desk_, &JobDesk::jobMade, this, &PrintDialog::rememberJob);
    connect(&desk_, &JobDesk::noticed, this, &PrintDialog::notify);
    connect(&desk_, &JobDesk::jobMade, this, &PrintDialog::jobMade);
    connect(&desk_, &JobDesk::jobFailed, this, &PrintDialog::jobFailed);
    connect(&desk_, &JobDesk::idle, this, [this] {
        if (leavesAfterJob_)
            Q_EMIT left();
    });
}

RememberedPrinter PrintDialog::remembered() const
{
    return rememberedPrinter(case_.queue, *printer_);
}

void PrintDialog::begin(const Recollection &recollection, const Carried &carried)
{
    startWindow_ = recollection.window;
    for (const QString &text : MemoryMessages::of(recollection))
        notify({QStringLiteral("memory:") + text, Severity::Warning, text, {}});
    start_ = planStart({printer_->marks(), recollection.settings, carried}, *printer_);
    presets_.start(start_);
    if (start_.state != host_.state())
        host_.setState(start_.state);
}

void PrintDialog::rememberJob(const JobRecord &job)
{
    if (!case_.memory)
        return;
    const JobSettings &settings = job.settings;
    const PresetContent content =
        contentOf({settings.marks, settings.printSettings, settings.paperName}, *printer_);
    presets_.setLastUsed(content);
    case_.memory->keepSettings(remembered(), content);
    rememberWindow();
}

void PrintDialog::rememberWindow()
{
    const int front = panels_.frontIndex();
    if (case_.memory && window_)
        case_.memory->keepWindow(
            {window_->personsSize(), front < 0 ? QString() : panels_.kind(front)});
}

void PrintDialog::showPanels()
{
    if (window_)
        return;
    ownWindow_ = std::make_unique<PrintWindow>(printer_->nickName(), documentName(case_.document));
    ownWindow_->setPersonsSize(startWindow_.size);
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
    presets_.takePanels();
    showPreview();
    saving_ = std::make_unique<SaveDesk>(desk_, *window_);
    connect(saving_.get(), &SaveDesk::noticed, this, &PrintDialog::notify);
    connect(saving_.get(), &SaveDesk::fileNamed, this, &PrintDialog::fileNamed);
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
    connect(window_, &PrintWindow::resetRequested, &presets_, &PresetDesk::reset);
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
        *printer_, host_, panels_.claimedOptions() + optionsOfTheWindow(*printer_));
    if (!features->isEmpty())
        following.push_back(features.release());
    following.push_back(makeSummary());
    panels_.showIn(*window_, {layout}, following);
    const int remembered = panels_.indexOf(startWindow_.panel);
    panels_.bringForward(remembered < 0 ? panels_.firstIndex() : remembered);
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
    rememberWindow();
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
