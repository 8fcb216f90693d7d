#pragma once

#include "dialog/preview/sheet_look.h"

namespace dialog {

/// How many pages stand along the longer and the shorter edge of a sheet.
struct PageGrid
{
    int pages = 1;
    int along = 1;
    int across = 1;
    bool turnsSheet = false; ///< the sheet is turned by a quarter, so that pages keep their format
};

/// The grid of one page where there is none for this number.
[[nodiscard]] PageGrid pageGrid(int pagesPerSheet);

/// A place of a grid, counted from the upper left corner.
struct GridPlace
{
    int column = 0;
    int row = 0;

    bool operator==(const GridPlace &) const = default;
};

/// Where the page number @p index of a sheet stands.
[[nodiscard]] GridPlace gridPlace(PageOrder order, int columns, int rows, int index);

} // namespace dialog
