#pragma once

#include "dialog/printers/choice.h"
#include "tests/endtoend/expected_job.h"

#include <QObject>
#include <QStringList>

class QDialog;
class QWidget;

namespace test {

/// Which of the printer maker's two panels an option's control is in, by its kind; null for an
/// option without a control.
[[nodiscard]] QString panelKindOf(const QString &option);
/// The control of an option, wherever it is in the window; null if there is none.
[[nodiscard]] QWidget *controlOf(const QWidget *window, const QString &option);

/// The choice that the option's control shows: a pop-up's keyword, "On" or "Off", a number, the
/// choice of a row. Null without a control.
[[nodiscard]] QString shownChoice(const QWidget *window, const QString &option);

/// Why a person cannot choose that now, in the panel in front; null if one can.
[[nodiscard]] QString obstacleTo(const QWidget *window, const dialog::Choice &choice);
/// Chooses it with events as from the window system, whatever kind of control it is: opens a pop-up
/// and picks the item, clicks a box (away and back where it is so already), a row or a stepper,
/// types into a field. Fails the test when a person could not.
void choose(QWidget *window, const dialog::Choice &choice);

/// Answers the windows that ask about conflicts, as they come.
class ConflictAnswers : public QObject
{
public:
    explicit ConflictAnswers(Answer answer);
    /// Object names, in the order of their coming.
    [[nodiscard]] const QStringList &windows() const { return windows_; }

private:
    void answer(QDialog *window) const;

    Answer answer_;
    QStringList windows_;
};

} // namespace test
