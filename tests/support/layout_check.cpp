#include "tests/support/layout_check.h"

#include "platform/controls/stepper.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace test::layout {
namespace {

constexpr double kReadableContrast = 4.5;
/// Left edges nearer than this, but not equal, were meant to be equal.
constexpr int kNearMiss = 4;

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const Stepper *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QAbstractScrollArea *>(widget);
}

void collect(const QWidget &parent, std::vector<QWidget *> &controls)
{
    for (QWidget *child : parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isVisible() || child->isWindow())
            continue;
        if (isControl(child))
            controls.push_back(child);
        else
            collect(*child, controls);
    }
}

QRect place(const QWidget *control, const QWidget &root)
{
    return {control->mapTo(&root, QPoint()), control->size()};
}

QString nameOf(const QWidget *control)
{
    if (!control->objectName().isEmpty())
        return control->objectName();
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    return QStringLiteral("%1 \"%2\" in %3")
        .arg(QLatin1String(control->metaObject()->className()), button ? button->text() : QString(),
             control->parentWidget() ? control->parentWidget()->objectName() : QString());
}

QString shown(const QRect &rect)
{
    return QStringLiteral("(%1,%2 %3x%4)")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString shown(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

bool isOnOneRow(const QRect &one, const QRect &other)
{
    return one.top() <= other.bottom() && other.top() <= one.bottom();
}

// Texts
// -----------------------------------------------------------------------------------------------

/// Where a control shows its text, in its own coordinates; null for those that show none.
QRect textArea(const QWidget *control)
{
    const QStyle *style = control->style();
    if (const auto *popUp = qobject_cast<const QComboBox *>(control)) {
        QStyleOptionComboBox option;
        option.initFrom(popUp);
        return style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                     popUp);
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(control)) {
        QStyleOptionButton option;
        option.initFrom(button);
        if (qobject_cast<const QCheckBox *>(button))
            return style->subElementRect(QStyle::SE_CheckBoxContents, &option, button);
        if (qobject_cast<const QRadioButton *>(button))
            return style->subElementRect(QStyle::SE_RadioButtonContents, &option, button);
        return style->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    }
    return control->contentsRect();
}

QString textOf(const QWidget *control)
{
    if (const auto *label = qobject_cast<const QLabel *>(control))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(control))
        return button->text();
    if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        return popUp->currentText();
    if (const auto *field = qobject_cast<const QLineEdit *>(control))
        return field->text();
    return {};
}

QSize neededBy(const QLabel *label)
{
    if (!label->wordWrap())
        return label->sizeHint();
    return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
}

int longestItem(const QComboBox *popUp)
{
    int longest = 0;
    for (int index = 0; index < popUp->count(); ++index)
        longest = std::max(longest, popUp->fontMetrics().horizontalAdvance(popUp->itemText(index)));
    return longest;
}

std::optional<QString> complaintAboutPopUp(const QComboBox *popUp)
{
    const int room = textArea(popUp).width();
    const int selected = popUp->fontMetrics().horizontalAdvance(popUp->currentText());
    if (room < selected)
        return QStringLiteral("has room for %1 of its selected item's %2").arg(room).arg(selected);
    if (popUp->height() < popUp->sizeHint().height())
        return QStringLiteral("is too low");
    if (room < longestItem(popUp) && popUp->toolTip().isEmpty())
        return QStringLiteral("elides its longest item and has no tool tip");
    return {};
}

std::optional<QString> complaintAboutField(const QLineEdit *field)
{
    const int needed = field->fontMetrics().horizontalAdvance(field->text() + QLatin1Char('0'));
    if (field->contentsRect().width() < needed || field->height() < field->sizeHint().height())
        return QStringLiteral("shows less than its text");
    return {};
}

std::optional<QString> complaintAboutText(const QWidget *control)
{
    if (qobject_cast<const QAbstractScrollArea *>(control))
        return {};
    if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        return complaintAboutPopUp(popUp);
    if (const auto *field = qobject_cast<const QLineEdit *>(control))
        return complaintAboutField(field);
    const auto *label = qobject_cast<const QLabel *>(control);
    const QSize needed = label ? neededBy(label) : control->sizeHint();
    if (control->width() >= needed.width() && control->height() >= needed.height())
        return {};
    return QStringLiteral("is %1, needs %2").arg(shown(control->size()), shown(needed));
}

