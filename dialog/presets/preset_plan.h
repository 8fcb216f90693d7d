#pragma once

#include "dialog/presets/preset.h"

#include <functional>

namespace dialog {

/// What applying a preset comes to.
struct PresetPlan
{
    ChoiceState state;                    ///< to set
    Choices missing = {};                 ///< what the preset says and this printer does not have
    std::vector<Conflict> conflicts = {}; ///< among what would be marked
};

/// Of the present state, what presets do not keep stays; everything else is as the preset has it,
/// else as the printer's defaults are.
[[nodiscard]] PresetPlan planPreset(const PresetContent &content, const PpdDocument &printer,
                                    const ChoiceState &present);

/// How the dialog names print settings to a person.
struct SettingWords
{
    std::function<QString(const QString &key)> title;
    std::function<QString(const QString &key, const QVariant &value)> value;
};

/// One setting that two contents have differently, in the person's words. A text is null where the
/// setting is not made there.
struct SettingDifference
{
    QString title;
    QString here;
    QString there;

    bool operator==(const SettingDifference &) const = default;
};

/// Options in the order of the printer, then those that it does not have, then print settings.
[[nodiscard]] std::vector<SettingDifference> differencesBetween(const PresetContent &here,
                                                                const PresetContent &there,
                                                                const PpdDocument &printer,
                                                                const SettingWords &words);

} // namespace dialog
