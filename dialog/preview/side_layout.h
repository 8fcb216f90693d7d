#pragma once

#include "dialog/preview/sheet_look.h"

#include <QRectF>
#include <QTransform>

#include <functional>

namespace dialog {

/// A page of the document as it stands on a printed side. All in points, from the upper left
/// corner of the side, downwards.
struct PlacedPage
{
    int page = 0;               ///< from 0
    QSizeF size;                ///< of the page itself
    QTransform transform;       ///< from points of the page to points of the side
    QRectF visible;             ///< what of it can be seen
    std::vector<QRectF> border; ///< lines around it
};

/// One printed side, turned so that a person reads it as it lies in front of them.
struct SideLayout
{
    QSizeF size;
    QRectF imageable;
    double borderWidth = 0;
    std::vector<PlacedPage> pages;
};

/// Size of a page in points; only asked for pages that stand on the side.
using PageSizes = std::function<QSizeF(int page)>;

/// Places these pages on one side of paper, in this order; at most as many as the look has room
/// for. A page that lies across its place is turned by a quarter. A page without an area is left
/// out.
[[nodiscard]] SideLayout placePages(const SheetLook &look, const std::vector<int> &pages,
                                    const PageSizes &sizes);

/// Size of a printed side of this look in points, turned like the layout.
[[nodiscard]] QSizeF sideSize(const SheetLook &look);

} // namespace dialog
