#include "dialog/preview/page_grid.h"
#include "dialog/preview/side_layout.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numeric>

namespace dialog {
namespace {

using testing::ElementsAreArray;

constexpr QSizeF kA4(595, 842);
constexpr QSizeF kA4Wide(842, 595);
// Four different ones, so that no mistake in turning them goes unseen.
constexpr QMarginsF kMargins(10, 20, 30, 40);

SheetLook a4Look()
{
    SheetLook look;
    look.paper = {kA4, kMargins};
    return look;
}

std::vector<int> firstPages(int count)
{
    std::vector<int> pages(static_cast<std::size_t>(count));
    std::iota(pages.begin(), pages.end(), 0);
    return pages;
}

SideLayout placeEqual(const SheetLook &look, int count, const QSizeF &size)
{
    return placePages(look, firstPages(count), [&](int) { return size; });
}

QRectF placeOf(const PlacedPage &page)
{
    return page.transform.mapRect(QRectF({}, page.size));
}

/// Rounded to tenths, so that a failure prints something to read.
std::vector<double> rounded(const QRectF &rect)
{
    const auto tenths = [](double value) { return std::round(value * 10) / 10; };
    return {tenths(rect.x()), tenths(rect.y()), tenths(rect.width()), tenths(rect.height())};
}

void expectRect(const QRectF &rect, const QRectF &wanted)
{
    EXPECT_THAT(rounded(rect), ElementsAreArray(rounded(wanted)));
}

/// Where the page's top is on the side: the direction from its middle to its upper edge.
enum class Top { Up, Left, Down, Right };

Top topOf(const PlacedPage &page)
{
    const QPointF up = page.transform.map(QPointF(page.size.width() / 2, 0)) -
                       page.transform.map(QPointF(page.size.width() / 2, page.size.height()));
    if (std::abs(up.x()) > std::abs(up.y()))
        return up.x() < 0 ? Top::Left : Top::Right;
    return up.y() < 0 ? Top::Up : Top::Down;
}

bool isFlipped(const PlacedPage &page)
{
    return page.transform.determinant() < 0;
}

// --- orders ------------------------------------------------------------------------------------

struct OrderCase
{
    PageOrder order;
    const char *name;
    std::vector<int> rows; ///< three columns, two rows: the index on each place, line by line
};

class Orders : public testing::TestWithParam<OrderCase>
{
};

TEST_P(Orders, EachPageStandsWhereTheNameOfTheOrderSays)
{
    std::vector<int> found(6, -1);
    for (int index = 0; index < 6; ++index) {
        const GridPlace place = gridPlace(GetParam().order, 3, 2, index);
        found[static_cast<std::size_t>(place.row * 3 + place.column)] = index;
    }
    EXPECT_EQ(found, GetParam().rows);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, Orders, testing::Values(
    OrderCase{PageOrder::LrTb, "lrtb", {0, 1, 2,
                                        3, 4, 5}},
    OrderCase{PageOrder::LrBt, "lrbt", {3, 4, 5,
                                        0, 1, 2}},
    OrderCase{PageOrder::RlTb, "rltb", {2, 1, 0,
                                        5, 4, 3}},
    OrderCase{PageOrder::RlBt, "rlbt", {5, 4, 3,
                                        2, 1, 0}},
    OrderCase{PageOrder::TbLr, "tblr", {0, 2, 4,
                                        1, 3, 5}},
    OrderCase{PageOrder::TbRl, "tbrl", {4, 2, 0,
                                        5, 3, 1}},
    OrderCase{PageOrder::BtLr, "btlr", {1, 3, 5,
                                        0, 2, 4}},
    OrderCase{PageOrder::BtRl, "btrl", {5, 3, 1,
                                        4, 2, 0}}),
    [](const auto &test) { return std::string(test.param.name); });
// clang-format on

// --- grids -------------------------------------------------------------------------------------

struct GridCase
{
    int pages;
    QSizeF side; ///< of portrait paper
    int columns;
    int rows;
};

class Grids : public testing::TestWithParam<GridCase>
{
};

TEST_P(Grids, PortraitPagesStandUprightOnTheTurnedOrUnturnedSheet)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = GetParam().pages;
    const SideLayout side = placeEqual(look, GetParam().pages, kA4);
    EXPECT_EQ(side.size, GetParam().side);
    ASSERT_EQ(side.pages.size(), static_cast<std::size_t>(GetParam().pages));
    const QSizeF cell(side.size.width() / GetParam().columns, side.size.height() / GetParam().rows);
    for (int index = 0; const PlacedPage &page : side.pages) {
        EXPECT_EQ(topOf(page), Top::Up);
        const QPointF corner(index % GetParam().columns * cell.width(),
                             index / GetParam().columns * cell.height());
        const QRectF place(corner, cell);
        EXPECT_TRUE(place.adjusted(-0.01, -0.01, 0.01, 0.01).contains(placeOf(page))) << index;
        EXPECT_NEAR(place.center().x(), placeOf(page).center().x(), 0.01);
        EXPECT_NEAR(place.center().y(), placeOf(page).center().y(), 0.01);
        ++index;
    }
}

TEST_P(Grids, PagesFillTheirPlacesInOneDirection)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = GetParam().pages;
    const PlacedPage page = placeEqual(look, 1, kA4).pages.front();
    const double x = page.size.width() * GetParam().columns / GetParam().side.width();
    const double y = page.size.height() * GetParam().rows / GetParam().side.height();
    EXPECT_NEAR(placeOf(page).width(), page.size.width() / std::max(x, y), 0.01);
}

