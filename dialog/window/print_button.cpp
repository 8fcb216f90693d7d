#include "dialog/window/print_button.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace dialog {

void PrintButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void PrintButton::keyPressEvent(QKeyEvent *event)
{
    if (event->isAutoRepeat())
        event->ignore();
    else
        QPushButton::keyPressEvent(event);
}

void PrintButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionButton button;
    initStyleOption(&button);
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    frame.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &button, this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, frame);
}

} // namespace dialog
