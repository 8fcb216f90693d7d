#include "dialog/preview/sheet_look.h"

#include <gmock/gmock.h>

namespace dialog {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Selection, EverySideIsPrintedInOrderByDefault)
{
    EXPECT_THAT(printedSides({}, 3), ElementsAre(0, 1, 2));
}

TEST(Selection, SeveralPagesShareASideAndTheLastMayStayHalfEmpty)
{
    SheetLook look;
    look.pagesPerSheet = 4;
    EXPECT_THAT(printedSides(look, 9), ElementsAre(0, 1, 2));
    EXPECT_THAT(pagesOnSide(look, 1, 9), ElementsAre(4, 5, 6, 7));
    EXPECT_THAT(pagesOnSide(look, 2, 9), ElementsAre(8));
}

TEST(Selection, RangesCountSidesFromOneAndMayOverlapOrBeTooLarge)
{
    SheetLook look;
    look.selection.ranges = {{2, 3}, {3, 4}, {7, 99}};
    EXPECT_THAT(printedSides(look, 8), ElementsAre(1, 2, 3, 6, 7));
}

TEST(Selection, RangesCountSidesAlsoWhereSeveralPagesStandOnOne)
{
    SheetLook look;
    look.pagesPerSheet = 2;
    look.selection.ranges = {{2, 3}};
    EXPECT_THAT(printedSides(look, 8), ElementsAre(1, 2));
}

TEST(Selection, OddAndEvenGoByTheSidesOwnNumbers)
{
    SheetLook look;
    look.selection.ranges = {{3, 6}};
    look.selection.set = SideSelection::Set::Even;
    EXPECT_THAT(printedSides(look, 8), ElementsAre(3, 5));
    look.selection.set = SideSelection::Set::Odd;
    EXPECT_THAT(printedSides(look, 8), ElementsAre(2, 4));
}

TEST(Selection, ReverseTurnsTheSidesNotThePagesOnThem)
{
    SheetLook look;
    look.pagesPerSheet = 2;
    look.selection.order = SideSelection::Order::Reverse;
    EXPECT_THAT(printedSides(look, 5), ElementsAre(2, 1, 0));
    EXPECT_THAT(pagesOnSide(look, 1, 5), ElementsAre(2, 3));
}

TEST(Selection, AReversedTwoSidedJobBeginsWithAnEmptySideWhereFrontsWouldBecomeBacks)
{
    SheetLook look;
    look.sides = Sides::Two;
    look.selection.order = SideSelection::Order::Reverse;
    EXPECT_THAT(printedSides(look, 3), ElementsAre(-1, 2, 1, 0));
    EXPECT_THAT(printedSides(look, 4), ElementsAre(3, 2, 1, 0));
    EXPECT_THAT(pagesOnSide(look, -1, 3), IsEmpty());
}

TEST(Selection, NothingComesOfADocumentWithoutPages)
{
    SheetLook look;
    look.sides = Sides::Two;
    look.selection.order = SideSelection::Order::Reverse;
    EXPECT_THAT(printedSides(look, 0), IsEmpty());
    EXPECT_THAT(printedSides(look, -1), IsEmpty());
}

TEST(Selection, ANumberOfPagesWithoutAGridCountsAsOne)
{
    SheetLook look;
    for (int number : {-4, 0, 5, 7, 17, 1000}) {
        look.pagesPerSheet = number;
        EXPECT_THAT(printedSides(look, 2), ElementsAre(0, 1)) << number;
    }
}

} // namespace
} // namespace dialog
