#pragma once

#include "dialog/printers/choice.h"

namespace dialog {

/// What the administrator and then the user have saved for a queue on this machine (lpoptions), in
/// the order in which it holds. Other options than the printer's are among them.
[[nodiscard]] Choices savedChoices(const QString &queue);

} // namespace dialog
