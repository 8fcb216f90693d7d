#pragma once

#include "dialog/presets/preset_name.h"
#include "dialog/presets/preset_plan.h"
#include "dialog/presets/preset_store.h"

#include <QCoreApplication>

namespace dialog {

/// What a person is told of presets, each fault with its remedy.
class PresetMessages
{
    Q_DECLARE_TR_FUNCTIONS(PresetMessages)

public:
    /// Null for StoreFault::None.
    [[nodiscard]] static QString fault(const StoreResult &result);
    /// Of a damaged file that lies at @p path now.
    [[nodiscard]] static QString setAside(const QString &path);
    /// Null for NameFault::None.
    [[nodiscard]] static QString fault(NameFault fault);
    /// What a preset says that will not be so; null when everything applies.
    [[nodiscard]] static QString remarks(const QString &preset, const PresetPlan &plan,
                                         const PpdDocument &printer);
};

} // namespace dialog
