#pragma once

#include "dialog/preview/side_painter.h"

#include <QAbstractScrollArea>
#include <QTimer>

#include <optional>

namespace dialog {

/// A printed side as a sheet of paper, whole or zoomed. Paging and zooming by keys and wheel are
/// told, not done: the pane decides.
class SheetView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SheetView(QWidget *parent = nullptr);

    /// The picture may have been drawn at another scale.
    void setSide(const SidePicture &side);
    /// Softens the picture after a moment, until the next one comes.
    void setWaiting(bool waits);

    /// Nothing: the whole sheet fits in. Else how much larger than on paper.
    void setZoom(std::optional<double> zoom);
    [[nodiscard]] std::optional<double> zoom() const { return zoom_; }
    /// The zoom that the sheet is shown with.
    [[nodiscard]] double shownZoom() const;
    /// Of the screen, for a side of this size.
    [[nodiscard]] double pixelsPerPoint(const QSizeF &side) const;

    [[nodiscard]] const SidePicture &side() const { return side_; }
    [[nodiscard]] bool isSoftened() const { return isSoftened_; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A person wants to see the side that is so many further on.
    void turned(int sides);
    void turnedToEnd(Qt::Edge edge); ///< Qt::TopEdge: the first side
    void zoomStepped(int steps);
    /// Another scale is wanted for the picture.
    void scaleChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    [[nodiscard]] double scaleFor(const QSizeF &side) const; ///< logical pixels per point
    [[nodiscard]] double naturalScale() const;
    [[nodiscard]] QRectF sheetRect() const; ///< in the viewport
    void placeScrollBars();
    void drawFocus(QPainter &painter) const;
    void drawSheet(QPainter &painter, const QRectF &sheet) const;
    void drawMargins(QPainter &painter, const QRectF &sheet) const;
    void drawSpinner(QPainter &painter, const QRectF &sheet) const;
    [[nodiscard]] bool scrolls(int wheelSteps) const;

    SidePicture side_;
    std::optional<double> zoom_;
    QTimer softening_;
    QTimer spinning_;
    bool isSoftened_ = false;
    int spinnerStep_ = 0;
    int wheelRest_ = 0; ///< eighths of a degree that make no step yet
};

} // namespace dialog
