#pragma once

#include "dialog/printers/user_files.h"

#include <optional>

namespace dialog {

struct SetAside
{
    QString path = {}; ///< where it lies now
    std::optional<debuglog::Refusal> refused = {};
};

/// Renames whatever has that name to "NAME.damaged-TIME", so that nothing of it is lost.
[[nodiscard]] SetAside setAside(const PrivateFolder &folder, const QString &name);

} // namespace dialog
