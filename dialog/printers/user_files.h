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
/// The same with the reason where there can be none, for what a person asked to keep. The second is
/// for what comes and goes with use (XDG_STATE_HOME).
[[nodiscard]] PrivateFolder::Opened openUserConfiguration();
[[nodiscard]] PrivateFolder::Opened openUserState();
/// From now on configuration and state are looked up below this folder, whoever the user is. Caches
/// stay the user's.
void setUserFolder(const QString &folder);

/// A file's name that begins as @p readable does, letters, digits and hyphens of ASCII only, and is
/// another one for any other @p identity.
[[nodiscard]] QString fileNameFor(const QString &readable, const QByteArray &identity);

/// The queue that this user printed to last; null when none is remembered.
[[nodiscard]] QString lastUsedQueue();
void rememberLastUsedQueue(const QString &queue);

} // namespace dialog
