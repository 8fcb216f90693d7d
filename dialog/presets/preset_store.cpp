#include "dialog/presets/preset_store.h"

#include "dialog/presets/preset_file.h"
#include "dialog/presets/preset_name.h"
#include "dialog/presets/set_aside.h"
#include "dialog/printers/name_order.h"

#include <QLockFile>

#include <algorithm>

namespace dialog {
namespace {

using debuglog::Refusal;

const QString kFolder = QStringLiteral("presets");
/// A change takes far less; a person does not notice the wait.
constexpr int kPatienceMilliseconds = 300;

StoreResult resultOf(const QLockFile &lock, const QString &path)
{
    switch (lock.error()) {
    case QLockFile::LockFailedError:
        return {StoreFault::Busy, path};
    case QLockFile::PermissionError:
        return {StoreFault::NotAllowed, path};
    default:
        return {StoreFault::NoRoom, path}; // the lock's few bytes could not be written
    }
}

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

void sortByName(std::vector<Preset> &presets)
{
    const QCollator collator = nameOrder();
    std::stable_sort(presets.begin(), presets.end(), [&](const Preset &a, const Preset &b) {
        return collator.compare(a.name, b.name) < 0;
    });
}

StoreResult added(std::vector<Preset> &presets, const Preset &preset)
{
    if (presets.size() >= kMostPresets)
        return {StoreFault::TooMany};
    presets.push_back(preset);
    return {.preset = preset};
}

/// Nothing where the folder is not there yet.
std::optional<PrivateFolder::Opened> presetFolderIfThere()
{
    PrivateFolder::Opened configuration = openUserConfiguration();
    const auto *folder = std::get_if<PrivateFolder>(&configuration);
    return folder ? folder->openIfThere(kFolder) : std::optional(std::move(configuration));
}

PrivateFolder::Opened presetFolder()
{
    PrivateFolder::Opened configuration = openUserConfiguration();
    const auto *folder = std::get_if<PrivateFolder>(&configuration);
    return folder ? folder->openOrMake(kFolder) : std::move(configuration);
}

} // namespace

struct PresetStore::Read
{
    ReadPresets file = {};
    StoreResult result = {};
};

PresetStore::PresetStore(QString model)
    : model_(std::move(model)),
      fileName_(fileNameFor(model_, model_.toUtf8()) + QStringLiteral(".json"))
{
}

PresetStore::Read PresetStore::read(const PrivateFolder &folder) const
{
    const KeptFile file = readKept(folder, fileName_, kLargestPresetFile);
    switch (file.state) {
    case KeptFile::State::Missing:
        return {};
    case KeptFile::State::Read:
        return {.file = readPresets(file.bytes)};
    case KeptFile::State::Forbidden:
        return {.result = {StoreFault::NotAllowed, folder.pathOf(fileName_)}};
    case KeptFile::State::Unusable:
        break;
    }
    return {.file = {.health = FileHealth::Damaged}};
}

/// The lock is held.
PresetStore::Read PresetStore::readOrSetAside(const PrivateFolder &folder) const
{
    Read found = read(folder);
    if (!found.result.isOk())
        return found;
    if (found.file.health == FileHealth::Newer)
        found.result = {StoreFault::Newer, folder.pathOf(fileName_)};
    if (found.file.health != FileHealth::Damaged)
        return found;
    const SetAside moved = setAside(folder, fileName_);
    if (moved.refused) {
        found.result = resultOf(*moved.refused);
        return found;
    }
    if (!found.file.presets.empty())
        found.result = write(folder, found.file.presets);
    found.result.setAside = moved.path;
    return found;
}

StoreResult PresetStore::write(const PrivateFolder &folder, const Presets &presets) const
{
    const auto refused = folder.replace(fileName_, writtenPresets(model_, presets));
    return refused ? resultOf(*refused) : StoreResult();
}

PresetListing PresetStore::list() const
{
    const std::optional<PrivateFolder::Opened> opened = presetFolderIfThere();
    if (!opened)
        return {};
    if (const auto *refused = std::get_if<Refusal>(&*opened))
        return {.result = resultOf(*refused)};
    const auto &folder = std::get<PrivateFolder>(*opened);
    Read found = read(folder);
    if (found.file.health == FileHealth::Newer)
        found.result = {StoreFault::Newer, folder.pathOf(fileName_)};
    if (found.file.health == FileHealth::Damaged) {
        // As a change of nothing: under the lock, and only if it is still so then.
        found.result = change([&](Presets &presets) {
            found.file.presets = presets;
            return StoreResult();
        });
    }
    sortByName(found.file.presets);
    return {std::move(found.file.presets), std::move(found.result)};
}

StoreResult PresetStore::change(const Change &change) const
{
    const PrivateFolder::Opened opened = presetFolder();
    if (const auto *refused = std::get_if<Refusal>(&opened))
        return resultOf(*refused);
    const auto &folder = std::get<PrivateFolder>(opened);
    QLockFile lock(folder.pathOf(fileName_ + QStringLiteral(".lock")));
    lock.setStaleLockTime(0); // only a program that has ended gives it up
    if (!lock.tryLock(kPatienceMilliseconds))
        return resultOf(lock, folder.pathOf(fileName_));
    Read found = readOrSetAside(folder);
    if (!found.result.isOk())
        return found.result;
    const Presets before = found.file.presets;
    StoreResult result = change(found.file.presets);
    if (result.isOk() && found.file.presets != before) {
        StoreResult written = write(folder, found.file.presets);
        written.preset = std::move(result.preset);
        result = std::move(written);
    }
    result.setAside = found.result.setAside;
    return result;
}

StoreResult PresetStore::save(const Preset &preset) const
{
    return change([&](Presets &presets) {
        return nameFault(preset.name, namesOf(presets)) == NameFault::Taken
                   ? StoreResult{StoreFault::NameTaken}
                   : added(presets, preset);
    });
}

StoreResult PresetStore::update(const Preset &preset) const
{
    return change([&](Presets &presets) {
        const auto found = findPreset(presets, preset.name);
        if (found == presets.end())
            return added(presets, preset);
        return StoreResult{.preset = std::exchange(*found, preset)};
    });
}

StoreResult PresetStore::rename(const QString &name, const QString &to) const
{
    return change([&](Presets &presets) {
        const auto found = findPreset(presets, name);
        if (found == presets.end())
            return StoreResult{StoreFault::Gone};
        const auto taken = findPreset(presets, to);
        if (taken != presets.end() && taken != found)
            return StoreResult{StoreFault::NameTaken};
        found->name = cleanPresetName(to);
        return StoreResult{.preset = *found};
    });
}

StoreResult PresetStore::remove(const QString &name) const
{
    return change([&](Presets &presets) {
        const auto found = findPreset(presets, name);
        if (found == presets.end())
            return StoreResult{StoreFault::Gone};
        StoreResult result{.preset = std::move(*found)};
        presets.erase(found);
        return result;
    });
}

StoreResult PresetStore::restore(const Preset &preset) const
{
    return change([&](Presets &presets) {
        Preset again = preset;
        again.name = freePresetName(preset.name, namesOf(presets));
        return added(presets, again);
    });
}

} // namespace dialog