TEST_P(Grids, LandscapeTurnsTheSheetTheOtherWay)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = GetParam().pages;
    look.orientation = SheetOrientation::Landscape;
    const SideLayout side = placeEqual(look, GetParam().pages, kA4Wide);
    EXPECT_EQ(side.size, GetParam().side.transposed());
    for (const PlacedPage &page : side.pages)
        EXPECT_EQ(topOf(page), Top::Up);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, Grids, testing::Values(
    GridCase{ 1, kA4,     1, 1},
    GridCase{ 2, kA4Wide, 2, 1},
    GridCase{ 3, kA4Wide, 3, 1},
    GridCase{ 4, kA4,     2, 2},
    GridCase{ 6, kA4Wide, 3, 2},
    GridCase{ 8, kA4Wide, 4, 2},
    GridCase{ 9, kA4,     3, 3},
    GridCase{10, kA4Wide, 5, 2},
    GridCase{12, kA4,     3, 4},
    GridCase{15, kA4Wide, 5, 3},
    GridCase{16, kA4,     4, 4}),
    [](const auto &test) { return std::to_string(test.param.pages); });
// clang-format on

TEST(Layout, MorePagesThanASheetHoldsAreLeftOut)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = 4;
    EXPECT_EQ(placeEqual(look, 7, kA4).pages.size(), 4u);
}

TEST(Layout, OnlyThePagesOfTheSideAreAskedForTheirSizes)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = 2;
    std::vector<int> asked;
    const SideLayout side = placePages(look, {7, 3, 5}, [&](int page) {
        asked.push_back(page);
        return kA4;
    });
    EXPECT_EQ(asked, (std::vector{7, 3}));
    EXPECT_EQ(side.pages[0].page, 7);
    EXPECT_EQ(side.pages[1].page, 3);
}

TEST(Layout, APageWithoutAnAreaLeavesItsPlaceEmpty)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = 4;
    const SideLayout side =
        placePages(look, {0, 1, 2}, [&](int page) { return page == 1 ? QSizeF(0, 0) : kA4; });
    ASSERT_EQ(side.pages.size(), 2u);
    EXPECT_EQ(side.pages[1].page, 2);
    EXPECT_GT(side.pages[1].visible.top(), 400);
}

// --- turning -----------------------------------------------------------------------------------

TEST(Layout, APageThatLiesAcrossThePaperIsTurnedToTheLeft)
{
    const SideLayout side = placeEqual(a4Look(), 1, kA4Wide);
    EXPECT_EQ(side.size, kA4);
    EXPECT_EQ(topOf(side.pages[0]), Top::Left);
    expectRect(placeOf(side.pages[0]), QRectF(0, 0, 595, 842));
}

TEST(Layout, APrinterThatTurnsTheOtherWayTurnsPagesToTheRight)
{
    SheetLook look = a4Look();
    look.landscapeTurn = LandscapeTurn::Minus90;
    EXPECT_EQ(topOf(placeEqual(look, 1, kA4Wide).pages[0]), Top::Right);
}

TEST(Layout, APortraitPageOnALandscapeSheetIsTurnedToo)
{
    SheetLook look = a4Look();
    look.orientation = SheetOrientation::Landscape;
    const SideLayout side = placeEqual(look, 1, kA4);
    EXPECT_EQ(side.size, kA4Wide);
    EXPECT_EQ(topOf(side.pages[0]), Top::Left);
}

TEST(Layout, ASquarePageIsNeverTurned)
{
    EXPECT_EQ(topOf(placeEqual(a4Look(), 1, {400, 400}).pages[0]), Top::Up);
}

TEST(Layout, LandscapePagesBesideEachOtherAreReadFromTheLeft)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = 2;
    const SideLayout side = placeEqual(look, 2, kA4Wide);
    EXPECT_EQ(side.size, kA4Wide);
    EXPECT_EQ(topOf(side.pages[0]), Top::Left);
    EXPECT_LT(side.pages[0].visible.center().x(), side.pages[1].visible.center().x());
}

