#include "dialog/presets/preset_name.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

TEST(PresetName, IsKeptWithoutSpaceAtItsEndsOrTwiceInARow)
{
    EXPECT_TEXT(cleanPresetName(q("  Photo \t on\nglossy  ")), "Photo on glossy");
}

TEST(PresetName, IsComposedSoThatOneSpellingIsOneName)
{
    EXPECT_TEXT(cleanPresetName(q("Gro\u00DF A\u0308")), "Groß Ä");
    EXPECT_TRUE(isSamePresetName(q("A\u0308"), q("ä")));
}

TEST(PresetName, IsTheSameInAnyCase)
{
    EXPECT_TRUE(isSamePresetName(q("Ärger"), q("ÄRGER")));
    EXPECT_FALSE(isSamePresetName(q("Photo"), q("Photo 2")));
}

TEST(PresetName, MustShowSomething)
{
    EXPECT_EQ(nameFault(q(""), {}), NameFault::Empty);
    EXPECT_EQ(nameFault(q(" \t "), {}), NameFault::Empty);
    EXPECT_EQ(nameFault(q("\u200B\u202E"), {}), NameFault::Empty) << "nobody sees these";
    EXPECT_EQ(nameFault(q("封筒"), {}), NameFault::None);
    EXPECT_EQ(nameFault(q("📷"), {}), NameFault::None);
}

TEST(PresetName, HasAsManyCharactersAsAPersonCounts)
{
    EXPECT_EQ(nameFault(q("📷").repeated(80), {}), NameFault::None);
    EXPECT_EQ(nameFault(q("📷").repeated(81), {}), NameFault::TooLong);
    EXPECT_EQ(nameFault(QString(80, u'a') + q("   "), {}), NameFault::None);
}

TEST(PresetName, IsTakenInAnyCase)
{
    EXPECT_EQ(nameFault(q(" PHOTO "), {q("Photo")}), NameFault::Taken);
    EXPECT_EQ(nameFault(q("Photos"), {q("Photo")}), NameFault::None);
}

TEST(PresetName, GetsTheFirstFreeNumber)
{
    EXPECT_TEXT(freePresetName(q("Photo"), {}), "Photo");
    EXPECT_TEXT(freePresetName(q("Photo"), {q("photo"), q("Photo 2")}), "Photo 3");
}

TEST(PresetName, StaysShortEnoughWithANumber)
{
    const QString longest = q("📷").repeated(80);
    const QString free = freePresetName(longest, {longest});
    EXPECT_TEXT(free.right(2), " 2");
    EXPECT_EQ(nameFault(free, {longest}), NameFault::None);
}

} // namespace
