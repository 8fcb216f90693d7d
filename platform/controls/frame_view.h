#pragma once

#include "platform/export.h"

#include <QRectF>
#include <QWidget>

/// A view that carries a frame record: origin (lower left, in its parent) and size as doubles. The
/// record is what the panels calculate with; it says nothing about where the widget stands on the
/// screen until somebody projects it.
class PLATFORM_EXPORT FrameView : public QWidget
{
    Q_OBJECT
    /// x, y, width, height, as a Designer "rectf" property.
    Q_PROPERTY(QRectF frameRecord READ frameRecord WRITE setFrameRecord)

public:
    explicit FrameView(QWidget *parent = nullptr);

    [[nodiscard]] QRectF frameRecord() const { return record_; }
    void setFrameRecord(const QRectF &record) { record_ = record; }

private:
    QRectF record_;
};

namespace controls {

/// A zero rectangle for a missing view; writing to one does nothing.
[[nodiscard]] PLATFORM_EXPORT QRectF frameRecord(const FrameView *view);
PLATFORM_EXPORT void setFrameRecord(FrameView *view, const QRectF &record);
PLATFORM_EXPORT void setFrameSize(FrameView *view, const QSizeF &size);
PLATFORM_EXPORT void setFrameOrigin(FrameView *view, const QPointF &origin);

} // namespace controls
