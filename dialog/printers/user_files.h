#pragma once

#include "dialog/log/private_folder.h"

#include <optional>

namespace dialog {

using debuglog::PrivateFolder;

/// This program's folder below the user's for caches or settings (XDG_CACHE_HOME, XDG_CONFIG_HOME),
/// made where it is missing, for the user alone. Nothing where there can be none: what is kept
/// there is a convenience, and the dialog does without.
[[nodiscard]] std::optional<PrivateFolder> userCache();
[[nodiscard]] std::optional<PrivateFolder> userConfiguration();

/// The queue that this user printed to last; null when none is remembered.
[[nodiscard]] QString lastUsedQueue();
void rememberLastUsedQueue(const QString &queue);

} // namespace dialog
