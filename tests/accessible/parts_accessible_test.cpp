#include "dialog/window/print_window.h"
#include "tests/accessible/spoken.h"
#include "tests/layout/scene.h"
#include "tests/support/print_to.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::IsEmpty;

namespace {

/// Parts of the window that come and go.
class AccessiblePart : public testing::TestWithParam<std::tuple<Part, Look>>
{
protected:
    AccessiblePart()
        : desktop_(std::get<Look>(GetParam())),
          scene_(std::get<Part>(GetParam()), std::get<Look>(GetParam()))
    {
        scene_.makeSpacious();
    }

private:
    Desktop desktop_;

protected:
    Scene scene_;
};

std::string nameOfCase(const testing::TestParamInfo<std::tuple<Part, Look>> &info)
{
    const auto &[part, look] = info.param;
    return std::string(nameOf(part)) + "_" + look.language;
}

TEST_P(AccessiblePart, SpeaksAndIsWalkedByTab)
{
    EXPECT_THAT(accessible::findings(scene_.window()), IsEmpty());
    EXPECT_THAT(layout::unlabelled(scene_.window()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Parts, AccessiblePart,
                         testing::Combine(testing::ValuesIn(kParts),
                                          testing::ValuesIn(allLanguages())),
                         nameOfCase);

} // namespace
