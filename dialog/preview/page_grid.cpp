#include "dialog/preview/page_grid.h"

#include <algorithm>
#include <array>

namespace dialog {
namespace {

// clang-format off
constexpr std::array kGrids{
    PageGrid{ 1, 1, 1, false},
    PageGrid{ 2, 2, 1, true},
    PageGrid{ 3, 3, 1, true},
    PageGrid{ 4, 2, 2, false},
    PageGrid{ 6, 3, 2, true},
    PageGrid{ 8, 4, 2, true},
    PageGrid{ 9, 3, 3, false},
    PageGrid{10, 5, 2, true},
    PageGrid{12, 4, 3, false},
    PageGrid{15, 5, 3, true},
    PageGrid{16, 4, 4, false},
};

enum class Lines { AreRows, AreColumns };

struct OrderRow
{
    PageOrder order;
    Lines lines;
    bool isRightToLeft;
    bool isBottomToTop;
};

constexpr std::array kOrders{
    OrderRow{PageOrder::LrTb, Lines::AreRows,    false, false},
    OrderRow{PageOrder::LrBt, Lines::AreRows,    false, true},
    OrderRow{PageOrder::RlTb, Lines::AreRows,    true,  false},
    OrderRow{PageOrder::RlBt, Lines::AreRows,    true,  true},
    OrderRow{PageOrder::TbLr, Lines::AreColumns, false, false},
    OrderRow{PageOrder::TbRl, Lines::AreColumns, true,  false},
    OrderRow{PageOrder::BtLr, Lines::AreColumns, false, true},
    OrderRow{PageOrder::BtRl, Lines::AreColumns, true,  true},
};
// clang-format on

constexpr bool isWhole()
{
    return std::all_of(kGrids.begin(), kGrids.end(), [](const PageGrid &grid) {
        return grid.along * grid.across == grid.pages && grid.along >= grid.across;
    });
}
static_assert(isWhole(), "every place of a grid takes a page");

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kOrders.size(); ++i) {
        if (static_cast<std::size_t>(kOrders[i].order) != i)
            return false;
    }
    return kOrders.size() == static_cast<std::size_t>(PageOrder::BtRl) + 1;
}
static_assert(isInOrder(), "one line per order, in the order of the enumeration");

} // namespace

PageGrid pageGrid(int pagesPerSheet)
{
    const auto *found = std::find_if(kGrids.begin(), kGrids.end(), [&](const PageGrid &grid) {
        return grid.pages == pagesPerSheet;
    });
    return found == kGrids.end() ? PageGrid{} : *found;
}

GridPlace gridPlace(PageOrder order, int columns, int rows, int index)
{
    const OrderRow &row = kOrders[static_cast<std::size_t>(order)];
    GridPlace place = row.lines == Lines::AreRows ? GridPlace{index % columns, index / columns}
                                                  : GridPlace{index / rows, index % rows};
    if (row.isRightToLeft)
        place.column = columns - 1 - place.column;
    if (row.isBottomToTop)
        place.row = rows - 1 - place.row;
    return place;
}

} // namespace dialog
