#include "platform/controls/spoken_label.h"

#include <QLabel>

void addSpokenLabel(QWidget *control, const QString &name)
{
    auto *label = new QLabel(name, control->parentWidget());
    label->setBuddy(control);
    label->hide();
}