// Colours
// ---------------------------------------------------------------------------------------------

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// Best contrast of any pixel to the picture's most frequent colour, its background.
double bestContrast(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    QRgb background = 0;
    int most = 0;
    for (const auto &[color, count] : counts.asKeyValueRange()) {
        if (count > most) {
            most = count;
            background = color;
        }
    }
    double best = 1;
    for (const QRgb color : counts.keys())
        best = std::max(best, contrast(color, background));
    return best;
}

QImage cutOut(const QImage &picture, const QRect &area)
{
    const qreal ratio = picture.devicePixelRatio();
    return picture.copy(
        QRectF(area.x() * ratio, area.y() * ratio, area.width() * ratio, area.height() * ratio)
            .toRect());
}

} // namespace

void PrintTo(const Finding &finding, std::ostream *out)
{
    *out << finding.control.toStdString() << ": " << finding.what.toStdString();
}

std::vector<QWidget *> controlsOf(const QWidget &root)
{
    std::vector<QWidget *> controls;
    collect(root, controls);
    return controls;
}

Findings outside(const QWidget &root)
{
    Findings found;
    for (const QWidget *control : controlsOf(root)) {
        const QRect rect = place(control, root);
        if (!root.rect().contains(rect))
            found.push_back(
                {nameOf(control),
                 QStringLiteral("%1 leaves the view %2").arg(shown(rect), shown(root.size()))});
    }
    return found;
}

Findings hiddenSideways(const QWidget &root)
{
    Findings found;
    for (const QScrollArea *area : root.findChildren<QScrollArea *>()) {
        const bool isFixed = area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
        const int room = area->viewport()->width();
        if (area->isVisible() && isFixed && area->widget() && area->widget()->width() > room)
            found.push_back({nameOf(area), QStringLiteral("shows %1 of its contents' width of %2")
                                               .arg(room)
                                               .arg(area->widget()->width())});
    }
    return found;
}

Findings overlapping(const QWidget &root)
{
    Findings found;
    const std::vector<QWidget *> controls = controlsOf(root);
    for (std::size_t a = 0; a < controls.size(); ++a) {
        for (std::size_t b = a + 1; b < controls.size(); ++b) {
            const QRect shared = place(controls[a], root) & place(controls[b], root);
            if (!shared.isEmpty())
                found.push_back(
                    {nameOf(controls[a]),
                     QStringLiteral("shares %1 with %2").arg(shown(shared), nameOf(controls[b]))});
        }
    }
    return found;
}

Findings clipped(const QWidget &root)
{
    Findings found;
    for (const QWidget *control : controlsOf(root))
        if (const std::optional<QString> complaint = complaintAboutText(control))
            found.push_back({nameOf(control), *complaint});
    return found;
}

Findings holes(const QWidget &root)
{
    std::vector<QRect> rows;
    for (const QWidget *control : controlsOf(root))
        rows.push_back(place(control, root));
    std::ranges::sort(rows, {}, &QRect::top);
    rows.emplace_back(0, root.height(), root.width(), 1);
    Findings found;
    const int largestGap = root.fontMetrics().lineSpacing() * 3 / 2;
    int bottom = 0;
    for (const QRect &row : rows) {
        if (row.top() - bottom > largestGap)
            found.push_back(
                {root.objectName(),
                 QStringLiteral("nothing between %1 and %2").arg(bottom).arg(row.top())});
        bottom = std::max(bottom, row.bottom() + 1);
    }
    return found;
}

Findings ragged(const QWidget &root)
{
    Findings found;
    const std::vector<QWidget *> controls = controlsOf(root);
    for (const QWidget *one : controls) {
        for (const QWidget *other : controls) {
            const int distance = place(other, root).left() - place(one, root).left();
            if (distance > 0 && distance < kNearMiss)
                found.push_back({nameOf(other), QStringLiteral("stands %1 to the right of %2")
                                                    .arg(distance)
                                                    .arg(nameOf(one))});
        }
    }
    return found;
}

