#include "tests/support/plugin_bundle.h"

namespace test {

Bundle *pluginBundle()
{
    static const std::unique_ptr<Bundle> bundle =
        Bundle::bundleWithPath(QStringLiteral(KORVANE_BUNDLE_DIR));
    return bundle.get();
}

} // namespace test
