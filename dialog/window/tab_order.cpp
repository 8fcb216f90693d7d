#include "dialog/window/tab_order.h"

#include <QWidget>

namespace dialog {
namespace {

/// What only hands the focus on is no stop of its own.
std::vector<QWidget *> tabStops(const QWidget &window)
{
    std::vector<QWidget *> stops;
    for (QWidget *next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain())
        if ((next->focusPolicy() & Qt::TabFocus) && !next->focusProxy())
            stops.push_back(next);
    return stops;
}

} // namespace

void orderTabs(const QWidget &window, const std::vector<QWidget *> &parts)
{
    const std::vector<QWidget *> stops = tabStops(window);
    QWidget *before = nullptr;
    for (const QWidget *part : parts) {
        for (QWidget *stop : stops) {
            if (!part || (stop != part && !part->isAncestorOf(stop)))
                continue;
            if (before)
                QWidget::setTabOrder(before, stop);
            before = stop;
        }
    }
}

} // namespace dialog