namespace {

bool saysWhatItIsFor(const QWidget *control)
{
    const auto *field = qobject_cast<const QLineEdit *>(control);
    const auto *number = qobject_cast<const QSpinBox *>(control);
    return (field && !field->placeholderText().isEmpty()) ||
           (number && !number->prefix().isEmpty());
}

} // namespace

Findings unlabelled(const QWidget &root)
{
    const std::vector<QWidget *> controls = controlsOf(root);
    const auto isLabelOf = [&](const QWidget *candidate, const QWidget *control) {
        const auto *label = qobject_cast<const QLabel *>(candidate);
        const bool names = (label && label->buddy() == control && !label->text().isEmpty()) ||
                           qobject_cast<const QRadioButton *>(candidate);
        return names && place(candidate, root).right() < place(control, root).left() &&
               isOnOneRow(place(candidate, root), place(control, root));
    };
    Findings found;
    for (const QWidget *control : controls) {
        if (!qobject_cast<const QComboBox *>(control) &&
            !qobject_cast<const QLineEdit *>(control) &&
            !qobject_cast<const QAbstractSpinBox *>(control))
            continue;
        if (saysWhatItIsFor(control))
            continue;
        if (std::ranges::none_of(controls,
                                 [&](const QWidget *other) { return isLabelOf(other, control); }))
            found.push_back({nameOf(control), QStringLiteral("has no label in front of it")});
    }
    return found;
}

Findings nameless(const QWidget &root)
{
    Findings found;
    for (QWidget *control : controlsOf(root)) {
        if (control->focusPolicy() == Qt::NoFocus)
            continue;
        const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(control);
        if (!reader || reader->text(QAccessible::Name).trimmed().isEmpty())
            found.push_back({nameOf(control), QStringLiteral("has no accessible name")});
    }
    return found;
}

Findings withoutToolTip(const QWidget &root)
{
    Findings found;
    for (const QWidget *control : controlsOf(root)) {
        if (qobject_cast<const QLabel *>(control))
            continue;
        const QWidget *speaker = control;
        while (speaker != &root && speaker->toolTip().isEmpty())
            speaker = speaker->parentWidget();
        if (speaker->toolTip().isEmpty())
            found.push_back({nameOf(control), QStringLiteral("has no tool tip")});
    }
    return found;
}

Findings againstReadingOrder(const QWidget &root)
{
    Findings found;
    const std::vector<QWidget *> controls = controlsOf(root);
    const auto isStop = [&](QWidget *widget) {
        return (widget->focusPolicy() & Qt::TabFocus) && std::ranges::count(controls, widget) > 0;
    };
    const QWidget *before = nullptr;
    for (QWidget *next = root.nextInFocusChain(); next != &root; next = next->nextInFocusChain()) {
        if (!isStop(next))
            continue;
        if (before) {
            const QRect from = place(before, root);
            const QRect to = place(next, root);
            const bool isBelow = to.top() > from.bottom();
            const bool isToTheRight = to.left() > from.right();
            if (!isBelow && !isToTheRight)
                found.push_back({nameOf(next), QStringLiteral("follows %1").arg(nameOf(before))});
        }
        before = next;
    }
    return found;
}

Findings faint(const QWidget &root)
{
    const QImage picture = const_cast<QWidget &>(root).grab().toImage();
    Findings found;
    for (const QWidget *control : controlsOf(root)) {
        if (!control->isEnabled() || textOf(control).trimmed().isEmpty())
            continue;
        const QRect area = textArea(control).translated(control->mapTo(&root, QPoint()));
        const double ratio = bestContrast(cutOut(picture, area & root.rect()));
        if (ratio < kReadableContrast)
            found.push_back({nameOf(control), QStringLiteral("contrast %1").arg(ratio)});
    }
    return found;
}

Findings findings(const QWidget &root)
{
    Findings all;
    for (const auto check : {outside, overlapping, clipped, holes, ragged, unlabelled, nameless,
                             againstReadingOrder}) {
        const Findings some = check(root);
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace test::layout
