#include "tests/whole/many_lives.h"

#include <gtest/gtest.h>

TEST(Lives, AThousandLeaveNothingBehind)
{
    test::expectNothingLeftAfter(1000);
}
