#pragma once

#include "dialog/record/control_steps.h"

#include <QEvent>
#include <QKeyCombination>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

class QShortcut;
class QShortcutEvent;

namespace dialog::record {

/// Watches a person's input in the whole application and tells it as steps, each before what it
/// sets off: the steps inside a modal window come after the one that opened it.
///
/// Controls tell their actions by signals, whose first receivers are the panels. So this watches
/// what comes before: a button's released(), the new item of a closed pop-up, the closing of an
/// open list by the event that picks. Only a stepper's keys and the text or number of a field have
/// no such forerunner and are told afterwards.
class PersonWatcher : public QObject
{
    Q_OBJECT

public:
    using Front = std::function<QWidget *()>;

    /// @p front answers the window in front; what happens elsewhere is not told, nor what happens
    /// in a file dialog or where a name and password are asked for.
    explicit PersonWatcher(Front front);
    /// What the last key did is told in another way.
    void withdrawKey();

Q_SIGNALS:
    /// Nothing that was told before changes any more.
    void settled();
    void acted(const dialog::replay::Step &step);
    /// The last step so far; another one of these may take its place, or withdrawn() comes.
    void perhapsActed(const dialog::replay::Step &step);
    void withdrawn();
    void actedWithoutName(const QWidget *control);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The event that is being delivered, or was the last one.
    struct Input
    {
        QEvent::Type type = QEvent::None;
        QKeyCombination key = Qt::Key_unknown;
        QPointer<QWidget> target = {};
        int value = 0; ///< of a target that is a stepper, before the event
    };

    void windowGets(QEvent *event);
    void widgetGets(QWidget *widget, QEvent *event);
    void loseFocus(const QWidget *widget);
    void watch(QWidget *control);
    void aimAt(QWidget *target);
    void keyPressed(QWidget *target);
    void mousePressed(QWidget *target);
    void sheetTurned(int sides);
    void shortcutGets(const QShortcut *shortcut, const QShortcutEvent *event);
    void listHides(const QComboBox *popUp);
    void modalWindowCloses(const QWidget *window);
    void buttonReleased();
    void entryPicked(const QAction *entry);
    void itemChanged(int index);
    void stepped(int value);
    void textEdited();
    void numberChanged();
    void tellEdit(QWidget *field, const MaybeStep &step);
    void settleKey();
    void settle();
    void tell(const QWidget *control, const MaybeStep &step);

    [[nodiscard]] bool isInFront(const QWidget *control) const;
    [[nodiscard]] bool isClickOf(const QAbstractButton *button) const;
    /// By a key or the wheel, without an open list or a button of its own.
    [[nodiscard]] bool isWorkedDirectly(const QWidget *control) const;

    Front front_;
    Input input_;
    bool isKeyOpen_ = false;
    QPointer<QWidget> edited_; ///< the field whose text or number was told last
};

} // namespace dialog::record
