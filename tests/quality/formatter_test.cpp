#include "quality/threshold_formatter.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <vector>

using test::q;

namespace {

struct Case
{
    const char *typed;
    const char *result;
    bool stands;
};

ThresholdFormatter controllerFormatter()
{
    return {1, 5, 1, CharacterSet::charactersInString(q("12345")), q("3")};
}

void expectJudgements(ThresholdFormatter formatter, const std::vector<Case> &cases)
{
    for (const Case &item : cases) {
        QString result = q("untouched");
        QString error = q("untouched");
        EXPECT_EQ(formatter.isPartialStringValid(q(item.typed), &result, &error), item.stands)
            << "typed: " << item.typed;
        EXPECT_TEXT(result, item.result) << "typed: " << item.typed;
        EXPECT_TEXT(error, "untouched");
    }
}

} // namespace

TEST(Formatter, Formatter_01_KeepsTheFieldToOneDigitFromOneToFive)
{
    expectJudgements(controllerFormatter(), {{"4", "4", true},
                                             {"7", "1", false},
                                             {"45", "5", false},
                                             {"12", "5", false},
                                             {"", "1", false},
                                             {"0", "1", false},
                                             {"3a", "3", false},
                                             {"-3", "1", false},
                                             {" 4", "1", false}});
}

TEST(Formatter, Formatter_02_CutsLongForeignAndBrokenTexts)
{
    expectJudgements(
        controllerFormatter(),
        {{"11", "5", false}, {"51", "5", false}, {"\u0663", "1", false}, {"1\n", "1", false}});
}

TEST(Formatter, Formatter_03_WithoutBoundsTakesDigitsAndDropsOneLeadingZero)
{
    expectJudgements(ThresholdFormatter(), {{"-5", "", false},
                                            {"007", "07", false},
                                            {"00", "0", false},
                                            {"0", "0", true},
                                            {"", "", true},
                                            {"12x", "12", false}});
}

TEST(Formatter, Formatter_04_TakesTheDecimalDigitsAtTheFirstCheckAndKeepsThem)
{
    ThresholdFormatter formatter;
    EXPECT_FALSE(formatter.characterSet());
    QString result;
    EXPECT_TRUE(formatter.isPartialStringValid(q("1"), &result, nullptr));
    ASSERT_TRUE(formatter.characterSet());
    EXPECT_TRUE(formatter.characterSet()->contains(u'3'));
    EXPECT_TRUE(formatter.characterSet()->contains(u'\u0663'));
    EXPECT_FALSE(formatter.characterSet()->contains(u'-'));
    EXPECT_FALSE(formatter.characterSet()->contains(u'\u00bd'));
}

TEST(Formatter, Formatter_05_CutsToTheLength)
{
    ThresholdFormatter formatter;
    formatter.setLength(2);
    expectJudgements(formatter, {{"123", "12", false}});
}

TEST(Formatter, Formatter_06_LetsTheMinimumWinOverASmallerMaximum)
{
    expectJudgements({7, 5, std::nullopt, std::nullopt, QString()},
                     {{"6", "7", false}, {"7", "7", false}});
}

TEST(Formatter, Formatter_07_ShowsStringsOnly)
{
    const ThresholdFormatter formatter = controllerFormatter();
    EXPECT_NULL(formatter.stringForObjectValue(5));
    EXPECT_TEXT(formatter.stringForObjectValue(q("x")), "x");
}

TEST(Formatter, Formatter_08_SaturatesInsteadOfOverflowing)
{
    expectJudgements({std::nullopt, 5, std::nullopt, std::nullopt, QString()},
                     {{"99999999999999999999", "5", false}});
}

TEST(Formatter, AMinusSignStandsInFrontOnlyAndOnlyWhereTheSetHoldsIt)
{
    ThresholdFormatter formatter;
    formatter.setAllowedCharacters(CharacterSet::charactersInString(q("-0123456789")));
    expectJudgements(
        formatter,
        {{"-5", "-5", true}, {"5-", "5", false}, {"--5", "-", false}, {"-0", "0", false}});
}

TEST(Formatter, TheEmptyValueStandsInWhereNoMinimumDoes)
{
    expectJudgements({std::nullopt, 5, 1, std::nullopt, q("3")},
                     {{"", "3", false}, {"x", "3", false}});
    expectJudgements({0, 5, 1, std::nullopt, q("3")}, {{"", "3", false}});
}

TEST(Formatter, TheStringIsItsOwnObjectValue)
{
    const ThresholdFormatter formatter = controllerFormatter();
    QVariant object;
    EXPECT_TRUE(formatter.getObjectValue(&object, q("anything"), nullptr));
    EXPECT_TEXT(object.toString(), "anything");

    const QVariantMap attributes{{q("color"), q("red")}};
    const AttributedString attributed =
        formatter.attributedStringForObjectValue(q("4"), attributes);
    EXPECT_TEXT(attributed.text, "4");
    EXPECT_EQ(attributed.attributes, attributes);
}

TEST(Formatter, ItsAccessorsActOnWhatTheChecksUse)
{
    ThresholdFormatter formatter;
    EXPECT_FALSE(formatter.minimum() || formatter.maximum() || formatter.length());
    formatter.setMinimum(2);
    formatter.setMaximum(8);
    formatter.setLength(3);
    EXPECT_EQ(formatter.minimum(), 2);
    EXPECT_EQ(formatter.maximum(), 8);
    EXPECT_EQ(formatter.length(), 3);
    expectJudgements(formatter, {{"1", "2", false}, {"9", "8", false}});
}
