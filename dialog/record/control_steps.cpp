#include "dialog/record/control_steps.h"

#include "dialog/replay/snapshot.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>

namespace dialog::record {
namespace {

using replay::StepKind;

MaybeStep stepOn(const QWidget *control, StepKind kind, const QStringList &more = {})
{
    if (!replay::isNamed(control))
        return std::nullopt;
    return replay::Step{kind, QStringList{control->objectName()} + more, 0};
}

QString wordOf(int direction)
{
    return direction > 0 ? QStringLiteral("up") : QStringLiteral("down");
}

MaybeStep stepForRow(const RadioMatrix *matrix, const QAbstractButton *button)
{
    for (int row = 0; row < matrix->rows(); ++row) {
        if (matrix->button(row) == button)
            return stepOn(matrix, StepKind::Row, {QString::number(row)});
    }
    return std::nullopt;
}

} // namespace

MaybeStep stepForItem(const QComboBox *popUp, int index)
{
    const QString title = popUp->itemText(index);
    const bool isPlain =
        popUp->findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive) == index &&
        !title.startsWith(u'#') && !title.contains(u'\n');
    return stepOn(popUp, StepKind::Choose, {isPlain ? title : u'#' + QString::number(index)});
}

MaybeStep stepForButton(const QAbstractButton *button)
{
    const QWidget *parent = button->parentWidget();
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(parent))
        return stepForRow(matrix, button);
    if (const auto *stepper = qobject_cast<const Stepper *>(parent))
        return stepForStepper(stepper, button == stepper->upButton() ? 1 : -1);
    if (qobject_cast<const QCheckBox *>(button))
        return stepOn(button, button->isChecked() ? StepKind::Tick : StepKind::Untick);
    return stepOn(button, StepKind::Click);
}

MaybeStep stepForEntry(const QAction *entry)
{
    if (entry->objectName().isEmpty())
        return std::nullopt;
    return replay::Step{StepKind::Click, {entry->objectName()}, 0};
}

MaybeStep stepForClick(const QWidget *control)
{
    return stepOn(control, StepKind::Click);
}

MaybeStep stepForWheel(const QWidget *control, int direction)
{
    return stepOn(control, StepKind::Wheel, {wordOf(direction)});
}

MaybeStep stepForText(const QLineEdit *field)
{
    return stepOn(field, StepKind::Type, {field->text()});
}

MaybeStep stepForNumber(const QSpinBox *field)
{
    return stepOn(field, StepKind::Type, {QString::number(field->value())});
}

MaybeStep stepForStepper(const Stepper *stepper, int direction)
{
    return stepOn(stepper, StepKind::StepBy, {wordOf(direction)});
}

} // namespace dialog::record
