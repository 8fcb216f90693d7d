#include "dialog/replay/input.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <QWindow>

// Entry points of QtGui for events as from the window system. The inline functions of Qt Test call
// them out of every test program, which keeps them where they are.
Q_DECL_IMPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                       Qt::MouseButtons state, Qt::MouseButton button,
                                       QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                       int timestamp);
Q_DECL_IMPORT void qt_handleKeyEvent(QWindow *window, QEvent::Type type, int key,
                                     Qt::KeyboardModifiers modifiers, const QString &text,
                                     bool autoRepeat, ushort count);

namespace dialog::replay::input {
namespace {

// Further apart than a double click, and counted on, so that no two clicks become one.
constexpr int kMillisecondsBetweenClicks = 10'000;
constexpr int kWheelNotch = 120;

int nextTimestamp()
{
    static int now = 0;
    return now += kMillisecondsBetweenClicks;
}

void activate(QWidget *window)
{
    if (!window->isActiveWindow() && !QApplication::activePopupWidget()) {
        window->activateWindow();
        QApplication::setActiveWindow(window);
    }
}

/// Boxes and radio buttons are as wide as their row, but only indicator and title take a click.
QPoint clickPoint(QWidget *control)
{
    QStyleOptionButton option;
    option.initFrom(control);
    if (qobject_cast<QCheckBox *>(control))
        return control->style()
            ->subElementRect(QStyle::SE_CheckBoxIndicator, &option, control)
            .center();
    if (qobject_cast<QRadioButton *>(control))
        return control->style()
            ->subElementRect(QStyle::SE_RadioButtonIndicator, &option, control)
            .center();
    return control->rect().center();
}

bool isReachable(QWidget *control, const QPoint &inWindow)
{
    QWidget *hit = control->window()->childAt(inWindow);
    return hit && (hit == control || control->isAncestorOf(hit));
}

void sendMouse(QWindow *window, const QPoint &local, QEvent::Type type, int timestamp)
{
    const bool isDown = type == QEvent::MouseButtonPress;
    const bool isMove = type == QEvent::MouseMove;
    qt_handleMouseEvent(window, local, window->mapToGlobal(local),
                        isDown ? Qt::LeftButton : Qt::NoButton,
                        isMove ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier, timestamp);
}

void sendClick(QWindow *window, const QPoint &local)
{
    const QPointer<QWindow> guard = window;
    const int timestamp = nextTimestamp();
    for (const QEvent::Type type :
         {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        if (guard)
            sendMouse(window, local, type, timestamp);
    }
}

void sendKey(QWindow *window, QKeyCombination key, const QString &text)
{
    const QPointer<QWindow> guard = window;
    qt_handleKeyEvent(window, QEvent::KeyPress, key.key(), key.keyboardModifiers(), text, false, 1);
    if (guard)
        qt_handleKeyEvent(window, QEvent::KeyRelease, key.key(), key.keyboardModifiers(), text,
                          false, 1);
}

/// What the key puts into a text field; nothing for keys that only command.
QString textOf(QKeyCombination key)
{
    const bool commands = key.keyboardModifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier);
    if (commands || key.key() < Qt::Key_Space || key.key() > Qt::Key_ydiaeresis)
        return {};
    const QChar character(static_cast<char16_t>(key.key()));
    const bool shifted = key.keyboardModifiers().testFlag(Qt::ShiftModifier);
    return QString(shifted ? character : character.toLower());
}

void typeCharacter(QWindow *window, QChar character)
{
    const QChar upper = character.toUpper();
    const int code = upper.unicode() < 0x100 ? upper.unicode() : 0;
    sendKey(window, QKeyCombination(Qt::NoModifier, static_cast<Qt::Key>(code)),
            QString(character));
}

/// As a person does before a click.
void scrollTo(QWidget *control)
{
    for (QWidget *outer = control->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto *scrolled = qobject_cast<QScrollArea *>(outer))
            scrolled->ensureWidgetVisible(control);
    }
}

QString clickAt(QWidget *control, const QPoint &place)
{
    QWidget *window = control->window();
    activate(window);
    scrollTo(control);
    const QPoint point = control->mapTo(window, place);
    if (!isReachable(control, point))
        return QStringLiteral("something covers it");
    sendClick(window->windowHandle(), point);
    return {};
}

QString selectAll(QLineEdit *field)
{
    const QString error = click(field);
    if (error.isNull())
        sendKey(field->window()->windowHandle(), QKeySequence(QKeySequence::SelectAll)[0], {});
    return error;
}

} // namespace

