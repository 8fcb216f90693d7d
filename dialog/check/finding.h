#pragma once

#include "platform/panel_protocol.h"

#include <QString>

#include <vector>

namespace dialog::check {

/// A finding of panels or dialog, with its line.
struct Finding
{
    int line = 1;
    PDEFinding finding;
};
using Findings = std::vector<Finding>;

} // namespace dialog::check
