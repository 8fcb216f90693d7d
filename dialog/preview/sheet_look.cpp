#include "dialog/preview/sheet_look.h"

#include "dialog/preview/page_grid.h"

#include <algorithm>

namespace dialog {
namespace {

bool isSelected(const SideSelection &selection, int number)
{
    const bool isOdd = number % 2 == 1;
    if (selection.set == (isOdd ? SideSelection::Set::Even : SideSelection::Set::Odd))
        return false;
    return selection.ranges.empty() ||
           std::any_of(selection.ranges.begin(), selection.ranges.end(),
                       [&](const PageRange &range) {
                           return range.first <= number && number <= range.last;
                       });
}

} // namespace

std::vector<int> printedSides(const SheetLook &look, int pageCount)
{
    const int perSide = pageGrid(look.pagesPerSheet).pages;
    const int count = (std::max(pageCount, 0) + perSide - 1) / perSide;
    std::vector<int> sides;
    for (int side = 0; side < count; ++side) {
        if (isSelected(look.selection, side + 1))
            sides.push_back(side);
    }
    if (look.selection.order == SideSelection::Order::Normal)
        return sides;
    if (look.sides == Sides::Two && sides.size() % 2 == 1)
        sides.push_back(-1);
    std::reverse(sides.begin(), sides.end());
    return sides;
}

std::vector<int> pagesOnSide(const SheetLook &look, int side, int pageCount)
{
    const int perSide = pageGrid(look.pagesPerSheet).pages;
    std::vector<int> pages;
    for (int page = side * perSide; side >= 0 && page < (side + 1) * perSide; ++page) {
        if (page < pageCount)
            pages.push_back(page);
    }
    return pages;
}

} // namespace dialog
