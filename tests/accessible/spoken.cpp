#include "tests/accessible/spoken.h"

#include "tests/support/print_to.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>

namespace test::accessible {
namespace {

using Visitor = std::function<void(QAccessibleInterface &node)>;

/// The tree from the node down, without what does not show.
void visit(QAccessibleInterface *node, const Visitor &visitor)
{
    if (!node || !node->isValid() || node->state().invisible)
        return;
    visitor(*node);
    for (int index = 0; index < node->childCount(); ++index)
        visit(node->child(index), visitor);
}

void visitWindow(const QWidget &window, const Visitor &visitor)
{
    visit(QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&window)), visitor);
}

/// What Qt builds a control of has no life of its own.
bool isPartOfAControl(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QAbstractSpinBox *>(parent) ||
           qobject_cast<const QComboBox *>(parent) || qobject_cast<const QLineEdit *>(parent) ||
           widget->objectName().startsWith(QLatin1String("qt_"));
}

bool isTabStop(const QWidget *widget)
{
    const bool isWilling = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
    return isWilling && !widget->focusProxy() && widget->isVisible() && widget->isEnabled() &&
           !isPartOfAControl(widget);
}

/// The control of a node that a person could turn to; null for others.
const QWidget *focusableControl(const QAccessibleInterface &node)
{
    const auto *widget = qobject_cast<const QWidget *>(node.object());
    return widget && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() &&
                   !widget->isWindow() && widget->isVisible() && !isPartOfAControl(widget)
               ? widget
               : nullptr;
}

QString called(const QWidget *widget)
{
    return widget->objectName().isEmpty()
               ? QStringLiteral("%1 in %2")
                     .arg(QLatin1String(widget->metaObject()->className()),
                          widget->parentWidget()->objectName())
               : widget->objectName();
}

// Tab
// ------------------------------------------------------------------------------------------------

enum class Direction { Forward, Backward };

std::vector<QWidget *> walk(QWidget &window, Direction direction)
{
    constexpr std::size_t kMostStops = 500;
    std::vector<QWidget *> way;
    while (way.size() < kMostStops) {
        QWidget *from = QApplication::focusWidget();
        QTest::keyClick(from ? from : &window, Qt::Key_Tab,
                        direction == Direction::Forward ? Qt::NoModifier : Qt::ShiftModifier);
        QWidget *to = QApplication::focusWidget();
        if (!to || std::ranges::count(way, to) > 0)
            break;
        way.push_back(to);
    }
    return way;
}

QRect placeIn(const QWidget &window, const QWidget *control)
{
    return {control->mapTo(&window, QPoint()), control->size()};
}

// Roles
// ------------------------------------------------------------------------------------------------

struct Cast
{
    const char *kind;
    std::vector<QAccessible::Role> roles;
};

/// The first that a control inherits counts.
const std::vector<Cast> &casts()
{
    using enum QAccessible::Role;
    // clang-format off
    static const std::vector<Cast> all{
        {"QCheckBox",         {CheckBox}},
        {"QRadioButton",      {RadioButton}},
        {"QPushButton",       {Button, ButtonMenu, ButtonDropDown}},
        {"QToolButton",       {Button, ButtonMenu, ButtonDropDown, CheckBox, RadioButton}},
        {"QComboBox",         {ComboBox}},
        {"QAbstractSpinBox",  {SpinBox}},
        {"QLineEdit",         {EditableText}},
        {"QTreeView",         {Tree}},
        {"QListView",         {List}},
        {"QTableView",        {Table}},
    };
    // clang-format on
    return all;
}

/// What a reader announces for widgets that say nothing of themselves.
bool isNoRole(QAccessible::Role role)
{
    using enum QAccessible::Role;
    return role == NoRole || role == Client || role == Pane || role == Window;
}

bool playsItsRole(const QWidget *control, QAccessible::Role role)
{
    for (const auto &[kind, roles] : casts())
        if (control->inherits(kind))
            return std::ranges::count(roles, role) > 0;
    return !isNoRole(role);
}

/// On this platform the name of a pop-up is its text, and what names it is the label that it has.
QString nameOf(const QAccessibleInterface &node)
{
    if (node.role() != QAccessible::ComboBox)
        return node.text(QAccessible::Name).trimmed();
    QStringList labels;
    for (const auto &[label, relation] : node.relations(QAccessible::Label))
        labels.append(label->text(QAccessible::Name).trimmed());
    return labels.join(u' ');
}

/// The name of the nearest part around the node that has one.
QString surroundings(const QAccessibleInterface &node)
{
    for (const QAccessibleInterface *outer = node.parent(); outer; outer = outer->parent())
        if (!nameOf(*outer).isEmpty())
            return nameOf(*outer);
    return {};
}

