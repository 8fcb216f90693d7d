#include "model/pop_up_filling.h"

#include "model/pde_tools.h"
#include "model/ppd_records.h"
#include "platform/controls/controls.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QComboBox>

#include <gtest/gtest.h>

#include <cstring>

using test::OpenPpd;
using test::q;

namespace {

constexpr unsigned long kUtf8 = platform::encoding::utf8;

class PopUpFilling : public testing::Test
{
protected:
    PopUpFilling()
    {
        for (const char *title : {"old 1", "old 2", "old 3"})
            controls::addItem(&popUp, q(title), q("Old"));
        controls::selectItemAtIndex(&popUp, 2);
        QObject::connect(&popUp, &QComboBox::activated, [this] { ++actions; });
    }

    [[nodiscard]] QStringList titles() const
    {
        QStringList list;
        for (int i = 0; i < popUp.count(); ++i)
            list.append(popUp.itemText(i));
        return list;
    }

    [[nodiscard]] QStringList keywords() const
    {
        QStringList list;
        for (int i = 0; i < popUp.count(); ++i)
            list.append(popUp.itemData(i).toString());
        return list;
    }

    QComboBox popUp;
    int actions = 0;
};

TEST_F(PopUpFilling, Queries_14_ItemsStandInThePpdsOrderAndCarryTheirKeywords)
{
    const OpenPpd ppd(test::p1());
    addItemsFromPPD(&popUp, ppd.get(), "InkToUse", kUtf8);
    EXPECT_EQ(titles(), QStringList({q("Automatic"), q("Color Only"), q("Black Only"),
                                     q("Color and Black"), q("Black and Color")}));
    EXPECT_EQ(keywords(), QStringList({q("Automatic"), q("ColorOnly"), q("BlackOnly"),
                                       q("ColorBlack"), q("BlackColor")}));
    EXPECT_EQ(popUp.currentIndex(), 0);
    EXPECT_EQ(actions, 0);
}

TEST_F(PopUpFilling, Queries_15_WithoutChoicesTheOldItemsGoAllTheSame)
{
    test::PpdText text = test::p1();
    text.add({"Bare", "Bare", test::PpdUi::PickOne, {}, ""});
    const OpenPpd ppd(text);
    struct Case
    {
        ppd_file_t *ppd;
        const char *key;
    };
    for (const Case &c : {Case{ppd.get(), "Nope"}, Case{ppd.get(), nullptr},
                          Case{nullptr, "InkToUse"}, Case{ppd.get(), "Bare"}}) {
        controls::addItem(&popUp, q("old"), q("Old"));
        addItemsFromPPD(&popUp, c.ppd, c.key, kUtf8);
        EXPECT_EQ(popUp.count(), 0) << (c.key ? c.key : "(null)");
        EXPECT_EQ(popUp.currentIndex(), -1);
        controls::addItem(&popUp, q("old"), q("Old"));
        addItemsFromPPD(&popUp, c.ppd, c.key, kUtf8, q(""));
        EXPECT_EQ(popUp.count(), 0) << (c.key ? c.key : "(null)") << ", with an exclusion";
    }
}

TEST_F(PopUpFilling, Queries_16_ExcludedKeywordsAreLeftOut)
{
    test::PpdText text = test::p1();
    text.option("InkToUse").choices = {{"Automatic", "Automatic"},
                                       {"BlackOnly", "Black Only"},
                                       {"ColorOnly", "Color Only"},
                                       {"BlackColor", "Black and Color"}};
    const OpenPpd ppd(text);
    addItemsFromPPD(&popUp, ppd.get(), "InkToUse", kUtf8, q("BlackOnly, BlackColor"));
    EXPECT_EQ(keywords(), QStringList({q("Automatic"), q("ColorOnly")}));
}

TEST_F(PopUpFilling, TheExclusionIsASubstringSearchOfTheKeyword)
{
    test::PpdText text = test::p1();
    text.option("InkToUse").choices = {{"Only", "a"}, {"BlackOnlyX", "b"}, {"black", "c"}};
    text.withDefault("InkToUse", "Only");
    const OpenPpd ppd(text);
    addItemsFromPPD(&popUp, ppd.get(), "InkToUse", kUtf8, q("BlackOnly, BlackColor"));
    EXPECT_EQ(keywords(), QStringList({q("BlackOnlyX"), q("black")}));
}

TEST_F(PopUpFilling, Queries_17_ANullExclusionEmptiesAnEmptyOneExcludesNothing)
{
    const OpenPpd ppd(test::p1());
    addItemsFromPPD(&popUp, ppd.get(), "InkToUse", kUtf8, QString());
    EXPECT_EQ(popUp.count(), 0);
    addItemsFromPPD(&popUp, ppd.get(), "InkToUse", kUtf8, q(""));
    EXPECT_EQ(popUp.count(), 5);
}

TEST_F(PopUpFilling, Queries_18_EqualTextsStayApartAndTheFirstIsSelectedByTitle)
{
    test::PpdText text;
    text.add({"Twins",
              "Twins",
              test::PpdUi::PickOne,
              {{"A", "Same"}, {"B", "Same"}, {"C", "Other"}},
              "A"});
    const OpenPpd ppd(text);
    addItemsFromPPD(&popUp, ppd.get(), "Twins", kUtf8);
    controls::selectItemWithTitle(&popUp, q("Other"));
    controls::selectItemWithTitle(&popUp, q("Same"));
    EXPECT_EQ(titles(), QStringList({q("Same"), q("Same"), q("Other")}));
    EXPECT_EQ(keywords(), QStringList({q("A"), q("B"), q("C")}));
    EXPECT_EQ(popUp.currentIndex(), 0);
}

TEST_F(PopUpFilling, Queries_19_TitlesAreDecodedWithTheGivenEncoding)
{
    struct Case
    {
        unsigned long encoding;
        const char *title;
    };
    for (const Case &c :
         {Case{4, "é"}, Case{5, "Ã©"}, Case{12, "Ã©"}, Case{30, "√©"}, Case{1, ""}}) {
        const OpenPpd ppd(test::p1());
        ppd_choice_t &choice = ppdFindOption(ppd.get(), "InkToUse")->choices[0];
        std::strcpy(choice.text, "\xC3\xA9");
        addItemsFromPPD(&popUp, ppd.get(), "InkToUse", c.encoding);
        ASSERT_EQ(popUp.count(), 5) << c.encoding;
        EXPECT_EQ(popUp.itemText(0), q(c.title)) << c.encoding;
    }
}

TEST_F(PopUpFilling, Queries_20_ABadByteReadsTheSameInThePopUpAndInAQuery)
{
    test::PpdText text = test::p1();
    text.option("InkToUse").choices[1].text = "Encre \xE9";
    const OpenPpd ppd(text);
    addItemsFromPPD(&popUp, ppd.get(), "InkToUse", kUtf8);
    const PDETools2 tools;
    const QString queried = tools.getOptionsChoice(
        q("ColorOnly"), tools.getPPDOption("InkToUse", ppd.get()), ChoiceString::Text);
    EXPECT_TEXT(queried, "Encre \xEF\xBF\xBD");
    controls::selectItemWithTitle(&popUp, queried);
    EXPECT_EQ(popUp.currentIndex(), 1);
}

TEST_F(PopUpFilling, AMissingPopUpIsNoReasonToCrash)
{
    const OpenPpd ppd(test::p1());
    addItemsFromPPD(nullptr, ppd.get(), "InkToUse", kUtf8);
    addItemsFromPPD(nullptr, ppd.get(), "InkToUse", kUtf8, q(""));
    SUCCEED();
}

TEST(PpdRecords, AnIndexOutsideTheOptionIsNoChoice)
{
    const OpenPpd ppd(test::p1());
    EXPECT_TEXT(ppd::choiceAt(ppd.get(), "InkToUse", 2, kUtf8).keyword, "BlackOnly");
    EXPECT_TEXT(ppd::choiceAt(ppd.get(), "InkToUse", 2, kUtf8).text, "Black Only");
    for (const int index : {-1, 5, 1'000'000})
        EXPECT_NULL(ppd::choiceAt(ppd.get(), "InkToUse", index, kUtf8).keyword) << index;
    EXPECT_NULL(ppd::choiceAt(ppd.get(), "Nope", 0, kUtf8).keyword);
    EXPECT_NULL(ppd::choiceAt(nullptr, "InkToUse", 0, kUtf8).keyword);
}

TEST(PpdRecords, AMissingOptionHasNoTextAndNoChoices)
{
    EXPECT_NULL(ppd::optionText(nullptr));
    EXPECT_NULL(ppd::optionKeyword(nullptr));
    EXPECT_TRUE(ppd::choiceKeywords(nullptr).isEmpty());
    EXPECT_TRUE(ppd::choiceTexts(nullptr).isEmpty());
}

TEST(PpdRecords, AnOptionTellsItsNameTextAndChoices)
{
    const OpenPpd ppd(test::p1());
    const ppd_option_t *sharpen = ppdFindOption(ppd.get(), "Sharpen");
    EXPECT_TEXT(ppd::optionText(sharpen), "Sharpening");
    EXPECT_TEXT(ppd::optionKeyword(sharpen), "Sharpen");
    EXPECT_EQ(ppd::choiceKeywords(sharpen), QStringList({q("Off"), q("Low"), q("High")}));
    EXPECT_EQ(ppd::choiceTexts(sharpen), QStringList({q("None"), q("Low"), q("High")}));
}

} // namespace