struct OrientationCase
{
    SheetOrientation orientation;
    const char *name;
    QSizeF side;
    QSizeF page; ///< of a page that stands along
    Top top;
    QMarginsF margins;
};

class Orientations : public testing::TestWithParam<OrientationCase>
{
};

TEST_P(Orientations, TheSheetIsShownAsItIsRead)
{
    SheetLook look = a4Look();
    look.orientation = GetParam().orientation;
    const SideLayout side = placeEqual(look, 1, GetParam().page);
    EXPECT_EQ(side.size, GetParam().side);
    EXPECT_EQ(topOf(side.pages[0]), GetParam().top);
    expectRect(side.imageable, QRectF({}, side.size).marginsRemoved(GetParam().margins));
}

TEST_P(Orientations, FittedPagesStayWithinWhatThePrinterReaches)
{
    SheetLook look = a4Look();
    look.orientation = GetParam().orientation;
    look.scaling = PageScaling::Fit;
    const SideLayout side = placeEqual(look, 1, GetParam().page);
    EXPECT_TRUE(side.imageable.adjusted(-0.01, -0.01, 0.01, 0.01).contains(placeOf(side.pages[0])));
}

// The left edge of the paper lies on top when it is read turned.
constexpr QMarginsF kTurnedMargins(40, 10, 20, 30);

INSTANTIATE_TEST_SUITE_P(
    All, Orientations,
    testing::Values(OrientationCase{SheetOrientation::Portrait, "portrait", kA4, kA4, Top::Up,
                                    kMargins},
                    OrientationCase{SheetOrientation::Landscape, "landscape", kA4Wide, kA4Wide,
                                    Top::Up, kTurnedMargins},
                    OrientationCase{SheetOrientation::ReverseLandscape, "reverseLandscape", kA4Wide,
                                    kA4Wide, Top::Down, kTurnedMargins},
                    OrientationCase{SheetOrientation::ReversePortrait, "reversePortrait", kA4, kA4,
                                    Top::Down, kMargins}),
    [](const auto &test) { return std::string(test.param.name); });

TEST(Layout, PaperThatIsWideByItselfTakesWidePagesUpright)
{
    SheetLook look;
    look.paper = {QSizeF(432, 288), {}};
    const SideLayout side = placeEqual(look, 1, {432, 288});
    EXPECT_EQ(side.size, QSizeF(432, 288));
    EXPECT_EQ(topOf(side.pages[0]), Top::Up);
}

// --- scaling -----------------------------------------------------------------------------------

struct ScalingCase
{
    PageScaling scaling;
    const char *name;
    QSizeF page;
    QMarginsF margins;
    QRectF place;
};

class Scalings : public testing::TestWithParam<ScalingCase>
{
};

TEST_P(Scalings, ThePageGetsItsSizeAndPlace)
{
    SheetLook look;
    look.paper = {kA4, GetParam().margins};
    look.scaling = GetParam().scaling;
    const SideLayout side = placeEqual(look, 1, GetParam().page);
    expectRect(placeOf(side.pages[0]), GetParam().place);
    EXPECT_TRUE(
        QRectF({}, side.size).adjusted(-0.01, -0.01, 0.01, 0.01).contains(side.pages[0].visible));
}

// As the print server's filter places pages of 300 x 400 and 842 x 1191 points and of A4 itself.
constexpr QMarginsF kUneven(30, 30, 30, 60);
constexpr QSizeF kSmall(300, 400);
constexpr QSizeF kA3(842, 1191);
constexpr QRectF kCentred(147.5, 221, 300, 400);
const QRectF kSmallFitted(30, 49.3, 535, 713.3);
const QRectF kA3Fitted(31.7, 30, 531.6, 752);

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, Scalings, testing::Values(
    ScalingCase{PageScaling::Auto,    "autoSmall",      kSmall, kUneven, kCentred},
    ScalingCase{PageScaling::AutoFit, "autoFitSmall",   kSmall, kUneven, kCentred},
    ScalingCase{PageScaling::Fit,     "fitSmall",       kSmall, kUneven, kSmallFitted},
    ScalingCase{PageScaling::Fill,    "fillSmall",      kSmall, kUneven, QRectF(15.5, 30, 564, 752)},
    ScalingCase{PageScaling::None,    "noneSmall",      kSmall, kUneven, kCentred},
    ScalingCase{PageScaling::Auto,    "autoLarge",      kA3,    kUneven, kA3Fitted},
    ScalingCase{PageScaling::AutoFit, "autoFitLarge",   kA3,    kUneven, kA3Fitted},
    ScalingCase{PageScaling::Fit,     "fitLarge",       kA3,    kUneven, kA3Fitted},
    ScalingCase{PageScaling::Fill,    "fillLarge",      kA3,    kUneven, QRectF(30, 27.63, 535, 756.75)},
    ScalingCase{PageScaling::None,    "noneLarge",      kA3,    kUneven, QRectF(-123.5, -174.5, 842, 1191)},
    ScalingCase{PageScaling::Auto,    "autoSame",       kA4,    kUneven, QRectF({}, kA4)},
    ScalingCase{PageScaling::Fit,     "fitSame",        kA4,    kUneven, QRectF(31.8, 30, 531.4, 752)},
    ScalingCase{PageScaling::Auto,    "autoNearlySame", QSizeF(600, 850), kUneven, QRectF(-2.5, -4, 600, 850)},
    ScalingCase{PageScaling::Auto,    "autoBorderless", QSizeF(700, 842), {}, QRectF(-52.5, 0, 700, 842)},
    ScalingCase{PageScaling::AutoFit, "autoFitBorderless", QSizeF(700, 842), {}, QRectF(0, 63.15, 595, 715.7)}),
    [](const auto &test) { return std::string(test.param.name); });
