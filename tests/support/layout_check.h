#pragma once

#include <QString>
#include <QWidget>

#include <ostream>
#include <vector>

/// Invariants of how a shown view looks, whatever its language, font and palette. Each check
/// answers what is wrong, so that a failure can be read; controls are labels, buttons, pop-ups,
/// text and number fields, steppers and scroll areas, as far as they are visible.
namespace test::layout {

struct Finding
{
    QString control; ///< object name
    QString what;

    [[nodiscard]] bool operator==(const Finding &) const = default;
};
using Findings = std::vector<Finding>;
void PrintTo(const Finding &finding, std::ostream *out);

/// Controls of the view, in the order of its children. What lies inside a control is part of it.
[[nodiscard]] std::vector<QWidget *> controlsOf(const QWidget &root);

/// Lies wholly inside the view.
[[nodiscard]] Findings outside(const QWidget &root);
/// No scroll area that never scrolls sideways hides a part of its contents there.
[[nodiscard]] Findings hiddenSideways(const QWidget &root);
/// No two controls share a pixel.
[[nodiscard]] Findings overlapping(const QWidget &root);
/// Every text is complete. Of a pop-up, the selected item; where its longest one is longer than the
/// closed control, there is a tool tip.
[[nodiscard]] Findings clipped(const QWidget &root);
/// Rows follow each other, from edge to edge of the view, with no gap that another row would fill.
[[nodiscard]] Findings holes(const QWidget &root);
/// Left edges that almost meet: such columns look ragged.
[[nodiscard]] Findings ragged(const QWidget &root);
/// Pop-ups and fields have a label in front of them, whose buddy they are, or a radio button that
/// they are part of; or a placeholder or a number's prefix
/// says what it is for.
[[nodiscard]] Findings unlabelled(const QWidget &root);
/// What can have the focus tells screen readers its name.
[[nodiscard]] Findings nameless(const QWidget &root);
/// What a person can use has a tool tip, its own or that of what it is part of.
[[nodiscard]] Findings withoutToolTip(const QWidget &root);
/// Tab goes down or to the right.
[[nodiscard]] Findings againstReadingOrder(const QWidget &root);
/// Enabled text stands out from its background by 4.5:1 or more, measured in the picture.
[[nodiscard]] Findings faint(const QWidget &root);

/// All of the above that hold for any view: all but tool tips and, for its price, contrast.
[[nodiscard]] Findings findings(const QWidget &root);

/// Contrast ratio of two colours, 1 to 21.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

} // namespace test::layout
