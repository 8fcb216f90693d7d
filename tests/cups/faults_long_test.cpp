#include "tests/cups/fault_table.h"

#include <gtest/gtest.h>

using test::FaultKind;

namespace {

struct Row
{
    const char *name;
    FaultKind kind;
    int cases;
};

// clang-format off
constexpr Row kRows[] = {
    {"CutAnswers",  FaultKind::CutAnswers,  90},
    {"CutRequests", FaultKind::CutRequests, 90},
    {"Silence",     FaultKind::Silence,     40},
    {"Deafness",    FaultKind::Deafness,    40},
    {"Trickle",     FaultKind::Trickle,     20},
    {"Garble",      FaultKind::Garble,      40},
    {"HttpError",   FaultKind::HttpError,   40},
    {"IppError",    FaultKind::IppError,    40},
};
// clang-format on

class ServerFaults : public testing::TestWithParam<Row>
{
};

} // namespace

TEST_P(ServerFaults, MakeOneJobAtWhateverByte)
{
    test::expectOneJobEach(GetParam().kind, GetParam().cases);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, ServerFaults, testing::ValuesIn(kRows),
                         [](const auto &row) { return row.param.name; });
