#include "tests/whole/damaged_life.h"

#include <gtest/gtest.h>

using namespace test;

TEST(Defects, AWholePrinterIsNoDefect)
{
    const DamagedPrinter whole = damaged({});
    EXPECT_EQ(errorRecordsDue(whole.ppd), 0);
    liveOn(whole);
}

TEST(Defects, APrinterWithoutAnyOptionLives)
{
    EXPECT_EQ(errorRecordsDue(withoutEverything().ppd), 3);
    liveOn(withoutEverything());
}

/// In two halves, so that no test takes long.
class EachDefect : public testing::TestWithParam<std::size_t>
{
};

TEST_P(EachDefect, LivesAWholeLife)
{
    for (std::size_t i = GetParam(); i < damages().size(); i += 2)
        liveOn(damaged({i}));
}

INSTANTIATE_TEST_SUITE_P(Defects, EachDefect, testing::Values(0, 1));

/// Every pair takes too long for every day.
TEST(Defects, ASampleOfPairsLives)
{
    for (std::size_t i = 0; i + 1 < damages().size(); i += 3)
        liveOn(damaged({i, (i * 7 + 5) % damages().size()}));
}