bool saysItsValue(QAccessibleInterface &node)
{
    if (node.role() == QAccessible::SpinBox)
        return node.valueInterface() && node.valueInterface()->currentValue().isValid() &&
               !node.text(QAccessible::Value).isEmpty();
    if (node.role() == QAccessible::ComboBox)
        return !node.text(QAccessible::Value).isEmpty();
    return true;
}

/// The first cell of a list's row; sections of a tree have no other.
bool beginsARow(QAccessibleInterface &node)
{
    if (node.role() == QAccessible::ListItem)
        return true;
    const bool isCell = node.role() == QAccessible::TreeItem || node.role() == QAccessible::Cell;
    return isCell && node.tableCellInterface() && node.tableCellInterface()->columnIndex() == 0;
}

} // namespace

std::vector<QWidget *> tabStops(const QWidget &window)
{
    std::vector<QWidget *> stops;
    for (QWidget *widget : window.findChildren<QWidget *>())
        if (widget->window() == &window && isTabStop(widget))
            stops.push_back(widget);
    return stops;
}

std::vector<QWidget *> walkByTab(QWidget &window)
{
    return walk(window, Direction::Forward);
}

std::vector<QWidget *> walkByBacktab(QWidget &window)
{
    return walk(window, Direction::Backward);
}

Findings unreachable(QWidget &window)
{
    const std::vector<QWidget *> way = walkByTab(window);
    const std::vector<QWidget *> wayBack = walkByBacktab(window);
    Findings found;
    for (const QWidget *stop : tabStops(window)) {
        if (std::ranges::count(way, stop) == 0)
            found.push_back({called(stop), q("is never reached by Tab")});
        if (std::ranges::count(wayBack, stop) == 0)
            found.push_back({called(stop), q("is never reached by Shift+Tab")});
    }
    return found;
}

Findings againstReadingOrder(QWidget &window)
{
    std::vector<QWidget *> way = walkByTab(window);
    // The way begins behind the control that had the focus.
    const auto *first = window.nextInFocusChain();
    while (first != &window && std::ranges::count(way, first) == 0)
        first = first->nextInFocusChain();
    std::ranges::rotate(way, std::ranges::find(way, first));
    Findings found;
    for (std::size_t i = 1; i < way.size(); ++i) {
        const QRect from = placeIn(window, way[i - 1]);
        const QRect to = placeIn(window, way[i]);
        if (to.top() <= from.bottom() && to.left() <= from.right())
            found.push_back({called(way[i]), q("follows %1").arg(called(way[i - 1]))});
    }
    return found;
}

Findings unmarked(QWidget &window)
{
    const auto look = [](QWidget *control) { return control->grab().toImage(); };
    Findings found;
    for (QWidget *stop : walkByTab(window)) {
        stop->setFocus(Qt::TabFocusReason);
        const QImage focused = look(stop);
        stop->clearFocus();
        if (look(stop) == focused)
            found.push_back({called(stop), q("looks the same with the focus")});
    }
    return found;
}

Findings nameless(const QWidget &window)
{
    Findings found;
    visitWindow(window, [&](QAccessibleInterface &node) {
        const QWidget *control = focusableControl(node);
        if (!control)
            return;
        if (nameOf(node).isEmpty())
            found.push_back({called(control), q("has no name")});
        if (nameOf(node).contains(u'&'))
            found.push_back({called(control), q("is called \"%1\"").arg(nameOf(node))});
    });
    return found;
}

Findings misplayed(const QWidget &window)
{
    Findings found;
    visitWindow(window, [&](QAccessibleInterface &node) {
        const QWidget *control = focusableControl(node);
        if (control && !playsItsRole(control, node.role()))
            found.push_back(
                {called(control),
                 q("has the role %1")
                     .arg(q(QMetaEnum::fromType<QAccessible::Role>().valueToKey(node.role())))});
    });
    return found;
}

Findings confusable(const QWidget &window)
{
    std::map<std::tuple<int, QString, QString>, QString> known;
    Findings found;
    visitWindow(window, [&](QAccessibleInterface &node) {
        const QWidget *control = focusableControl(node);
        if (!control)
            return;
        const auto [place, isNew] = known.try_emplace(
            {static_cast<int>(node.role()), nameOf(node), surroundings(node)}, called(control));
        if (!isNew)
            found.push_back({called(control),
                             q("has the name of %1, \"%2\"").arg(place->second, nameOf(node))});
    });
    return found;
}

Findings silent(const QWidget &window)
{
    Findings found;
    visitWindow(window, [&](QAccessibleInterface &node) {
        const QWidget *control = focusableControl(node);
        if (control && !saysItsValue(node))
            found.push_back({called(control), q("says no value")});
        if (beginsARow(node) && nameOf(node).isEmpty())
            found.push_back({surroundings(node), q("has a row that begins with nothing")});
    });
    return found;
}

Findings findings(QWidget &window)
{
    Findings all = unreachable(window);
    for (const Findings &some : {againstReadingOrder(window), unmarked(window), nameless(window),
                                 misplayed(window), confusable(window), silent(window)})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

} // namespace test::accessible
