#include "dialog/record/person_watcher.h"

#include "dialog/preview/sheet_view.h"
#include "dialog/window/sign_in_prompt.h"
#include "platform/controls/modal_session.h"
#include "platform/controls/stepper.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QSpinBox>

namespace dialog::record {
namespace {

using replay::Step;
using replay::StepKind;

bool isModifier(int key)
{
    return key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock;
}

/// What other keys do in a field shows in its text.
bool leavesField(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return ||
           key == Qt::Key_Enter || key == Qt::Key_Escape;
}

bool toldByControl(const QWidget *target, int key)
{
    if (qobject_cast<const QLineEdit *>(target) || qobject_cast<const QSpinBox *>(target))
        return !leavesField(key);
    // The release does it, and the button tells that.
    return qobject_cast<const QAbstractButton *>(target) && key == Qt::Key_Space;
}

/// Null for a key that a scenario cannot name.
QString nameOf(QKeyCombination key)
{
    const QString name = QKeySequence(key).toString(QKeySequence::PortableText);
    const QKeySequence again(name);
    return again.count() == 1 && again[0] == key ? name : QString();
}

/// Where names, passwords and paths are typed; with the questions that a file dialog asks itself.
bool isPrivate(const QWidget *control)
{
    while (control && !qobject_cast<const SignInPrompt *>(control) &&
           !qobject_cast<const QFileDialog *>(control))
        control = control->parentWidget();
    return control != nullptr;
}

const QComboBox *popUpOfList(const QWidget *widget)
{
    return widget->isWindow() ? qobject_cast<const QComboBox *>(widget->parent()) : nullptr;
}

} // namespace

PersonWatcher::PersonWatcher(Front front) : front_(std::move(front))
{
    qApp->installEventFilter(this);
    connect(&platform::ModalSessions::shared(), &platform::ModalSessions::opened, this,
            &PersonWatcher::settle);
}

/// A window gets each event of the window system first, and once; but a key is offered as a
/// shortcut before that, which is when an open list takes it.
bool PersonWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWindowType() || event->type() == QEvent::ShortcutOverride)
        windowGets(event);
    else if (watched->isWidgetType())
        widgetGets(static_cast<QWidget *>(watched), event);
    else if (event->type() == QEvent::Shortcut)
        shortcutGets(qobject_cast<QShortcut *>(watched), static_cast<QShortcutEvent *>(event));
    return false;
}

void PersonWatcher::windowGets(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        settleKey();
        input_ = {QEvent::KeyPress, static_cast<QKeyEvent *>(event)->keyCombination()};
        break;
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        settleKey();
        input_ = {event->type()};
        break;
    default:
        break;
    }
}

void PersonWatcher::widgetGets(QWidget *widget, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
        watch(widget);
        break;
    case QEvent::KeyPress:
        if (!input_.target)
            keyPressed(widget);
        break;
    case QEvent::MouseButtonPress:
        if (!input_.target)
            mousePressed(widget);
        break;
    case QEvent::Wheel: // comes to one widget after the other, until one takes it
        input_ = {QEvent::Wheel};
        aimAt(widget);
        break;
    case QEvent::FocusOut:
        loseFocus(widget);
        break;
    case QEvent::Show:
        if (widget->windowType() == Qt::Popup)
            withdrawKey(); // what it opened tells what is picked there
        break;
    case QEvent::Hide:
        if (const QComboBox *popUp = popUpOfList(widget))
            listHides(popUp);
        break;
    case QEvent::Close:
        if (event->spontaneous())
            modalWindowCloses(widget);
        break;
    default:
        break;
    }
}

/// Ends an edit; a button that is down is let go.
void PersonWatcher::loseFocus(const QWidget *widget)
{
    if (widget == edited_)
        edited_ = nullptr;
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (button && button->isDown())
        input_.type = QEvent::FocusOut;
}

