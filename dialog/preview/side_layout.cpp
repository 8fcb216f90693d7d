#include "dialog/preview/side_layout.h"

#include "dialog/preview/page_grid.h"

#include <algorithm>
#include <array>

namespace dialog {
namespace {

constexpr int kQuarters = 4;
// A page that is larger than the paper by less than this is not scaled down.
constexpr double kTolerance = 1.02;
// From the edge of a page to its first line, and from that to the second.
constexpr double kBorderDistance = 2.25;
constexpr double kLineDistance = 2.0;

struct BorderLines
{
    PageBorder border;
    int lines;
    double width;
};

// clang-format off
constexpr std::array kBorders{
    BorderLines{PageBorder::None,        0, 0},
    BorderLines{PageBorder::Single,      1, 0.24},
    BorderLines{PageBorder::SingleThick, 1, 0.5},
    BorderLines{PageBorder::Double,      2, 0.24},
    BorderLines{PageBorder::DoubleThick, 2, 0.5},
};

/// Quarter turns to the left of what stands on the paper, by orientation.
constexpr std::array kTurns{0, 1, 3, 2};
// clang-format on

const BorderLines &borderLines(PageBorder border)
{
    return kBorders[static_cast<std::size_t>(border)];
}

bool isWide(const QSizeF &size)
{
    return size.width() > size.height();
}

struct PageOfDocument
{
    int number;
    QSizeF size;
};

/// How what stands on the paper is turned, and how a person turns the paper to look at it.
struct Turns
{
    int content = 0; ///< quarters to the left
    int view = 0;    ///< quarters to the right
};

int landscapeQuarters(LandscapeTurn turn)
{
    return turn == LandscapeTurn::Plus90 ? 1 : 3;
}

Turns turnsOf(const SheetLook &look)
{
    const int requested = kTurns[static_cast<std::size_t>(look.orientation)];
    if (!pageGrid(look.pagesPerSheet).turnsSheet)
        return {requested, requested % 2};
    const int own = landscapeQuarters(look.landscapeTurn);
    const int turned = requested % 2 == 0 ? requested + own : requested - own;
    const int content = (turned + kQuarters) % kQuarters;
    return {content, content % 2 == 0 ? 0 : own};
}

/// The margins of a paper that has been turned to the right.
QMarginsF turned(const QMarginsF &margins, int quarters)
{
    QMarginsF result = margins;
    for (int quarter = 0; quarter < quarters; ++quarter)
        result = {result.bottom(), result.left(), result.top(), result.right()};
    return result;
}

/// Around the middle of a side: upside down, and flipped.
QTransform wholeTransform(const SheetLook &look, const QSizeF &size)
{
    const Turns turns = turnsOf(look);
    QTransform whole;
    if ((turns.content - turns.view + kQuarters) % kQuarters == 2)
        whole *= QTransform(-1, 0, 0, -1, size.width(), size.height());
    if (look.isMirrored)
        whole *= QTransform(-1, 0, 0, 1, size.width(), 0);
    return whole;
}

/// The page turned to the left about its corner, in the positive quadrant again.
QTransform turnLeft(const QSizeF &size, int quarters)
{
    QTransform transform;
    QSizeF now = size;
    for (int quarter = 0; quarter < quarters; ++quarter) {
        transform *= QTransform(0, -1, 1, 0, 0, now.width());
        now.transpose();
    }
    return transform;
}

/// How the pages of one side fill their places.
enum class Filling { Natural, Fit, Cover };

bool isTooLarge(const QSizeF &page, const QSizeF &paper)
{
    const QSizeF allowed = paper * kTolerance;
    const QSizeF lying = page.transposed();
    const auto fits = [&](const QSizeF &size) {
        return size.width() <= allowed.width() && size.height() <= allowed.height();
    };
    return !fits(page) && !fits(lying);
}

Filling fillingOf(const SheetLook &look, bool hasLargePage)
{
    switch (look.scaling) {
    case PageScaling::Unset:
    case PageScaling::Auto:
        if (!hasLargePage)
            return Filling::Natural;
        return look.paper.margins.isNull() ? Filling::Cover : Filling::Fit;
    case PageScaling::AutoFit:
        return hasLargePage ? Filling::Fit : Filling::Natural;
    case PageScaling::Fit:
        return Filling::Fit;
    case PageScaling::Fill:
        return Filling::Cover;
    case PageScaling::None:
        break;
    }
    return Filling::Natural;
}

double scaleOf(Filling filling, const QSizeF &page, const QSizeF &place)
{
    const double x = place.width() / page.width();
    const double y = place.height() / page.height();
    switch (filling) {
    case Filling::Fit:
        return std::min(x, y);
    case Filling::Cover:
        return std::max(x, y);
    case Filling::Natural:
        break;
    }
    return 1;
}

std::vector<QRectF> bordersAround(const QRectF &page, PageBorder border)
{
    std::vector<QRectF> lines;
    for (int line = 0; line < borderLines(border).lines; ++line) {
        const double inset = kBorderDistance + line * kLineDistance;
        lines.push_back(page.adjusted(inset, inset, -inset, -inset));
    }
    return lines;
}

/// The places of a side: what its columns and rows divide.
struct Places
{
    QRectF area;
    int columns = 1;
    int rows = 1;
    PageOrder order = PageOrder::LrTb;
    bool areWide = false; ///< the format that pages are turned to

