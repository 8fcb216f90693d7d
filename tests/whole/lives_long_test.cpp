#include "tests/whole/many_lives.h"

#include <gtest/gtest.h>

TEST(Lives, AThousandKeepNoMemory)
{
    test::expectNoMemoryKeptAfter(1000);
}

TEST(Lives, AThousandLeaveNothingBehind)
{
    test::expectNothingLeftAfter(1000);
}
