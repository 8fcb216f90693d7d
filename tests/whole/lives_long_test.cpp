#include "tests/whole/many_lives.h"

#include <gtest/gtest.h>

TEST(Lives, AThousandKeepNoMemory)
{
    test::expectNoMemoryKeptAfter(350); // three rounds
}

TEST(Lives, AThousandLeaveNothingBehind)
{
    test::expectNothingLeftAfter(1000);
}
