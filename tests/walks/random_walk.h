#pragma once

#include "dialog/print_dialog.h"

#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>
#include <random>

class QWidget;

namespace test {

/// A person who does not know what they want: takes any control of the print dialog that can be
/// reached, again and again, with mouse and keyboard. The same seed walks the same way.
///
/// After each step of it: the window is there and answers; nothing is set otherwise than before but
/// what the step was for, and what a rule of the table in the source file changes with it. A
/// failure names the steps so far, as lines of a scenario.
class RandomWalk
{
public:
    RandomWalk(const QString &ppd, int systemVersion, unsigned seed);
    ~RandomWalk();

    void take(int steps);
    /// Shows the summary, and compares it with every mark of the PPD.
    void expectSummaryToSayEveryMark();
    /// Prints into a job folder, whatever has come together.
    void expectAJob();
    /// Opens another dialog with what that job had, and compares what it would print.
    void expectTheSameJobNextTime();
    [[nodiscard]] int stepsTaken() const { return static_cast<int>(story_.size()); }

private:
    /// What one step is about to do.
    struct Deed
    {
        QPointer<QWidget> control;
        QString line; ///< of a scenario
        std::function<QString()> act;
    };

    void takeStep();
    [[nodiscard]] std::vector<QWidget *> reachable() const;
    [[nodiscard]] Deed deedFor(QWidget *control);
    void expectOnlyExplainedChanges(const dialog::ChoiceState &before, const Deed &deed);
    [[nodiscard]] QString optionOf(const QString &control) const;
    void answerModalWindow();
    [[nodiscard]] int below(int limit);

    QTemporaryDir jobs_;
    dialog::PrintCase case_;
    std::mt19937 random_;
    std::unique_ptr<dialog::PrintDialog> dialog_;
    QTimer hand_; ///< answers the modal windows that a step opens
    QStringList story_;
};

} // namespace test
