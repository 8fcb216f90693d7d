#include "dialog/printers/choice.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace dialog {

QString joinedChoices(const Choices &marks, const QString &option)
{
    QStringList choices;
    for (const Choice &mark : marksOf(marks, option))
        choices.append(mark.choice);
    return choices.isEmpty() ? QString() : choices.join(u',');
}

Choices marksOf(const Choices &marks, const QString &option)
{
    Choices ofOption;
    std::copy_if(marks.begin(), marks.end(), std::back_inserter(ofOption), [&](const Choice &mark) {
        return mark.option.compare(option, Qt::CaseInsensitive) == 0;
    });
    return ofOption;
}

} // namespace dialog
