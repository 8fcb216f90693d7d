#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

class QComboBox;

namespace test {

/// Picks an item of a pop-up by keys, as user::choose() does it, whatever the pop-up shows
/// afterwards: a choice may be refused, or be undone by a rule.
void pick(QComboBox *popUp, int index);

/// The named controls of a view: pop-ups, check boxes, the disclosure triangle, stepper, text
/// field, radio matrix.
[[nodiscard]] QWidgetList controlsOf(const QWidget *view);
/// Visible and enabled.
[[nodiscard]] bool isUsable(const QWidget *control);

/// One use of a control by a person's events: another item, a click, a step, a typed digit, another
/// row.
void use(QWidget *control);

/// Opens the advanced part, if there is one and it is closed.
void openAdvanced(QWidget *view);

/// Uses every control of the view once that is visible and enabled when its turn comes, with the
/// advanced part open. @p afterEach is told each control after its use.
void useEveryControl(QWidget *view, const std::function<void(QWidget *)> &afterEach = {});

} // namespace test
