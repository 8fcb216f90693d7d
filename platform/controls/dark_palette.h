#pragma once

#include "platform/export.h"

#include <QPalette>

/// The colours that a dark desktop gives its programs; for pictures and tests where there is none.
[[nodiscard]] PLATFORM_EXPORT QPalette darkPalette();