void PersonWatcher::watch(QWidget *control)
{
    if (auto *button = qobject_cast<QAbstractButton *>(control))
        connect(button, &QAbstractButton::released, this, &PersonWatcher::buttonReleased,
                Qt::UniqueConnection);
    else if (auto *popUp = qobject_cast<QComboBox *>(control))
        connect(popUp, &QComboBox::currentIndexChanged, this, &PersonWatcher::itemChanged,
                Qt::UniqueConnection);
    else if (auto *menu = qobject_cast<QMenu *>(control))
        connect(menu, &QMenu::triggered, this, &PersonWatcher::entryPicked, Qt::UniqueConnection);
    else if (auto *stepper = qobject_cast<Stepper *>(control))
        connect(stepper, &Stepper::stepped, this, &PersonWatcher::stepped, Qt::UniqueConnection);
    else if (auto *number = qobject_cast<QSpinBox *>(control))
        connect(number, &QSpinBox::valueChanged, this, &PersonWatcher::numberChanged,
                Qt::UniqueConnection);
    else if (auto *sheet = qobject_cast<SheetView *>(control))
        connect(sheet, &SheetView::turned, this, &PersonWatcher::sheetTurned, Qt::UniqueConnection);
    else if (auto *field = qobject_cast<QLineEdit *>(control);
             field && !qobject_cast<QSpinBox *>(field->parent()))
        connect(field, &QLineEdit::textEdited, this, &PersonWatcher::textEdited,
                Qt::UniqueConnection);
}

void PersonWatcher::aimAt(QWidget *target)
{
    input_.target = target;
    if (const auto *stepper = qobject_cast<const Stepper *>(target))
        input_.value = stepper->value();
}

/// A key is told as such until it turns out to be something that has a step of its own.
void PersonWatcher::keyPressed(QWidget *target)
{
    aimAt(target);
    const int key = input_.key.key();
    const QString name = nameOf(input_.key);
    if (QApplication::activePopupWidget() || name.isNull() || isModifier(key) ||
        toldByControl(target, key) || !isInFront(target))
        return;
    settle();
    isKeyOpen_ = true;
    Q_EMIT perhapsActed({StepKind::Key, {name}, 0});
    QMetaObject::invokeMethod(this, &PersonWatcher::settleKey, Qt::QueuedConnection);
}

/// A preview takes keys once it has been pressed.
void PersonWatcher::mousePressed(QWidget *target)
{
    aimAt(target);
    if (const auto *sheet = qobject_cast<const SheetView *>(target->parentWidget()))
        tell(sheet, stepForClick(sheet));
}

/// Keys tell themselves.
void PersonWatcher::sheetTurned(int sides)
{
    const auto *sheet = qobject_cast<const SheetView *>(sender());
    for (int side = 0; input_.type == QEvent::Wheel && side < qAbs(sides); ++side)
        tell(sheet, stepForWheel(sheet, -sides));
}

/// A key that is a shortcut comes to no widget as a key.
void PersonWatcher::shortcutGets(const QShortcut *shortcut, const QShortcutEvent *event)
{
    const auto *owner = shortcut ? qobject_cast<const QWidget *>(shortcut->parent()) : nullptr;
    const QString name = event->key().toString(QKeySequence::PortableText);
    if (owner && !name.isEmpty())
        tell(owner, Step{StepKind::Key, {name}, 0});
}

/// Pressed outside, or with Escape, nothing is picked.
void PersonWatcher::listHides(const QComboBox *popUp)
{
    const bool isCancel = input_.key == QKeyCombination(Qt::Key_Escape);
    const bool picks =
        input_.type == QEvent::MouseButtonRelease || (input_.type == QEvent::KeyPress && !isCancel);
    const QModelIndex picked = popUp->view()->currentIndex();
    if (picks && picked.isValid())
        tell(popUp, stepForItem(popUp, picked.row()));
}

