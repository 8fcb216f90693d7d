#pragma once

#include "platform/bundle.h"

namespace test {

/// The plug-in's bundle as the build stages it, with the real interface files and texts.
[[nodiscard]] Bundle *pluginBundle();

} // namespace test
