#pragma once

#include "dialog/presets/preset_change.h"

namespace dialog {

struct PresetListing
{
    std::vector<Preset> presets = {}; ///< sorted as a person sorts names
    StoreResult result = {};
};

/// The presets of one model of printer: a file of its own in the user's configuration. Each
/// operation reads the file anew and holds a lock while it changes it, so that several dialogs lose
/// nothing of each other's. A damaged file is renamed, never overwritten; what is whole in it
/// stays. Every call may block for as long as the user's folder likes; any thread may make it.
class PresetStore
{
public:
    explicit PresetStore(QString model);

    [[nodiscard]] PresetListing list() const;
    [[nodiscard]] StoreResult change(const PresetChange &change) const;

    [[nodiscard]] StoreResult save(const Preset &preset) const { return change(saving(preset)); }
    [[nodiscard]] StoreResult update(const Preset &preset) const
    {
        return change(updating(preset));
    }
    [[nodiscard]] StoreResult rename(const QString &name, const QString &to) const
    {
        return change(renaming(name, to));
    }
    [[nodiscard]] StoreResult remove(const QString &name) const { return change(removing(name)); }
    [[nodiscard]] StoreResult restore(const Preset &preset) const
    {
        return change(restoring(preset));
    }

private:
    struct Read;

    [[nodiscard]] Read read(const PrivateFolder &folder) const;
    [[nodiscard]] Read readOrSetAside(const PrivateFolder &folder) const;
    [[nodiscard]] StoreResult write(const PrivateFolder &folder,
                                    const std::vector<Preset> &presets) const;

    QString model_;
    QString fileName_;
};

} // namespace dialog
