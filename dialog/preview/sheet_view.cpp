#include "dialog/preview/sheet_view.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace dialog {
namespace {

constexpr double kPointsPerInch = 72;
constexpr int kRoomAround = 10; // for the shadow; logical pixels at the usual font size
constexpr int kShadow = 3;
constexpr int kSofteningMilliseconds = 200;
constexpr int kSpinnerMilliseconds = 80;
constexpr int kSpinnerSteps = 12;
constexpr int kSpinnerSize = 28;
constexpr int kWheelStep = 120; // eighths of a degree
constexpr double kLeastScale = 0.01;

QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto mix = [&](double a, double b) { return a + (b - a) * share; };
    return QColor::fromRgbF(static_cast<float>(mix(one.redF(), other.redF())),
                            static_cast<float>(mix(one.greenF(), other.greenF())),
                            static_cast<float>(mix(one.blueF(), other.blueF())));
}

/// To a screen reader the sheet is a picture; the pane describes it.
QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *view = qobject_cast<SheetView *>(object);
    return view ? new QAccessibleWidget(view, QAccessible::Graphic) : nullptr;
}

} // namespace

SheetView::SheetView(QWidget *parent) : QAbstractScrollArea(parent)
{
    QAccessible::installFactory(makeAccessible); // once only, however often it is called
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::StyledPanel);
    softening_.setSingleShot(true);
    softening_.setInterval(kSofteningMilliseconds);
    spinning_.setInterval(kSpinnerMilliseconds);
    connect(&softening_, &QTimer::timeout, this, [this] {
        isSoftened_ = true;
        spinning_.start();
        viewport()->update();
    });
    connect(&spinning_, &QTimer::timeout, this, [this] {
        spinnerStep_ = (spinnerStep_ + 1) % kSpinnerSteps;
        viewport()->update();
    });
}

QSize SheetView::sizeHint() const
{
    const int line = fontMetrics().height();
    return {line * 22, line * 24};
}

QSize SheetView::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {line * 7, line * 9};
}

void SheetView::setSide(const SidePicture &side)
{
    side_ = side;
    placeScrollBars();
    viewport()->update();
}

void SheetView::setWaiting(bool waits)
{
    if (waits && (isSoftened_ || softening_.isActive()))
        return;
    isSoftened_ = false;
    spinning_.stop();
    waits ? softening_.start() : softening_.stop();
    viewport()->update();
}

double SheetView::naturalScale() const
{
    return logicalDpiX() / kPointsPerInch;
}

double SheetView::scaleFor(const QSizeF &side) const
{
    if (zoom_)
        return naturalScale() * *zoom_;
    if (side.isEmpty())
        return kLeastScale;
    // Without scroll bars, which go as soon as everything fits in.
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(2 * kRoomAround, 2 * kRoomAround);
    return std::max(kLeastScale,
                    std::min(room.width() / side.width(), room.height() / side.height()));
}

double SheetView::shownZoom() const
{
    return scaleFor(side_.layout.size) / naturalScale();
}

double SheetView::pixelsPerPoint(const QSizeF &side) const
{
    return scaleFor(side) * devicePixelRatioF();
}

void SheetView::setZoom(std::optional<double> zoom)
{
    if (zoom == zoom_)
        return;
    // What is in the middle stays there.
    const QRectF former = sheetRect();
    const QPointF middle = QRectF(viewport()->rect()).center() - former.topLeft();
    zoom_ = zoom;
    placeScrollBars();
    if (!former.isEmpty()) {
        const double growth = sheetRect().width() / former.width();
        const QPointF wanted = middle * growth - QRectF(viewport()->rect()).center();
        horizontalScrollBar()->setValue(qRound(wanted.x()) + kRoomAround);
        verticalScrollBar()->setValue(qRound(wanted.y()) + kRoomAround);
    }
    viewport()->update();
    Q_EMIT scaleChanged();
}

void SheetView::placeScrollBars()
{
    const bool fits = !zoom_;
    const QSizeF whole = side_.layout.size * scaleFor(side_.layout.size);
    const auto place = [&](QScrollBar *bar, double length, int room) {
        const int more = static_cast<int>(std::ceil(length)) + 2 * kRoomAround - room;
        bar->setRange(0, fits ? 0 : std::max(0, more));
        bar->setPageStep(room);
        bar->setSingleStep(std::max(1, fontMetrics().height()));
    };
    // The second time with the room that the bars have left.
    for (int time = 0; time < 2; ++time) {
        place(horizontalScrollBar(), whole.width(), viewport()->width());
        place(verticalScrollBar(), whole.height(), viewport()->height());
    }
}