// clang-format on

TEST(Layout, WhatIsCutOffIsNotVisible)
{
    SheetLook look;
    look.paper = {kA4, kUneven};
    look.scaling = PageScaling::Fill;
    expectRect(placeEqual(look, 1, kSmall).pages[0].visible, QRectF(30, 30, 535, 752));
    look.scaling = PageScaling::None;
    expectRect(placeEqual(look, 1, kA3).pages[0].visible, QRectF({}, kA4));
}

TEST(Layout, SeveralPagesShareThePaperUnlessOneOfThemIsTooLarge)
{
    SheetLook look;
    look.paper = {kA4, kUneven};
    look.pagesPerSheet = 4;
    expectRect(placeEqual(look, 4, kA4).pages[0].visible, QRectF(0, 0, 297.5, 421));
    const SideLayout side =
        placePages(look, {0, 1}, [&](int page) { return page == 1 ? kA3 : kA4; });
    EXPECT_GE(side.pages[0].visible.left(), 30);
}

TEST(Layout, PagesOfDifferentSizesEachFillTheirPlace)
{
    SheetLook look;
    look.paper = {kA4, {}};
    look.pagesPerSheet = 4;
    const SideLayout side = placePages(look, {0, 1, 2}, [](int page) {
        return page == 0 ? kA4 : page == 1 ? QSizeF(59.5, 84.2) : kA4Wide;
    });
    expectRect(placeOf(side.pages[0]), QRectF(0, 0, 297.5, 421));
    expectRect(placeOf(side.pages[1]), QRectF(297.5, 0, 297.5, 421));
    EXPECT_EQ(topOf(side.pages[2]), Top::Left);
}

// --- flipping ----------------------------------------------------------------------------------

TEST(Layout, FlippingTurnsTheWholeSideNotEachPage)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = 2;
    look.isMirrored = true;
    const SideLayout side = placeEqual(look, 2, kA4);
    EXPECT_TRUE(isFlipped(side.pages[0]));
    EXPECT_EQ(topOf(side.pages[0]), Top::Up);
    EXPECT_GT(side.pages[0].visible.center().x(), side.pages[1].visible.center().x());
}

TEST(Layout, NothingIsFlippedWithoutBeingAsked)
{
    EXPECT_FALSE(isFlipped(placeEqual(a4Look(), 1, kA4).pages[0]));
    EXPECT_FALSE(isFlipped(placeEqual(a4Look(), 1, kA4Wide).pages[0]));
}

// --- borders -----------------------------------------------------------------------------------

struct BorderCase
{
    PageBorder border;
    const char *name;
    std::size_t lines;
    double width;
};

class Borders : public testing::TestWithParam<BorderCase>
{
};

TEST_P(Borders, LinesStandInsideEveryPage)
{
    SheetLook look = a4Look();
    look.pagesPerSheet = 4;
    look.border = GetParam().border;
    const SideLayout side = placeEqual(look, 3, kA4);
    EXPECT_DOUBLE_EQ(side.borderWidth, GetParam().width);
    for (const PlacedPage &page : side.pages) {
        ASSERT_EQ(page.border.size(), GetParam().lines);
        double inset = 2.25;
        for (const QRectF &line : page.border) {
            expectRect(line, page.visible.adjusted(inset, inset, -inset, -inset));
            inset += 2;
        }
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, Borders, testing::Values(
    BorderCase{PageBorder::None,        "none",        0, 0},
    BorderCase{PageBorder::Single,      "single",      1, 0.24},
    BorderCase{PageBorder::SingleThick, "singleThick", 1, 0.5},
    BorderCase{PageBorder::Double,      "double",      2, 0.24},
    BorderCase{PageBorder::DoubleThick, "doubleThick", 2, 0.5}),
    [](const auto &test) { return std::string(test.param.name); });
// clang-format on

} // namespace
} // namespace dialog