QString click(QWidget *control)
{
    return clickAt(control, clickPoint(control));
}

QString clickEntry(QAction *entry)
{
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu || !menu->actions().contains(entry))
        return QStringLiteral("its menu is not open");
    if (!entry->isEnabled()) {
        menu->close();
        return QStringLiteral("it is disabled");
    }
    sendClick(menu->windowHandle(), menu->actionGeometry(entry).center());
    return {};
}

QString step(QSpinBox *field, Turn turn)
{
    QStyleOptionSpinBox option;
    option.initFrom(field);
    option.subControls = QStyle::SC_All;
    const auto arrow = turn == Turn::Up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
    return clickAt(
        field, field->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, field).center());
}

QString choose(QComboBox *popUp, int index)
{
    const QPointer<QComboBox> guard = popUp;
    const QString error = click(popUp);
    if (!error.isNull())
        return error;
    if (!guard || !popUp->view()->isVisible())
        return QStringLiteral("its list does not open");
    QWindow *list = popUp->view()->window()->windowHandle();
    sendKey(list, Qt::Key_Home, {});
    for (int last = -1, row; (row = popUp->view()->currentIndex().row()) < index && row != last;
         last = row)
        sendKey(list, Qt::Key_Down, {});
    const bool isThere = popUp->view()->currentIndex().row() == index;
    sendKey(list, isThere ? Qt::Key_Return : Qt::Key_Escape, {});
    return isThere ? QString() : QStringLiteral("the item cannot be picked");
}

QString type(QLineEdit *field, const QString &text)
{
    const QPointer<QLineEdit> guard = field;
    const QString error = selectAll(field);
    if (!error.isNull())
        return error;
    if (text.isEmpty())
        sendKey(field->window()->windowHandle(), Qt::Key_Delete, {});
    for (const QChar character : text) {
        if (guard)
            typeCharacter(field->window()->windowHandle(), character);
    }
    return {};
}

QString paste(QLineEdit *field, const QString &text)
{
    const QString error = selectAll(field);
    if (!error.isNull())
        return error;
    QClipboard *clipboard = QApplication::clipboard();
    const QString former = clipboard->text();
    clipboard->setText(text);
    sendKey(field->window()->windowHandle(), QKeySequence(QKeySequence::Paste)[0], {});
    clipboard->setText(former);
    return {};
}

/// To the part under the pointer, and from there outwards until one takes it.
void wheel(QWidget *control, Turn turn)
{
    activate(control->window());
    const QPoint centre = control->rect().center();
    const QPointF global = control->mapToGlobal(QPointF(centre));
    const int notch = turn == Turn::Up ? kWheelNotch : -kWheelNotch;
    QWidget *part = control->childAt(centre);
    for (QWidget *target = part ? part : control;; target = target->parentWidget()) {
        QWheelEvent event(target->mapFromGlobal(global), global, {}, {0, notch}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(target, &event);
        if (event.isAccepted() || target == control)
            return;
    }
}

void key(QWidget *window, QKeyCombination key)
{
    activate(window);
    QWidget *popUp = QApplication::activePopupWidget();
    sendKey((popUp ? popUp : window)->window()->windowHandle(), key, textOf(key));
}

} // namespace dialog::replay::input
