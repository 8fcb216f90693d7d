#pragma once

#include <QMarginsF>
#include <QSizeF>

namespace dialog {

/// A paper as it goes through the printer, in points, and what the printer cannot reach of it.
struct PaperSize
{
    QSizeF size;
    QMarginsF margins = {};

    bool operator==(const PaperSize &) const = default;
};

} // namespace dialog
