#include "dialog/preview/side_painter.h"

#include "dialog/preview/quarters.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace dialog {
namespace {

constexpr double kMostPixels = 16e6;
// Larger than any page that would still be seen as one; keeps sums of pixels within an int.
constexpr double kMostPixelsOfAPage = 1e8;
constexpr int kQuarterDegrees = 90;

/// How the pixels of a page lie in the picture of a side.
struct PixelPlace
{
    QRect page;    ///< the whole page, beyond the side too
    QRect visible; ///< what of it is drawn
    int quarters = 0;
    bool isFlipped = false; ///< after the turning

    /// From pixels of the upright page to pixels of the side.
    [[nodiscard]] QTransform transform() const;
    [[nodiscard]] QSize upright() const
    {
        return quarters % 2 == 0 ? page.size() : page.size().transposed();
    }
};

QTransform PixelPlace::transform() const
{
    QTransform turn;
    turn.rotate(-kQuarterDegrees * quarters);
    if (isFlipped)
        turn *= QTransform::fromScale(-1, 1);
    const QRectF turned = turn.mapRect(QRectF({}, QSizeF(upright())));
    return turn * QTransform::fromTranslate(page.x() - turned.x(), page.y() - turned.y());
}

/// Edges on whole pixels, so that pages stay sharp.
QRect wholePixels(const QRectF &rect)
{
    const QPoint topLeft(qRound(rect.left()), qRound(rect.top()));
    return {topLeft, QSize(std::max(1, qRound(rect.right()) - topLeft.x()),
                           std::max(1, qRound(rect.bottom()) - topLeft.y()))};
}

PixelPlace pixelPlace(const PlacedPage &page, const QTransform &toPixels)
{
    const QTransform transform = page.transform * toPixels;
    const QRect whole = wholePixels(transform.mapRect(QRectF({}, page.size)));
    return {whole, wholePixels(toPixels.mapRect(page.visible)) & whole, quartersOf(transform),
            transform.determinant() < 0};
}

bool isDrawable(const PlacedPage &page, const QTransform &toPixels)
{
    const QRectF whole = (page.transform * toPixels).mapRect(QRectF({}, page.size));
    return whole.width() < kMostPixelsOfAPage && whole.height() < kMostPixelsOfAPage;
}

/// False when the page cannot be drawn, or drawing was stopped.
bool drawPage(PageSource &source, const PlacedPage &page, const QTransform &toPixels,
              const ShouldStop &shouldStop, QPainter &painter)
{
    if (!isDrawable(page, toPixels))
        return false;
    const PixelPlace place = pixelPlace(page, toPixels);
    const QRect part = place.transform().inverted().mapRect(place.visible);
    QImage picture = source.picture({page.page, place.upright(), part}, shouldStop);
    if (picture.isNull())
        return false;
    picture = picture.transformed(QTransform().rotate(-kQuarterDegrees * place.quarters));
    painter.drawImage(place.visible.topLeft(), picture.mirrored(place.isFlipped, false));
    return true;
}

void paintBorder(const PlacedPage &page, double width, QPainter &painter)
{
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    for (const QRectF &line : page.border)
        painter.drawRect(line);
}

/// A line thinner than a pixel is paler instead, but never so pale that it cannot be seen.
void drawBorder(const PlacedPage &page, double width, const QTransform &toPixels, QPainter &painter)
{
    constexpr double kPalest = 0.4;
    PlacedPage inPixels = page;
    for (QRectF &line : inPixels.border)
        line = QRectF(wholePixels(toPixels.mapRect(line))).translated(0.5, 0.5);
    const double pixels = width * toPixels.m11();
    painter.setOpacity(std::clamp(pixels, kPalest, 1.0));
    paintBorder(inPixels, std::max(1.0, pixels), painter);
    painter.setOpacity(1);
}

/// The look as it holds for this document: pictures fit the sheet unless the job says otherwise.
SheetLook lookFor(const PageSource &source, SheetLook look)
{
    if (look.scaling == PageScaling::Unset)
        look.scaling = source.isPicture() ? PageScaling::Fit : PageScaling::Auto;
    return look;
}

/// Reads the sizes of the pages on the side.
SideLayout layOutSide(PageSource &source, const SheetLook &look, int number)
{
    return placePages(lookFor(source, look), pagesOnSide(look, number, source.pageCount()),
                      [&](int page) { return source.pageSize(page); });
}

/// Pages that have no place because they cannot be read.
std::vector<int> missingPages(const std::vector<int> &wanted, const SideLayout &layout)
{
    std::vector<int> missing;
    std::copy_if(wanted.begin(), wanted.end(), std::back_inserter(missing), [&](int page) {
        return std::none_of(layout.pages.begin(), layout.pages.end(),
                            [&](const PlacedPage &placed) { return placed.page == page; });
    });
    return missing;
}

bool paintPage(PageSource &source, const PlacedPage &page, QPainter &painter)
{
    painter.save();
    painter.setClipRect(page.visible);
    painter.setTransform(page.transform, true);
    const bool isPainted = source.paint(page.page, painter);
    painter.restore();
    return isPainted;
}

} // namespace

double cappedScale(const QSizeF &side, double pixelsPerPoint)
{
    const double most = std::sqrt(kMostPixels / std::max(1.0, side.width() * side.height()));
    return std::min(pixelsPerPoint, most);
}

SidePicture drawSide(PageSource &source, const SheetLook &look, int number, double pixelsPerPoint,
                     const ShouldStop &shouldStop)
{
    SidePicture side{layOutSide(source, look, number), {}, {}};
    side.damaged = missingPages(pagesOnSide(look, number, source.pageCount()), side.layout);
    const double scale = cappedScale(side.layout.size, pixelsPerPoint);
    const QTransform toPixels = QTransform::fromScale(scale, scale);
    QImage image(wholePixels(toPixels.mapRect(QRectF({}, side.layout.size))).size(),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (const PlacedPage &page : side.layout.pages) {
        if (shouldStop())
            return side;
        if (!drawPage(source, page, toPixels, shouldStop, painter))
            side.damaged.push_back(page.page);
        drawBorder(page, side.layout.borderWidth, toPixels, painter);
    }
    painter.end();
    if (!shouldStop())
        side.image = look.isGrayscale ? image.convertToFormat(QImage::Format_Grayscale8) : image;
    return side;
}

int paintSide(PageSource &source, const SheetLook &look, int number, QPainter &painter)
{
    const SideLayout layout = layOutSide(source, look, number);
    const std::vector<int> missing =
        missingPages(pagesOnSide(look, number, source.pageCount()), layout);
    if (!missing.empty())
        return missing.front();
    for (const PlacedPage &page : layout.pages) {
        if (!paintPage(source, page, painter))
            return page.page;
        paintBorder(page, layout.borderWidth, painter);
    }
    return -1;
}

} // namespace dialog
