#pragma once

#include "dialog/plugins/plugin_path.h"
#include "platform/panel_protocol.h"

#include <QString>

#include <memory>
#include <variant>

namespace dialog {

/// A maker's plug-in, loaded: its principal object and its bundle. The library itself stays in the
/// process for good.
struct PlugIn
{
    std::unique_ptr<Bundle> bundle; ///< outlives the principal object
    std::unique_ptr<PDEPlugIn> principal;
    PDEPlugInDiagnostics *diagnostics = nullptr; ///< the library's; null where it offers none
};

/// Why there is no plug-in, as the text of a notice.
struct PlugInFailure
{
    QString notice;
};

/// Loads the bundle at a literal driver path, after every file that is read for it has passed
/// checkDriverPath(). The library is "Contents/Linux/<CFBundleExecutable>" of the information
/// dictionary where that names one, else "Contents/Linux/libkorvane-panels.so".
[[nodiscard]] std::variant<PlugIn, PlugInFailure> loadPlugIn(const QString &literalBundlePath,
                                                             TrustedOwner owner);

} // namespace dialog
