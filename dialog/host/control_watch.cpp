#include "dialog/host/control_watch.h"

#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace dialog {
namespace {

std::vector<PDEOptionControl> controlsOf(const std::weak_ptr<PDEPanel> &panel)
{
    const std::shared_ptr<PDEPanel> living = panel.lock();
    PDEPanelDiagnostics *diagnostics = living ? living->diagnostics() : nullptr;
    return diagnostics ? diagnostics->optionControls() : std::vector<PDEOptionControl>();
}

} // namespace

/// The panel has connected its controls before, so that it acts first. All of these signals come
/// from a person's input alone.
void ControlWatch::watch(const std::shared_ptr<PDEPanel> &panel, const QWidget *view)
{
    if (!view)
        return;
    const std::weak_ptr<PDEPanel> weak = panel;
    const auto tellPosition = [this, weak](const QObject *control) {
        return [this, weak, control](int position) { tell(weak, control->objectName(), position); };
    };
    for (const QComboBox *popUp : view->findChildren<QComboBox *>())
        connect(popUp, &QComboBox::activated, this, tellPosition(popUp));
    for (const QAbstractButton *button : view->findChildren<QAbstractButton *>())
        connect(button, &QAbstractButton::clicked, this, tellPosition(button));
    for (const RadioMatrix *matrix : view->findChildren<RadioMatrix *>())
        connect(matrix, &RadioMatrix::rowClicked, this, tellPosition(matrix));
    for (const Stepper *stepper : view->findChildren<Stepper *>())
        connect(stepper, &Stepper::stepped, this, [this, weak, stepper](int value) {
            tell(weak, stepper->objectName(), (value - stepper->minimum()) / stepper->increment());
        });
    // What the panel has made of the text counts.
    for (const QLineEdit *field : view->findChildren<QLineEdit *>())
        connect(field, &QLineEdit::textEdited, this,
                [this, weak, field] { tellText(weak, field->objectName(), field->text()); });
}

void ControlWatch::tell(const std::weak_ptr<PDEPanel> &panel, const QString &control, int position)
{
    for (const PDEOptionControl &entry : controlsOf(panel)) {
        const QString choice = entry.choices.value(position);
        if (entry.control == control && !choice.isNull())
            Q_EMIT chosen({entry.option, choice});
    }
}

void ControlWatch::tellText(const std::weak_ptr<PDEPanel> &panel, const QString &control,
                            const QString &text)
{
    for (const PDEOptionControl &entry : controlsOf(panel)) {
        if (entry.control == control && entry.choices.contains(text))
            Q_EMIT chosen({entry.option, text});
    }
}

} // namespace dialog
