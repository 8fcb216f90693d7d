#include "tests/whole/damaged_life.h"

#include <gtest/gtest.h>

using namespace test;

/// Every pair of defects whose first is that one.
class DefectPairs : public testing::TestWithParam<std::size_t>
{
};

TEST_P(DefectPairs, LiveWholeLives)
{
    for (std::size_t second = GetParam() + 1; second < damages().size(); ++second)
        liveOn(damaged({GetParam(), second}));
}

INSTANTIATE_TEST_SUITE_P(Defects, DefectPairs,
                         testing::Range(std::size_t(0), damages().size() - 1));

TEST(Defects, ThePairsAreManyHundreds)
{
    EXPECT_GE(damages().size() * (damages().size() - 1) / 2, 300U);
}
