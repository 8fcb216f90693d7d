#include "tests/walks/walks.h"

namespace {

constexpr unsigned kSeedsOfACase = 10;
constexpr unsigned kCases = 25;
constexpr int kSteps = 200;

/// 1,250 walks of 200 steps: 750 with the ink printer, 500 with the toner printer.
class ManyWalks : public testing::TestWithParam<std::tuple<test::Walker, unsigned>>
{
};

TEST_P(ManyWalks, OfAnyKindLoseNothingAndLeaveNothingUnsaid)
{
    const auto &[walker, part] = GetParam();
    for (unsigned seed = 0; seed < kSeedsOfACase && !HasFailure(); ++seed)
        test::walk(walker, 1000 + part * kSeedsOfACase + seed, kSteps);
}

INSTANTIATE_TEST_SUITE_P(Persons, ManyWalks,
                         testing::Combine(testing::ValuesIn(test::kWalkers),
                                          testing::Range(0U, kCases)),
                         [](const auto &walk) {
                             return std::get<0>(walk.param).name + std::string("_") +
                                    std::to_string(std::get<1>(walk.param));
                         });

} // namespace
