#pragma once

#include <QTransform>

#include <cmath>

namespace dialog {

/// By how many quarters to the left a transformation turns a page, apart from a flip after that.
[[nodiscard]] inline int quartersOf(const QTransform &transform)
{
    // Where the page's right edge points once it is not flipped.
    const double right = transform.determinant() < 0 ? -transform.m11() : transform.m11();
    const double down = transform.m12();
    if (std::abs(right) > std::abs(down))
        return right > 0 ? 0 : 2;
    return down < 0 ? 1 : 3;
}

} // namespace dialog
