#pragma once

#include "model/settings.h"

#include <QJsonObject>

/// A setting as diagnostics tell it: {"option": bool, "value": text or null, "ticket": text or
/// null}.
[[nodiscard]] QJsonObject settingJson(const PDEModel2 &model, const SettingSlots &slots);
