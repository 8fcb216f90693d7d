#include "platform/strings.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using platform::booleanValue;
using platform::decoded;
using platform::integerValue;
using test::q;
namespace encoding = platform::encoding;

namespace {

constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();

TEST(Equality, TellsNullFromEmpty)
{
    EXPECT_TRUE(platform::isEqual(QString(), QString()));
    EXPECT_TRUE(platform::isEqual(q(""), q("")));
    EXPECT_TRUE(platform::isEqual(q("a"), q("a")));
    EXPECT_FALSE(platform::isEqual(QString(), q("")));
    EXPECT_FALSE(platform::isEqual(q(""), QString()));
    EXPECT_FALSE(platform::isEqual(QString(), q("a")));
    EXPECT_FALSE(platform::isEqual(q("a"), q("A")));
}

TEST(Identity, HoldsForCopiesAndNotForEqualTexts)
{
    const QString text = q("Plain");
    const QString copy = text;
    const QString twin = q("Plain");
    EXPECT_TRUE(platform::isSameObject(text, copy));
    EXPECT_FALSE(platform::isSameObject(text, twin));
}

TEST(Identity, LooksAtSizeAsWellAsData)
{
    const QString text = q("Plain");
    const QString beginning = QString::fromRawData(text.constData(), 3);
    EXPECT_FALSE(platform::isSameObject(text, beginning));
    EXPECT_TRUE(platform::isSameObject(beginning, QString::fromRawData(text.constData(), 3)));
}

TEST(Identity, TakesNullsAsOneAndEmptyTextsAsAnother)
{
    QString reserved = q("x");
    reserved.resize(0);
    EXPECT_TRUE(platform::isSameObject(QString(), QString()));
    EXPECT_TRUE(platform::isSameObject(q(""), reserved));
    EXPECT_FALSE(platform::isSameObject(QString(), q("")));
}

TEST(Description, PrintsNullAsAWord)
{
    EXPECT_TEXT(platform::described(QString()), "(null)");
    EXPECT_TEXT(platform::described(q("")), "");
    EXPECT_TEXT(platform::described(q("text")), "text");
}

TEST(IntegerOfText, ReadsUpToTheFirstOtherCharacter)
{
    EXPECT_EQ(integerValue(q("2009")), 2009);
    EXPECT_EQ(integerValue(q(" 2009x")), 2009);
    EXPECT_EQ(integerValue(q("\t\n 12 34")), 12);
    EXPECT_EQ(integerValue(q("1,234")), 1);
    EXPECT_EQ(integerValue(q("2009.9")), 2009);
    EXPECT_EQ(integerValue(q("1e3")), 1);
    EXPECT_EQ(integerValue(q("0x10")), 0);
    EXPECT_EQ(integerValue(q("007")), 7);
}

TEST(IntegerOfText, TakesOneSign)
{
    EXPECT_EQ(integerValue(q("-5")), -5);
    EXPECT_EQ(integerValue(q("+5")), 5);
    EXPECT_EQ(integerValue(q("--5")), 0);
    EXPECT_EQ(integerValue(q("+-5")), 0);
    EXPECT_EQ(integerValue(q("- 5")), 0);
}

TEST(IntegerOfText, IsZeroWithoutDigits)
{
    EXPECT_EQ(integerValue(QString()), 0);
    EXPECT_EQ(integerValue(q("")), 0);
    EXPECT_EQ(integerValue(q("   ")), 0);
    EXPECT_EQ(integerValue(q("abc")), 0);
    EXPECT_EQ(integerValue(q("x5")), 0);
    EXPECT_EQ(integerValue(q("-")), 0);
}

TEST(IntegerOfText, KnowsAsciiDigitsOnly)
{
    EXPECT_EQ(integerValue(q("\u0663\u0664")), 0); // Arabic-Indic
    EXPECT_EQ(integerValue(q("\uff15")), 0);       // full width
    EXPECT_EQ(integerValue(q("1\u0663")), 1);
}

TEST(IntegerOfText, SaturatesAtTheLimits)
{
    EXPECT_EQ(integerValue(q("2147483647")), kMax);
    EXPECT_EQ(integerValue(q("2147483648")), kMax);
    EXPECT_EQ(integerValue(q("-2147483648")), kMin);
    EXPECT_EQ(integerValue(q("-2147483649")), kMin);
    EXPECT_EQ(integerValue(QString(5000, u'9')), kMax);
    EXPECT_EQ(integerValue(q("-") + QString(5000, u'9')), kMin);
    EXPECT_EQ(integerValue(QString(5000, u'0') + q("7")), 7);
}

TEST(IntegerOfValue, TruncatesRealsAndSaturates)
{
    EXPECT_EQ(integerValue(QVariant(2009.9)), 2009);
    EXPECT_EQ(integerValue(QVariant(-2.9)), -2);
    EXPECT_EQ(integerValue(QVariant(1e300)), kMax);
    EXPECT_EQ(integerValue(QVariant(-1e300)), kMin);
    EXPECT_EQ(integerValue(QVariant(2147483647.5)), kMax);
    EXPECT_EQ(integerValue(QVariant(std::numeric_limits<double>::infinity())), kMax);
    EXPECT_EQ(integerValue(QVariant(std::nan(""))), 0);
}

TEST(IntegerOfValue, SaturatesLargeIntegers)
{
    EXPECT_EQ(integerValue(QVariant::fromValue<qlonglong>(2009)), 2009);
    EXPECT_EQ(integerValue(QVariant::fromValue<qlonglong>(qint64{1} << 40)), kMax);
    EXPECT_EQ(integerValue(QVariant::fromValue<qlonglong>(-(qint64{1} << 40))), kMin);
    EXPECT_EQ(integerValue(QVariant::fromValue<qulonglong>(~quint64{0})), kMax);
    EXPECT_EQ(integerValue(QVariant(-1)), -1);
}

TEST(IntegerOfValue, TakesBooleansAndTextsAndNothingElse)
{
    EXPECT_EQ(integerValue(QVariant(true)), 1);
    EXPECT_EQ(integerValue(QVariant(false)), 0);
    EXPECT_EQ(integerValue(QVariant(q(" 2009x"))), 2009);
    EXPECT_EQ(integerValue(QVariant()), 0);
    EXPECT_EQ(integerValue(QVariant(QByteArray("7"))), 0);
    EXPECT_EQ(integerValue(QVariant(QVariantList{7})), 0);
}

TEST(BooleanOfValue, IsTrueForNumbersThatAreNotZero)
{
    EXPECT_TRUE(booleanValue(QVariant(true)));
    EXPECT_FALSE(booleanValue(QVariant(false)));
    EXPECT_TRUE(booleanValue(QVariant(0.5)));
    EXPECT_FALSE(booleanValue(QVariant(0.0)));
    EXPECT_FALSE(booleanValue(QVariant(-0.0)));
    EXPECT_TRUE(booleanValue(QVariant(-1)));
    EXPECT_FALSE(booleanValue(QVariant(0)));
    EXPECT_TRUE(booleanValue(QVariant::fromValue<qlonglong>(qint64{1} << 32)));
    EXPECT_FALSE(booleanValue(QVariant::fromValue<qlonglong>(0)));
    EXPECT_TRUE(booleanValue(QVariant::fromValue<qulonglong>(quint64{1} << 63)));
    EXPECT_FALSE(booleanValue(QVariant::fromValue<qulonglong>(0)));
}

TEST(BooleanOfText, IsTrueForYesTrueAndNumbers)
{
    for (const char *text : {"Y", "y", "T", "t", "YES", "yes", "true", "Tomato", "  y", "\ttrue",
                             "1", "9", "+1", "-1", "007", "-0001", " +05", "1.5", "10x"})
        EXPECT_TRUE(booleanValue(QVariant(q(text)))) << text;
}

TEST(BooleanOfText, IsFalseForEveryOtherText)
{
    for (const char *text : {"",   "  ", "0",  "000", "-0",  "+",   "-",   "no", "false", "on",
                             "+y", "-t", "0y", "0.5", "0x1", "+ 1", "--1", "x1", ".5",    "\u0661"})
        EXPECT_FALSE(booleanValue(QVariant(q(text)))) << text;
}

TEST(BooleanOfValue, IsFalseForEverythingElse)
{
    EXPECT_FALSE(booleanValue(QVariant()));
    EXPECT_FALSE(booleanValue(QVariant(QString())));
    EXPECT_FALSE(booleanValue(QVariant(QByteArray("1"))));
    EXPECT_FALSE(booleanValue(QVariant(QVariantList{true})));
    EXPECT_FALSE(booleanValue(QVariant(QVariantMap{{q("a"), true}})));
}

TEST(DroppingTheLastPathComponent, IsPureText)
{
    constexpr const char *cases[][2] = {
        {"/a/b", "/a"}, {"/a", "/"},    {"/", "/"},         {"a/b", "a"},     {"a//b", "a"},
        {"a", ""},      {"", ""},       {"/a/b/", "/a"},    {"//", "/"},      {"//a", "/"},
        {"a/", ""},     {"../b", ".."}, {"/a/./b", "/a/."}, {"/a/b//", "/a"},
    };
    for (const auto &[path, expected] : cases)
        EXPECT_TEXT(platform::droppingLastPathComponent(q(path)), expected) << path;
    EXPECT_NULL(platform::droppingLastPathComponent(QString()));
}

TEST(Trimming, TakesCharactersFromBothEndsByCase)
{
    const QString set = q("/Library/Printers/Korvane/");
    EXPECT_TEXT(platform::trimmingCharacters(q("/Library/Printers/Korvane/2009/Drivers"), set),
                "2009/D");
    EXPECT_TEXT(platform::trimmingCharacters(q("/Library/Printers/Korvane/2009"), set), "2009");
    EXPECT_TEXT(platform::trimmingCharacters(q("xABx"), q("ab")), "xABx");
    EXPECT_TEXT(platform::trimmingCharacters(q("aABa"), q("a")), "AB");
    EXPECT_TEXT(platform::trimmingCharacters(q("aaa"), q("a")), "");
    EXPECT_TEXT(platform::trimmingCharacters(q("abc"), q("")), "abc");
    EXPECT_TEXT(platform::trimmingCharacters(q(""), q("a")), "");
    EXPECT_NULL(platform::trimmingCharacters(QString(), q("a")));
}

TEST(Trimming, GoesByUnitsAndNotByCharacters)
{
    const QString pair = q("\U0001F600");
    const QString withSameHighHalf = q("\U0001F601");
    EXPECT_EQ(platform::trimmingCharacters(pair, withSameHighHalf), pair.mid(1));
}

TEST(TextSearch, FindsNoEmptyNeedleAndMindsCase)
{
    EXPECT_TRUE(platform::containsText(q("zh_CN"), q("zh")));
    EXPECT_FALSE(platform::containsText(q("zh_CN"), q("ZH")));
    EXPECT_FALSE(platform::containsText(q("zh_CN"), q("")));
    EXPECT_FALSE(platform::containsText(q("zh_CN"), QString()));
    EXPECT_FALSE(platform::containsText(q(""), q("")));
    EXPECT_FALSE(platform::containsText(QString(), q("zh")));
}

TEST(Decoding, KnowsTheSixEncodings)
{
    EXPECT_TEXT(decoded("Plain", encoding::ascii), "Plain");
    EXPECT_TEXT(decoded("Gr\xc3\xb6\xc3\x9f"
                        "e",
                        encoding::utf8),
                "Größe");
    EXPECT_TEXT(decoded("Gr\xf6\xdf"
                        "e",
                        encoding::isoLatin1),
                "Größe");
    EXPECT_TEXT(decoded("10 \x80", encoding::windowsLatin1), "10 €");
    EXPECT_TEXT(decoded("Gr\x9a\xa7"
                        "e",
                        encoding::macRoman),
                "Größe");
    EXPECT_TEXT(decoded("\x93\xfa\x96\x7b", encoding::shiftJis), "日本");
    EXPECT_TEXT(platform::decodedUtf8("\xe6\x97\xa5"), "日");
}

TEST(Decoding, GivesNullWithoutBytesOrEncoding)
{
    EXPECT_NULL(decoded(nullptr, encoding::utf8));
    EXPECT_NULL(decoded(nullptr, encoding::ascii));
    EXPECT_NULL(platform::decodedUtf8(nullptr));
    EXPECT_NULL(decoded("text", 0));
    EXPECT_NULL(decoded("text", 2));
    EXPECT_NULL(decoded("text", 99));
}

TEST(Decoding, GivesEmptyForNoBytes)
{
    for (const unsigned long number :
         {encoding::ascii, encoding::utf8, encoding::isoLatin1, encoding::shiftJis,
          encoding::windowsLatin1, encoding::macRoman})
        EXPECT_TEXT(decoded("", number), "") << number;
}

TEST(Decoding, RefusesAsciiTextsWithOtherBytes)
{
    EXPECT_NULL(decoded("Gr\xf6\xdf"
                        "e",
                        encoding::ascii));
    EXPECT_NULL(decoded("\x80", encoding::ascii));
    EXPECT_TEXT(decoded("\x7f", encoding::ascii), "\x7f");
}

TEST(Decoding, ShowsUnreadableBytesAsReplacementCharacters)
{
    EXPECT_TEXT(decoded("a\xff"
                        "b",
                        encoding::utf8),
                "a\uFFFDb");
    EXPECT_TEXT(decoded("cut \xe6\x97", encoding::utf8).left(5), "cut \uFFFD");
    EXPECT_TEXT(decoded("a\xff"
                        "b",
                        encoding::shiftJis),
                "a\uFFFDb");
}

} // namespace
