#pragma once

#include <vector>

class QWidget;

namespace dialog {

/// Lets Tab go through these parts of the window, one after the other; within each the order stays.
/// Null parts are left out.
void orderTabs(const QWidget &window, const std::vector<QWidget *> &parts);

} // namespace dialog
