#pragma once

#include "tests/walks/random_walk.h"

#include "tests/support/print_to.h"

#include <gtest/gtest.h>

namespace test {

struct Walker
{
    const char *name;
    const char *ppd;
    int systemVersion;
};

constexpr Walker kWalkers[] = {
    {"Ink104", "Korvane-S300", 0x1049},   {"Ink105", "Korvane-S300", 0x1050},
    {"Ink106", "Korvane-S300", 0x1060},   {"Toner104", "Korvane-T500", 0x1049},
    {"Toner106", "Korvane-T500", 0x1060},
};

inline void PrintTo(const Walker &walker, std::ostream *out)
{
    *out << walker.name;
}

/// One person, from opening to printing.
inline void walk(const Walker &walker, unsigned seed, int steps)
{
    SCOPED_TRACE(testing::Message() << walker.name << ", seed " << seed);
    RandomWalk person(q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/") + q(walker.ppd) +
                          q(".ppd"),
                      walker.systemVersion, seed);
    person.take(steps);
    if (testing::Test::HasFailure())
        return;
    person.expectSummaryToSayEveryMark();
    person.expectAJob();
    person.expectTheSameJobNextTime();
}

} // namespace test
