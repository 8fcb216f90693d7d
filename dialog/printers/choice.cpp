#include "dialog/printers/choice.h"

#include <QStringList>

namespace dialog {

QString joinedChoices(const Choices &marks, const QString &option)
{
    QStringList choices;
    for (const Choice &mark : marks) {
        if (mark.option.compare(option, Qt::CaseInsensitive) == 0)
            choices.append(mark.choice);
    }
    return choices.isEmpty() ? QString() : choices.join(u',');
}

} // namespace dialog
