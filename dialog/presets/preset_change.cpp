#include "dialog/presets/preset_change.h"

#include "dialog/presets/preset_file.h"
#include "dialog/presets/preset_name.h"
#include "dialog/printers/name_order.h"

#include <algorithm>

namespace dialog {
namespace {

QStringList namesOf(const std::vector<Preset> &presets)
{
    QStringList names;
    for (const Preset &preset : presets)
        names.append(preset.name);
    return names;
}

auto findPreset(std::vector<Preset> &presets, const QString &name)
{
    return std::find_if(presets.begin(), presets.end(),
                        [&](const Preset &preset) { return isSamePresetName(preset.name, name); });
}

StoreResult added(std::vector<Preset> &presets, const Preset &preset)
{
    if (presets.size() >= kMostPresets)
        return {StoreFault::TooMany};
    presets.push_back(preset);
    return {.preset = preset};
}

} // namespace

PresetChange saving(const Preset &preset)
{
    return [=](std::vector<Preset> &presets) {
        return nameFault(preset.name, namesOf(presets)) == NameFault::Taken
                   ? StoreResult{StoreFault::NameTaken}
                   : added(presets, preset);
    };
}

PresetChange updating(const Preset &preset)
{
    return [=](std::vector<Preset> &presets) {
        const auto found = findPreset(presets, preset.name);
        if (found == presets.end())
            return added(presets, preset);
        return StoreResult{.preset = std::exchange(*found, preset)};
    };
}

PresetChange renaming(const QString &name, const QString &to)
{
    return [=](std::vector<Preset> &presets) {
        const auto found = findPreset(presets, name);
        if (found == presets.end())
            return StoreResult{StoreFault::Gone};
        const auto taken = findPreset(presets, to);
        if (taken != presets.end() && taken != found)
            return StoreResult{StoreFault::NameTaken};
        found->name = cleanPresetName(to);
        return StoreResult{.preset = *found};
    };
}

PresetChange removing(const QString &name)
{
    return [=](std::vector<Preset> &presets) {
        const auto found = findPreset(presets, name);
        if (found == presets.end())
            return StoreResult{StoreFault::Gone};
        StoreResult result{.preset = std::move(*found)};
        presets.erase(found);
        return result;
    };
}

PresetChange restoring(const Preset &preset)
{
    return [=](std::vector<Preset> &presets) {
        Preset again = preset;
        again.name = freePresetName(preset.name, namesOf(presets));
        return added(presets, again);
    };
}

void sortByName(std::vector<Preset> &presets)
{
    const QCollator collator = nameOrder();
    std::stable_sort(presets.begin(), presets.end(), [&](const Preset &a, const Preset &b) {
        return collator.compare(a.name, b.name) < 0;
    });
}

} // namespace dialog
