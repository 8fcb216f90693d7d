#include "dialog/presets/preset_store.h"

#include "dialog/presets/preset_file.h"
#include "dialog/presets/set_aside.h"

#include <QLockFile>

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

StoreResult PresetStore::write(const PrivateFolder &folder,
                               const std::vector<Preset> &presets) const
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
        found.result = change([&](std::vector<Preset> &presets) {
            found.file.presets = presets;
            return StoreResult();
        });
    }
    sortByName(found.file.presets);
    return {std::move(found.file.presets), std::move(found.result)};
}

StoreResult PresetStore::change(const PresetChange &change) const
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
    const std::vector<Preset> before = found.file.presets;
    StoreResult result = change(found.file.presets);
    if (result.isOk() && found.file.presets != before) {
        StoreResult written = write(folder, found.file.presets);
        written.preset = std::move(result.preset);
        result = std::move(written);
    }
    result.setAside = found.result.setAside;
    return result;
}

} // namespace dialog
