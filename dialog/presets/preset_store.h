#pragma once

#include "dialog/presets/store_result.h"

#include <functional>

namespace dialog {

struct PresetListing
{
    std::vector<Preset> presets = {}; ///< sorted as a person sorts names
    StoreResult result = {};
};

/// The presets of one model of printer: a file of its own in the user's configuration. Each
/// operation reads the file anew and holds a lock while it changes it, so that several dialogs lose
/// nothing of each other's. A damaged file is renamed, never overwritten; what is whole in it
/// stays.
class PresetStore
{
public:
    explicit PresetStore(QString model);

    [[nodiscard]] PresetListing list() const;
    /// Adds a preset whose name is free.
    [[nodiscard]] StoreResult save(const Preset &preset) const;
    /// Replaces the content of the preset of that name. One that is gone is added.
    [[nodiscard]] StoreResult update(const Preset &preset) const;
    /// A name may get another case.
    [[nodiscard]] StoreResult rename(const QString &name, const QString &to) const;
    [[nodiscard]] StoreResult remove(const QString &name) const;
    /// Adds a removed preset again, under the next free name where the old one is taken.
    [[nodiscard]] StoreResult restore(const Preset &preset) const;

private:
    using Presets = std::vector<Preset>;
    using Change = std::function<StoreResult(Presets &presets)>;
    struct Read;

    [[nodiscard]] StoreResult change(const Change &change) const;
    [[nodiscard]] Read read(const PrivateFolder &folder) const;
    [[nodiscard]] Read readOrSetAside(const PrivateFolder &folder) const;
    [[nodiscard]] StoreResult write(const PrivateFolder &folder, const Presets &presets) const;

    QString model_;
    QString fileName_;
};

} // namespace dialog
