#pragma once

#include "dialog/preview/page_source.h"
#include "dialog/preview/side_layout.h"

namespace dialog {

/// A printed side as it comes out.
struct SidePicture
{
    SideLayout layout;
    QImage image; ///< null when the drawing was stopped
    /// Pages that could not be drawn, from 0.
    std::vector<int> damaged = {};
};

/// The scale that is really used for a side of this size: a picture takes no more memory than the
/// largest screen needs.
[[nodiscard]] double cappedScale(const QSizeF &side, double pixelsPerPoint);

/// @p number is the side's number as printedSides() has it; an empty side for -1.
[[nodiscard]] SidePicture drawSide(PageSource &source, const SheetLook &look, int number,
                                   double pixelsPerPoint, const ShouldStop &shouldStop);

/// Paints the pages of a side in points, as lines, letters too, in colours. The answer is the first
/// page that cannot be painted, -1 without one.
[[nodiscard]] int paintSide(PageSource &source, const SheetLook &look, int number,
                            QPainter &painter);

} // namespace dialog
