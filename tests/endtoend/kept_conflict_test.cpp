// Alone in its program: the answer silences the window until the process ends.

#include "tests/endtoend/every_setting.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace test;

TEST(ConflictOfSettings, IsPrintedWhereAPersonGoesOnWithIt)
{
    Printing printing(inkPpd());
    const Story story{{},
                      {choice("PrintQuality", "Draft"), choice("MediaType", "IronOn"),
                       choice("Mirror", "Off"), choice("ColorOutput", "Black")},
                      kSystem104,
                      Answer::Third};
    printing.play(story);
    EXPECT_EQ(printing.expectArrivals(),
              std::vector<OptionPairs>(1, {{q("ColorOutput"), q("Black")},
                                           {q("MediaType"), q("IronOn")},
                                           {q("Mirror"), q("Off")},
                                           {q("PrintQuality"), q("Draft")}}));
}
