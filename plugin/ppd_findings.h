#pragma once

#include "platform/panel_protocol.h"

#include <vector>

/// What the panels that this printer would get make of its PPD, panel by panel.
[[nodiscard]] std::vector<PDEFinding> ppdFindings(ppd_file_t *ppd);
