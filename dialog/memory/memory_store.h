#pragma once

#include "dialog/memory/memory_file.h"
#include "dialog/presets/store_result.h"

#include <optional>

/// The files of what the dialog remembers, in the user's folder for state. Every call may block for
/// as long as that folder likes; any thread may make it. A damaged file is renamed, never
/// overwritten; one of a newer version of the program is left alone.
namespace dialog {

template <class Value>
struct Recalled
{
    std::optional<Value> value = {}; ///< nothing where nothing is remembered
    StoreResult result = {};
};

[[nodiscard]] Recalled<WindowMemory> recallWindow();
[[nodiscard]] Recalled<PresetContent> recallSettings(const RememberedPrinter &printer);

/// An invalid size and a null panel leave what is remembered.
[[nodiscard]] StoreResult keepWindow(const WindowMemory &window);
[[nodiscard]] StoreResult keepSettings(const RememberedPrinter &printer,
                                       const PresetContent &content);

} // namespace dialog