void PersonWatcher::modalWindowCloses(const QWidget *window)
{
    if (window == QApplication::activeModalWidget())
        tell(window, Step{StepKind::Close, {window->objectName()}, 0});
}

void PersonWatcher::buttonReleased()
{
    const auto *button = qobject_cast<const QAbstractButton *>(sender());
    if (isClickOf(button))
        tell(button, stepForButton(button));
}

/// A button is released, too, when the pointer leaves it, when it loses the focus or is disabled
/// while it is down, and by Escape.
bool PersonWatcher::isClickOf(const QAbstractButton *button) const
{
    const bool isRepeated = button->isDown();
    const bool isEscape =
        input_.type == QEvent::KeyPress && input_.key == QKeyCombination(Qt::Key_Escape);
    const bool isLeft = input_.type == QEvent::MouseMove || input_.type == QEvent::FocusOut;
    return button->isEnabled() && !isEscape && (isRepeated || !isLeft);
}

/// With the button that opened the menu; a menu that was left without a pick tells nothing.
void PersonWatcher::entryPicked(const QAction *entry)
{
    const auto *menu = qobject_cast<const QMenu *>(sender());
    const auto *button = qobject_cast<const QAbstractButton *>(menu->parentWidget());
    if (!button)
        return;
    tell(button, stepForButton(button));
    tell(button, stepForEntry(entry));
}

bool PersonWatcher::isWorkedDirectly(const QWidget *control) const
{
    return control == input_.target &&
           (input_.type == QEvent::KeyPress || input_.type == QEvent::Wheel);
}

void PersonWatcher::itemChanged(int index)
{
    const auto *popUp = qobject_cast<const QComboBox *>(sender());
    if (!isWorkedDirectly(popUp))
        return;
    input_.target = nullptr; // what the action selects then is not a person's pick
    tell(popUp, stepForItem(popUp, index));
}

void PersonWatcher::stepped(int value)
{
    const auto *stepper = qobject_cast<const Stepper *>(sender());
    if (!isWorkedDirectly(stepper))
        return;
    input_.target = nullptr;
    const int way = value - input_.value;
    const int increment = qMax(1, stepper->increment());
    for (int done = 0; done < qAbs(way); done += increment)
        tell(stepper, stepForStepper(stepper, way));
}

void PersonWatcher::textEdited()
{
    auto *field = qobject_cast<QLineEdit *>(sender());
    tellEdit(field, stepForText(field));
}

/// By keys, the wheel, or an arrow under a pressed button; any other way it is the program's.
void PersonWatcher::numberChanged()
{
    auto *field = qobject_cast<QSpinBox *>(sender());
    const bool isArrow = input_.type == QEvent::MouseButtonPress && field == input_.target;
    if (isWorkedDirectly(field) || isArrow)
        tellEdit(field, stepForNumber(field));
}

/// One step for an edit, with what it comes to.
void PersonWatcher::tellEdit(QWidget *field, const MaybeStep &step)
{
    if (!step || !isInFront(field))
        return;
    if (edited_ != field)
        settle();
    edited_ = field;
    Q_EMIT perhapsActed(*step);
}

void PersonWatcher::withdrawKey()
{
    if (std::exchange(isKeyOpen_, false))
        Q_EMIT withdrawn();
}

void PersonWatcher::settleKey()
{
    if (std::exchange(isKeyOpen_, false))
        Q_EMIT settled();
}

void PersonWatcher::settle()
{
    isKeyOpen_ = false;
    edited_ = nullptr;
    Q_EMIT settled();
}

void PersonWatcher::tell(const QWidget *control, const MaybeStep &step)
{
    if (!isInFront(control))
        return;
    withdrawKey();
    settle();
    if (step)
        Q_EMIT acted(*step);
    else
        Q_EMIT actedWithoutName(control);
}

/// And nothing that is told to nobody.
bool PersonWatcher::isInFront(const QWidget *control) const
{
    return control->window() == front_() && !isPrivate(control);
}

} // namespace dialog::record