QRectF SheetView::sheetRect() const
{
    const QSizeF size = side_.layout.size * scaleFor(side_.layout.size);
    const auto start = [](double length, int room, const QScrollBar *bar) {
        const bool scrolls = bar->maximum() > 0;
        return std::round(scrolls ? kRoomAround - bar->value() : (room - length) / 2);
    };
    return {QPointF(start(size.width(), viewport()->width(), horizontalScrollBar()),
                    start(size.height(), viewport()->height(), verticalScrollBar())),
            size};
}

void SheetView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), mixed(palette().color(QPalette::Window),
                                               palette().color(QPalette::WindowText), 0.1));
    drawFocus(painter);
    const QRectF sheet = sheetRect();
    if (sheet.isEmpty())
        return;
    const QColor shadow = mixed(palette().color(QPalette::Window), Qt::black, 0.45);
    painter.fillRect(sheet.translated(kShadow, kShadow), shadow);
    drawSheet(painter, sheet);
    drawMargins(painter, sheet);
    if (isSoftened_)
        drawSpinner(painter, sheet);
    painter.setPen(mixed(Qt::white, Qt::black, 0.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(sheet.adjusted(-1, -1, 0, 0));
}

/// Around the whole, where no sheet is.
void SheetView::drawFocus(QPainter &painter) const
{
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = viewport()->rect();
    option.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

/// The frame that shows the focus lies in the viewport.
void SheetView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void SheetView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

/// Paper is white in dark themes too.
void SheetView::drawSheet(QPainter &painter, const QRectF &sheet) const
{
    painter.fillRect(sheet, Qt::white);
    if (side_.image.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF natural = QSizeF(side_.image.size()) / devicePixelRatioF();
    const bool isExact = std::abs(natural.width() - sheet.width()) < 1 &&
                         std::abs(natural.height() - sheet.height()) < 1;
    painter.drawImage(QRectF(sheet.topLeft(), isExact ? natural : sheet.size()), side_.image);
}

/// What the printer cannot reach is paler.
void SheetView::drawMargins(QPainter &painter, const QRectF &sheet) const
{
    const double scale = sheet.width() / side_.layout.size.width();
    const QRectF &reached = side_.layout.imageable;
    const QRectF inner(sheet.topLeft() + reached.topLeft() * scale, reached.size() * scale);
    if (inner == sheet || inner.isEmpty())
        return;
    QPainterPath beyond;
    beyond.addRect(sheet);
    beyond.addRect(inner);
    QColor veil(Qt::white);
    veil.setAlphaF(0.6F);
    painter.fillPath(beyond, veil);
    painter.setPen(QPen(mixed(Qt::white, Qt::black, 0.3), 0, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(inner.adjusted(0, 0, -1, -1));
}

void SheetView::drawSpinner(QPainter &painter, const QRectF &sheet) const
{
    constexpr int kWholeCircle = 360 * 16;
    QColor veil(Qt::white);
    veil.setAlphaF(0.55F);
    painter.fillRect(sheet, veil);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF circle(0, 0, kSpinnerSize, kSpinnerSize);
    circle.moveCenter((sheet & QRectF(viewport()->rect())).center());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, -spinnerStep_ * kWholeCircle / kSpinnerSteps, kWholeCircle * 3 / 4);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void SheetView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    placeScrollBars();
    Q_EMIT scaleChanged();
}

void SheetView::keyPressEvent(QKeyEvent *event)
{
    const bool zooms = event->modifiers() & Qt::ControlModifier;
    switch (event->key()) {
    case Qt::Key_PageUp:
        return Q_EMIT turned(-1);
    case Qt::Key_PageDown:
        return Q_EMIT turned(1);
    case Qt::Key_Home:
        return Q_EMIT turnedToEnd(Qt::TopEdge);
    case Qt::Key_End:
        return Q_EMIT turnedToEnd(Qt::BottomEdge);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zooms ? Q_EMIT zoomStepped(1) : event->ignore();
    case Qt::Key_Minus:
        return zooms ? Q_EMIT zoomStepped(-1) : event->ignore();
    case Qt::Key_0:
        return zooms ? Q_EMIT zoomStepped(0) : event->ignore();
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

/// Whether there is more of the sheet in that direction.
bool SheetView::scrolls(int wheelSteps) const
{
    const QScrollBar *bar = verticalScrollBar();
    return wheelSteps > 0 ? bar->value() > bar->minimum() : bar->value() < bar->maximum();
}

void SheetView::wheelEvent(QWheelEvent *event)
{
    const int turn = event->angleDelta().y();
    const bool zooms = event->modifiers() & Qt::ControlModifier;
    if (!zooms && (turn == 0 || scrolls(turn))) {
        wheelRest_ = 0;
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    event->accept();
    wheelRest_ += turn;
    const int steps = wheelRest_ / kWheelStep;
    wheelRest_ -= steps * kWheelStep;
    if (steps == 0)
        return;
    if (zooms)
        Q_EMIT zoomStepped(steps);
    else
        Q_EMIT turned(-steps);
}

} // namespace dialog
