#pragma once

#include <QIcon>

class QPalette;

namespace dialog {

/// A small drawing of the way that pages take over a sheet, for a value of "number-up-layout"
/// ("lrtb", "tblr", ...), in the colour of texts.
[[nodiscard]] QIcon layoutOrderIcon(const QString &order, const QPalette &palette);

} // namespace dialog
