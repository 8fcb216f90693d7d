#include "dialog/panels/layout_order_icon.h"

#include <QPainter>
#include <QPalette>

namespace dialog {
namespace {

// On a field of 16 by 16, drawn larger so that it stays sharp on dense screens.
constexpr int kField = 16;
constexpr int kScale = 4;

/// Centres of the first, second, third and last of four pages.
std::array<QPointF, 4> wayOf(const QString &order)
{
    const bool isLeftFirst = order.indexOf(u'l') < order.indexOf(u'r');
    const bool isTopFirst = order.indexOf(u't') < order.indexOf(u'b');
    const bool goesAcross = order.startsWith(u'l') || order.startsWith(u'r');
    const qreal x = isLeftFirst ? 4 : 12;
    const qreal y = isTopFirst ? 4 : 12;
    const QPointF start(x, y);
    const QPointF across(kField - x, y);
    const QPointF down(x, kField - y);
    const QPointF end(kField - x, kField - y);
    return {start, goesAcross ? across : down, goesAcross ? down : across, end};
}

void drawArrowHead(QPainter &painter, QPointF from, QPointF to)
{
    const QLineF line(from, to);
    for (const int angle : {150, -150}) {
        QLineF wing = QLineF::fromPolar(3.5, line.angle() + angle);
        wing.translate(to);
        painter.drawLine(wing);
    }
}

} // namespace

QIcon layoutOrderIcon(const QString &order, const QPalette &palette)
{
    QPixmap pixmap(kField * kScale, kField * kScale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kScale, kScale);
    const std::array<QPointF, 4> way = wayOf(order);
    painter.setPen(QPen(palette.color(QPalette::Text), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPolyline(way.data(), static_cast<int>(way.size()));
    drawArrowHead(painter, way[2], way[3]);
    painter.setBrush(palette.color(QPalette::Text));
    painter.drawEllipse(way[0], 1.5, 1.5);
    painter.end();
    return QIcon(pixmap);
}

} // namespace dialog
