#include "tests/walks/walks.h"

namespace {

constexpr unsigned kSeeds = 2;
constexpr int kSteps = 60;

class Walks : public testing::TestWithParam<test::Walker>
{
};

TEST_P(Walks, OfAnyKindLoseNothingAndLeaveNothingUnsaid)
{
    for (unsigned seed = 1; seed <= kSeeds && !HasFailure(); ++seed)
        test::walk(GetParam(), seed, kSteps);
}

INSTANTIATE_TEST_SUITE_P(Persons, Walks, testing::ValuesIn(test::kWalkers),
                         [](const auto &walk) { return walk.param.name; });

} // namespace
