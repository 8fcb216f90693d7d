#include "model/setting_json.h"

namespace {

QJsonValue jsonText(const QString &text)
{
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

} // namespace

QJsonObject settingJson(const PDEModel2 &model, const SettingSlots &slots)
{
    return {{QStringLiteral("option"), (model.*slots.option)() != nullptr},
            {QStringLiteral("value"), jsonText((model.*slots.value)())},
            {QStringLiteral("ticket"), jsonText((model.*slots.ticket)())}};
}
