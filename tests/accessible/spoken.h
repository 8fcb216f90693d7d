#pragma once

#include "tests/support/layout_check.h"

#include <QAccessible>
#include <QWidget>

#include <vector>

/// What a window is to somebody who hears it or works by keyboard alone. The checks walk the tree
/// that screen readers walk, and answer what is wrong.
namespace test::accessible {

using layout::Finding;
using layout::Findings;

/// What a person can reach by Tab: visible, enabled, willing; in no particular order. The parts
/// that Qt builds its controls of count as the control.
[[nodiscard]] std::vector<QWidget *> tabStops(const QWidget &window);
/// Where real Tab keys lead from the window's first stop, until they come round again.
[[nodiscard]] std::vector<QWidget *> walkByTab(QWidget &window);
/// The same by Shift and Tab.
[[nodiscard]] std::vector<QWidget *> walkByBacktab(QWidget &window);

/// Every stop is on the way of Tab.
[[nodiscard]] Findings unreachable(QWidget &window);
/// Each step of Tab leads down, or to the right.
[[nodiscard]] Findings againstReadingOrder(QWidget &window);

/// Whoever comes by Tab sees where: each stop looks different while it has the focus.
[[nodiscard]] Findings unmarked(QWidget &window);

/// Every focusable node of the tree has a name, without the marks of mnemonics.
[[nodiscard]] Findings nameless(const QWidget &window);
/// Every focusable node has the role that its kind of control has for a person.
[[nodiscard]] Findings misplayed(const QWidget &window);
/// Equal role and name occur once among what a named part of the window holds.
[[nodiscard]] Findings confusable(const QWidget &window);
/// Pop-ups and number fields say what is chosen, rows of lists what they read.
[[nodiscard]] Findings silent(const QWidget &window);

/// All of the above.
[[nodiscard]] Findings findings(QWidget &window);

} // namespace test::accessible
