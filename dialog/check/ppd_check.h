#pragma once

#include "dialog/check/finding.h"
#include "dialog/plugins/plugin_path.h"
#include "dialog/printers/ppd_document.h"

#include <variant>

/// What the dialog and the panels will make of a PPD, told to whoever writes it. The panels' own
/// findings come from the plug-in that the PPD names; all others are the dialog's.
namespace dialog::check {

using Checked = std::variant<Findings, PpdError>;

/// In the order of the file's lines. Looks for the driver's files below platform::driverRoot().
[[nodiscard]] Checked checkPpd(const QString &path, TrustedOwner owner);

} // namespace dialog::check
