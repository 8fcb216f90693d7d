#include "dialog/batch/control_use.h"

#include "dialog/replay/input.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>

namespace dialog::batch {
namespace {

namespace input = replay::input;

bool isUsable(const QWidget *control)
{
    return control && control->isVisible() && control->isEnabled();
}

Use acted(const QString &problem)
{
    return problem.isNull() ? Use::Acted : Use::NoControl;
}

/// Each click is an action of its own, so that the event loop runs between them.
Use stepTo(Stepper *stepper, int value)
{
    if (stepper->value() == value)
        return Use::StandsAlready;
    const QPointer<Stepper> guard = stepper;
    for (int before; guard && (before = guard->value()) != value;) {
        const Use use =
            acted(input::click(before < value ? guard->upButton() : guard->downButton()));
        QCoreApplication::processEvents();
        if (use != Use::Acted || !guard || guard->value() == before)
            return Use::NoControl;
    }
    return Use::Acted;
}

Use clickRow(const RadioMatrix *matrix, int row)
{
    QRadioButton *button = matrix->button(row);
    return isUsable(button) ? acted(input::click(button)) : Use::NoControl;
}

Use clickTo(QAbstractButton *button, bool on)
{
    return button->isChecked() == on ? Use::StandsAlready : acted(input::click(button));
}

Use moveTo(QWidget *control, int position, const QString &choice)
{
    if (auto *popUp = qobject_cast<QComboBox *>(control))
        return acted(input::choose(popUp, position));
    if (const auto *matrix = qobject_cast<RadioMatrix *>(control))
        return clickRow(matrix, position);
    if (auto *stepper = qobject_cast<Stepper *>(control))
        return stepTo(stepper, stepper->minimum() + position * stepper->increment());
    if (auto *field = qobject_cast<QLineEdit *>(control))
        return acted(input::type(field, choice));
    auto *button = qobject_cast<QAbstractButton *>(control);
    return button && button->isCheckable() ? clickTo(button, position == 1) : Use::NoControl;
}

void open(const QString &opener, const QWidget *view)
{
    auto *button = opener.isNull() ? nullptr : view->findChild<QAbstractButton *>(opener);
    if (!isUsable(button) || button->isChecked() || !input::click(button).isNull())
        return;
    QCoreApplication::processEvents(); // what it opens gets its place
}

} // namespace

Use chooseWithControl(const std::vector<PDEOptionControl> &controls, QWidget *view,
                      const Choice &choice)
{
    for (const PDEOptionControl &entry : controls) {
        const auto position = static_cast<int>(entry.choices.indexOf(choice.choice));
        if (entry.option != choice.option || position < 0)
            continue;
        open(entry.opener, view);
        auto *control = view->findChild<QWidget *>(entry.control);
        const Use use =
            isUsable(control) ? moveTo(control, position, choice.choice) : Use::NoControl;
        if (use != Use::NoControl)
            return use;
    }
    return Use::NoControl;
}

} // namespace dialog::batch
