// Every pair of choices again and again, each time in other company.

#include "tests/endtoend/every_setting.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

constexpr unsigned kLastSeed = 8;

class EverySettingAgain : public testing::TestWithParam<std::tuple<AnyPrinter, unsigned>>
{
};

} // namespace

TEST_P(EverySettingAgain, ReachesThePrinterInOtherCompany)
{
    const auto &[printer, seed] = GetParam();
    expectEveryPairToArrive(printer, seed);
}

INSTANTIATE_TEST_SUITE_P(Printers, EverySettingAgain,
                         testing::Combine(testing::ValuesIn(kPrinters),
                                          testing::Range(1U, kLastSeed + 1)),
                         [](const auto &row) {
                             return std::string(std::get<0>(row.param).name) +
                                    std::to_string(std::get<1>(row.param));
                         });
