#include "dialog/window/content_scroll.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace dialog {
namespace {

// Text lines that stay in sight however small the window is.
constexpr int kLinesInSight = 4;

} // namespace

ContentScroll::ContentScroll(QWidget *contents, QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(contents);
    viewport()->setAutoFillBackground(false);
    contents->setAutoFillBackground(false);
    contents->installEventFilter(this);
}

QSize ContentScroll::sizeHint() const
{
    return widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
}

QSize ContentScroll::minimumSizeHint() const
{
    const QSize needed = widget()->minimumSizeHint();
    const int lines = kLinesInSight * fontMetrics().lineSpacing();
    return {needed.width() + verticalScrollBar()->sizeHint().width(),
            std::min(needed.height(), lines)};
}

/// What the contents need has changed, and so has what this needs.
bool ContentScroll::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace dialog
