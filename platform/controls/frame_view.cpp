#include "platform/controls/frame_view.h"

FrameView::FrameView(QWidget *parent) : QWidget(parent) {}

namespace controls {

QRectF frameRecord(const FrameView *view)
{
    return view ? view->frameRecord() : QRectF();
}

void setFrameRecord(FrameView *view, const QRectF &record)
{
    if (view)
        view->setFrameRecord(record);
}

void setFrameSize(FrameView *view, const QSizeF &size)
{
    setFrameRecord(view, QRectF(frameRecord(view).topLeft(), size));
}

void setFrameOrigin(FrameView *view, const QPointF &origin)
{
    setFrameRecord(view, QRectF(origin, frameRecord(view).size()));
}

} // namespace controls
