#pragma once

#include "dialog/conflict_desk.h"
#include "dialog/host/dialog_host.h"
#include "dialog/host/undo_history.h"
#include "dialog/job_desk.h"
#include "dialog/memory/memory.h"
#include "dialog/memory/start_plan.h"
#include "dialog/panel_stack.h"
#include "dialog/presets/preset_desk.h"
#include "dialog/print_case.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/save_desk.h"
#include "dialog/settings/general_view.h"
#include "dialog/window/notice_area.h"
#include "platform/help_viewer.h"

#include <QObject>

#include <functional>
#include <memory>
#include <variant>
#include <vector>

namespace dialog {

class HelpWindow;
class PrintWindow;
class SummaryPanel;

/// The print dialog as a whole: one printer, the panels of its plug-ins, the window, the job. It
/// owns the parts and carries words between them; what each does stands in its own file.
///
/// Must not be destroyed from inside a panel's call or a modal window of one: left() and jobMade()
/// are the moments to quit the event loop, after which it may go.
class PrintDialog : public QObject
{
    Q_OBJECT

public:
    /// The alternative is what to tell a person before the program ends.
    using Opened = std::variant<std::unique_ptr<PrintDialog>, QString>;

    /// Sets the platform values, checks the document and opens the printer; without panels so far.
    /// The case names a PPD.
    [[nodiscard]] static Opened open(const PrintCase &printCase);
    /// The same for any case, which may name a queue: its printer comes from the server on a thread
    /// of its own. @p opened is called once from the event loop, unless the answer, which belongs
    /// to @p parent, is deleted before.
    static QObject *openLater(QObject *parent, const PrintCase &printCase,
                              std::function<void(Opened)> opened);
    /// The two halves of it, for a printer that comes from elsewhere: null, or what to tell.
    [[nodiscard]] static QString prepare(const PrintCase &printCase);
    [[nodiscard]] static std::unique_ptr<PrintDialog>
    withPrinter(const PrintCase &printCase, std::unique_ptr<PpdDocument> printer);
    ~PrintDialog() override;

    /// Before showPanels(): what is remembered for this printer, and what comes along from the
    /// printers before, stands in it. Without it, the printer starts with its defaults.
    void begin(const Recollection &recollection, const Carried &carried);
    [[nodiscard]] const StartPlan &start() const { return start_; }
    [[nodiscard]] RememberedPrinter remembered() const;
    /// Once the panels are shown. Does nothing without a memory.
    void rememberWindow();

    /// Loads the plug-ins that the PPD names, restores their panels from what is marked, and shows
    /// the window with the first one in front. Does nothing the second time.
    void showPanels();
    /// The same in a window that outlives this dialog, and loses the panels with it.
    void showPanelsIn(PrintWindow &window);
    [[nodiscard]] bool hasShownPanels() const { return window_ != nullptr; }

    [[nodiscard]] const PrintCase &printCase() const { return case_; }
    [[nodiscard]] PpdDocument &printer() const { return *printer_; }
    [[nodiscard]] DialogHost &host() { return host_; }
    [[nodiscard]] PanelStack &panels() { return panels_; }
    [[nodiscard]] const PanelStack &panels() const { return panels_; }
    [[nodiscard]] JobDesk &desk() { return desk_; }
    [[nodiscard]] const PresetDesk &presets() const { return presets_; }
    /// Null before showPanels().
    [[nodiscard]] SaveDesk *saving() const { return saving_.get(); }
    /// Null before showPanels().
    [[nodiscard]] PrintWindow *window() const { return window_; }

    /// A person sits in front of the window, who can be asked for a name and password.
    void offerSignIn();
    /// Makes a change of several settings that a person can take back: a notice names it and offers
    /// that. @p function changes what is set, in whatever way.
    void changeWithUndo(const QString &title, const std::function<void()> &function)
    {
        history_.change(title, function);
    }

    CommitResult commit() { return host_.commitPanels(); }
    void setDocument(const QString &path);
    /// Commits and prints, or shows a notice that says why not.
    void print(Review review) { desk_.print(review); }

Q_SIGNALS:
    /// What is marked and set by now is what the panels will see.
    void aboutToShowPanels();
    void jobMade(const dialog::JobRecord &job);
    void jobFailed(const QString &notice);
    /// A person saves the job, or its ticket, to a file; it is not there so far.
    void fileNamed(dialog::SaveKind kind);
    /// A PDF file or a ticket is there, or why it is not.
    void fileSaved(const QString &file);
    void saveFailed(const QString &notice);
    void noticeShown(const QString &notice);
    void helpOpened(const platform::HelpRequest &request);
    void left();

private:
    PrintDialog(const PrintCase &printCase, std::unique_ptr<PpdDocument> printer);

    void connectParts();
    void connectWindow();
    void buildPresets();
    void buildGeneral();
    void buildPanels();
    [[nodiscard]] SummaryPanel *makeSummary();
    void showHelp();
    void showOwnHelp();
    void showBook(const platform::HelpRequest &request);
    void rememberJob(const JobRecord &job);
    void offerUndo(const QString &title);
    void notify(const Notice &notice);
    void takeChange();
    void showPreview();
    void askToSignIn(const SignInQuestion &question);
    [[nodiscard]] GeneralState generalState() const;
    void setSettings(const SettingChanges &changes);
    void choose(const Choice &choice);
    void leave();

    // In the order of their dependence: the views go first, then the panels, at last the PPD.
    PrintCase case_;
    std::unique_ptr<PpdDocument> printer_;
    DialogHost host_;
    UndoHistory history_;
    ConflictDesk conflicts_;
    JobDesk desk_;
    PanelStack panels_;
    PresetDesk presets_;
    std::unique_ptr<PrintWindow> ownWindow_;
    std::unique_ptr<SaveDesk> saving_;
    PrintWindow *window_ = nullptr;    ///< this or another's; null until the panels are shown
    GeneralView *general_ = nullptr;   ///< the window's
    std::vector<Notice> early_;        ///< shown as soon as there is a window
    HelpWindow *helpWindow_ = nullptr; ///< belongs to the window
    StartPlan start_;
    WindowMemory startWindow_;
    bool leavesAfterJob_ = false;
    platform::HelpOpener formerHelpOpener_;
};

} // namespace dialog
