#pragma once

#include "dialog/print_dialog.h"
#include "dialog/replay/report.h"
#include "dialog/replay/scenario.h"

#include "platform/console.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <vector>

class QAbstractButton;
class QDialog;

namespace dialog::replay {

struct PlayerOptions
{
    QString pictures; ///< folder; null takes none
    QString saves;    ///< folder for the files that the scenario saves; null lets none be saved
    Naming naming = Naming::Actual;
};

/// Exit status of a replay.
enum class Outcome { AllDone = 0, StepFailed = 1, NotStarted = 2 };

/// Plays a scenario as a state machine that is driven by events: each turn of the event loop,
/// whichever loop that is, performs one step. The next turn is ordered before a step begins, so
/// that the steps after one that opens a modal window run inside that window's loop.
class Player : public QObject
{
    Q_OBJECT

public:
    Player(PrintCase printCase, Scenario scenario, PlayerOptions options);
    ~Player() override;

    void start();
    [[nodiscard]] const Report &report() const { return report_; }

Q_SIGNALS:
    /// The printer is open; its panels come later.
    void dialogOpened(dialog::PrintDialog &opened);
    /// Before each step that is not played as a person's input.
    void commanded(const dialog::replay::Step &step);
    /// Once, from the outermost event loop or on the way to it.
    void finished(dialog::replay::Outcome outcome, const QString &message);
    /// Nobody looks at the window: its notices are told here too.
    void noticeShown(const QString &notice);

private:
    void takeTurn();
    void showPanels();
    void perform(const Step &step);
    [[nodiscard]] bool isUnwinding();
    [[nodiscard]] bool isWriting() const;
    void fail(const Step &step, const QString &error);
    void finish(Outcome outcome, const QString &message);

    void openPrinter();
    void takePrinter(PrintDialog::Opened opened);
    void watchProcess();
    void watchDialog();
    void clipboardChanged();
    void stepEnded(const QString &error);

    // Steps: null when done, else what is wrong.
    [[nodiscard]] QString run(const Step &step);
    [[nodiscard]] QString runOnControl(const Step &step);
    [[nodiscard]] QString setCase(const Step &step);
    [[nodiscard]] QString mark(const Choice &choice);
    [[nodiscard]] QString show(const QString &panel);
    [[nodiscard]] QString pressKey(const QString &name);
    [[nodiscard]] QString close(const QString &window);
    [[nodiscard]] QString takePicture(const QString &name);
    [[nodiscard]] QString awaitPreview();
    [[nodiscard]] QString expect(const QString &pointer, const QString &value);
    [[nodiscard]] QString print(const QStringList &arguments);
    [[nodiscard]] QString saveFile(const QString &name, void (SaveDesk::*save)(const QString &));
    [[nodiscard]] QJsonObject quietSnapshot();

    [[nodiscard]] QWidget *frontWindow() const;
    [[nodiscard]] std::vector<QWidget *> reachableControls() const;
    [[nodiscard]] QString pathBesideScenario(const QString &path) const;

    PrintCase case_;
    Scenario scenario_;
    PlayerOptions options_;
    Report report_;
    platform::ConsoleSink formerSink_;
    std::unique_ptr<PrintDialog> dialog_;
    QTimer turn_;
    std::size_t next_ = 0;
    const Step *awaited_ = nullptr; ///< the step that goes on when its job or file is there
    bool isQuiet_ = false;          ///< looking at a panel is not part of what happened
    bool hasLeft_ = false;
    bool isFinished_ = false;
    std::vector<QPointer<QDialog>> modalWindows_;
    int turnsWaited_ = 0;
};

} // namespace dialog::replay