    [[nodiscard]] QRectF at(int index) const
    {
        const GridPlace place = gridPlace(order, columns, rows, index);
        const QSizeF size(area.width() / columns, area.height() / rows);
        return {area.topLeft() + QPointF(place.column * size.width(), place.row * size.height()),
                size};
    }
};

/// In their natural size pages stand on the whole paper, else on the part that the printer reaches.
Places placesOf(const SheetLook &look, Filling filling)
{
    const PageGrid grid = pageGrid(look.pagesPerSheet);
    const QSizeF side = sideSize(look);
    const QMarginsF margins = turned(look.paper.margins, turnsOf(look).content);
    const QRectF whole({}, side);
    const bool isSideWide = isWide(side);
    return {filling == Filling::Natural ? whole : whole.marginsRemoved(margins),
            isSideWide ? grid.along : grid.across, isSideWide ? grid.across : grid.along,
            look.order, isSideWide != grid.turnsSheet};
}

bool liesAcross(const QSizeF &page, const Places &places)
{
    return page.width() != page.height() && isWide(page) != places.areWide;
}

QTransform placeInto(const QRectF &place, const QSizeF &page, int quarters, Filling filling)
{
    const QSizeF lying = quarters % 2 == 0 ? page : page.transposed();
    const double scale = scaleOf(filling, lying, place.size());
    const QPointF corner = place.center() - QPointF(lying.width(), lying.height()) * scale / 2;
    return turnLeft(page, quarters) * QTransform::fromScale(scale, scale) *
           QTransform::fromTranslate(corner.x(), corner.y());
}

PlacedPage placePage(const SheetLook &look, const PageOfDocument &page, const QRectF &place,
                     int quarters, Filling filling)
{
    const QTransform whole = wholeTransform(look, sideSize(look));
    const QTransform transform = placeInto(place, page.size, quarters, filling) * whole;
    const QRectF visible = transform.mapRect(QRectF({}, page.size)) & whole.mapRect(place);
    return {page.number, page.size, transform, visible, bordersAround(visible, look.border)};
}

/// As many of them as the side has room for.
std::vector<PageOfDocument> pagesWithSizes(const SheetLook &look, const std::vector<int> &pages,
                                           const PageSizes &sizes)
{
    const auto room = static_cast<std::size_t>(pageGrid(look.pagesPerSheet).pages);
    std::vector<PageOfDocument> result;
    for (std::size_t i = 0; i < std::min(pages.size(), room); ++i)
        result.push_back({pages[i], sizes(pages[i])});
    return result;
}

} // namespace

QSizeF sideSize(const SheetLook &look)
{
    return turnsOf(look).view % 2 == 0 ? look.paper.size : look.paper.size.transposed();
}

SideLayout placePages(const SheetLook &look, const std::vector<int> &pages, const PageSizes &sizes)
{
    const std::vector<PageOfDocument> known = pagesWithSizes(look, pages, sizes);
    const bool hasLargePage =
        std::any_of(known.begin(), known.end(), [&](const PageOfDocument &page) {
            return isTooLarge(page.size, look.paper.size);
        });
    const Filling filling = fillingOf(look, hasLargePage);
    const Places places = placesOf(look, filling);
    // Several pages never overlap.
    const bool shares = places.columns * places.rows > 1;
    const Filling inPlace = shares && filling == Filling::Natural ? Filling::Fit : filling;

    SideLayout side{sideSize(look), {}, borderLines(look.border).width, {}};
    side.imageable =
        QRectF({}, side.size).marginsRemoved(turned(look.paper.margins, turnsOf(look).view));
    for (int index = 0; const PageOfDocument &page : known) {
        const QRectF place = places.at(index++);
        const int quarters =
            liesAcross(page.size, places) ? landscapeQuarters(look.landscapeTurn) : 0;
        if (!page.size.isEmpty())
            side.pages.push_back(placePage(look, page, place, quarters, inPlace));
    }
    return side;
}

} // namespace dialog
