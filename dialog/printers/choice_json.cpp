#include "dialog/printers/choice_json.h"

#include <QJsonArray>

namespace dialog {

QJsonValue textJson(const QString &text)
{
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonObject marksJson(const Choices &marks)
{
    QJsonObject object;
    for (const Choice &mark : marks) {
        const QJsonValue former = object.value(mark.option);
        if (former.isUndefined()) {
            object.insert(mark.option, mark.choice);
            continue;
        }
        QJsonArray several = former.isArray() ? former.toArray() : QJsonArray{former};
        several.append(mark.choice);
        object.insert(mark.option, several);
    }
    return object;
}

QJsonObject settingsJson(const std::map<QString, QVariant> &settings)
{
    QJsonObject object;
    for (const auto &[key, value] : settings)
        object.insert(key, QJsonValue::fromVariant(value));
    return object;
}

} // namespace dialog
