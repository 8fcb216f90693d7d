#include "dialog/window/print_button.h"

#include <QKeyEvent>
#include <QMouseEvent>

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

} // namespace dialog
