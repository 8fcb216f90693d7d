#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace test {

inline constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;

/// Turns the wheel over the middle of a visible widget, as the window system reports it.
inline void turnWheel(QWidget *target, int delta)
{
    QWidget *const window = target->window();
    const QPointF middle = target->mapTo(window, QRectF(target->rect()).center());
    QWheelEvent event(middle, window->mapToGlobal(middle), {}, QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    // sendEvent() would take the mark away again.
    qApp->notify(window->windowHandle(), &event);
}

} // namespace test
