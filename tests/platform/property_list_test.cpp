#include "platform/property_list.h"
#include "tests/platform/binary_list.h"
#include "tests/support/print_to.h"

#include <QDateTime>
#include <QSize>
#include <QStringEncoder>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

using platform::parsePropertyList;
using test::BinaryList;
using test::q;

namespace {

QVariant integer(qlonglong value)
{
    return QVariant::fromValue(value);
}

/// A list with that text between the tags of the root.
QByteArray xml(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + content +
           "</plist>\n";
}

QVariant fromXml(const QByteArray &content)
{
    return parsePropertyList(xml(content));
}

/// A list whose root is that object.
QVariant fromObject(const QByteArray &object)
{
    BinaryList list;
    const int root = list.add(object);
    return parsePropertyList(list.bytes(static_cast<quint64>(root)));
}

/// Same type and same value.
testing::AssertionResult isValue(const char *, const char *, const QVariant &actual,
                                 const QVariant &expected)
{
    if (actual.typeId() == expected.typeId() && actual == expected)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << testing::PrintToString(actual) << " is not " << testing::PrintToString(expected);
}

#define EXPECT_VALUE(actual, expected) EXPECT_PRED_FORMAT2(isValue, actual, QVariant(expected))
#define EXPECT_MISSING(actual) EXPECT_PRED_FORMAT2(isValue, actual, QVariant())

// --- Both forms -------------------------------------------------------------------------------

const QDateTime kDate(QDate(2009, 3, 1), QTime(12, 30, 5), Qt::UTC);

QVariantList everyType()
{
    return {true,
            false,
            integer(0),
            integer(2009),
            integer(-1),
            integer(std::numeric_limits<qint64>::max()),
            integer(std::numeric_limits<qint64>::min()),
            QVariant::fromValue<qulonglong>(std::numeric_limits<quint64>::max()),
            QVariant::fromValue<qulonglong>(quint64{1} << 63),
            0.5,
            -1e-300,
            std::numeric_limits<double>::infinity(),
            q(""),
            q("Korvane S300"),
            q("Größe 日本 \U0001F600 <&>\"'"),
            q(" \t\n\r\r\n kept "),
            QString(1000, u'x'),
            QByteArray(""),
            QByteArray("\0\x01\xff", 3),
            QByteArray(1000, '\xA5'),
            kDate,
            QVariantList{},
            QVariantList{integer(1), q("a"), QVariantList{false}},
            QVariantMap{},
            QVariantMap{{q("a"), integer(1)}, {q(""), q("b")}, {q("ü"), QVariantMap{}}}};
}

TEST(PropertyList, ReadsEveryTypeAlikeInBothForms)
{
    for (const QVariant &value : everyType()) {
        EXPECT_VALUE(parsePropertyList(platform::propertyListXml(value)), value);
        EXPECT_VALUE(parsePropertyList(test::binaryList(value)), value);
    }
}

TEST(PropertyList, ReadsEveryTypeAlikeWithinContainers)
{
    for (const QVariant &value : everyType()) {
        const QVariant list = QVariantMap{{q("a"), value}, {q("b"), QVariantList{value, value}}};
        EXPECT_VALUE(parsePropertyList(platform::propertyListXml(list)), list);
        EXPECT_VALUE(parsePropertyList(test::binaryList(list)), list);
    }
}

TEST(PropertyList, TellsTypesApart)
{
    EXPECT_FALSE(isValue("", "", QVariant(1.0), integer(1)));
    EXPECT_FALSE(isValue("", "", QVariant(true), integer(1)));
    EXPECT_FALSE(isValue("", "", QVariant(q("1")), integer(1)));
    EXPECT_VALUE(fromXml("<real>1</real>"), 1.0);
    EXPECT_VALUE(fromXml("<true/>"), true);
    EXPECT_VALUE(fromXml("<string>1</string>"), q("1"));
    EXPECT_VALUE(fromXml("<integer>1</integer>"), integer(1));
}

TEST(PropertyList, TakesTheLaterOfEqualKeys)
{
    const QVariant expected = QVariantMap{{q("k"), q("later")}};
    EXPECT_VALUE(fromXml("<dict><key>k</key><string>earlier</string>"
                         "<key>k</key><string>later</string></dict>"),
                 expected);
    BinaryList list;
    const int key = list.addText("k");
    const int earlier = list.addText("earlier");
    const int later = list.addText("later");
    const int root = list.addDictionary({key, key}, {earlier, later});
    EXPECT_VALUE(parsePropertyList(list.bytes(static_cast<quint64>(root))), expected);
}

TEST(PropertyList, EmptyTextIsNotNull)
{
    EXPECT_TEXT(fromXml("<string></string>").toString(), "");
    EXPECT_TEXT(fromXml("<string/>").toString(), "");
    EXPECT_TEXT(fromObject("\x50").toString(), "");
    EXPECT_TEXT(fromObject("\x60").toString(), "");
}

TEST(PropertyList, ValueForKeyIsMissingWithoutADictionaryThatHasIt)
{
    const QVariant dictionary = QVariantMap{{q("a"), integer(1)}, {q(""), integer(2)}};
    EXPECT_VALUE(platform::valueForKey(dictionary, q("a")), integer(1));
    EXPECT_VALUE(platform::valueForKey(dictionary, q("")), integer(2));
    EXPECT_MISSING(platform::valueForKey(dictionary, q("A")));
    EXPECT_MISSING(platform::valueForKey(dictionary, QString()));
    EXPECT_MISSING(platform::valueForKey(QVariantList{dictionary}, q("a")));
    EXPECT_MISSING(platform::valueForKey(q("a"), q("a")));
    EXPECT_MISSING(platform::valueForKey(QVariant(), q("a")));
}

// --- Writing ----------------------------------------------------------------------------------

TEST(PropertyListXml, IsADocumentWithSortedKeys)
{
    const QVariant list = QVariantMap{
        {q("b"), QVariantList{true, integer(-1), 0.5}}, {q("a"), q("<ü>")}, {q("c"), kDate}};
    EXPECT_EQ(platform::propertyListXml(list).toStdString(),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
	<key>a</key>
	<string>&lt;ü&gt;</string>
	<key>b</key>
	<array>
		<true/>
		<integer>-1</integer>
		<real>0.5</real>
	</array>
	<key>c</key>
	<date>2009-03-01T12:30:05Z</date>
</dict>
</plist>
)");
}

TEST(PropertyListXml, WritesIntAsInteger)
{
    EXPECT_VALUE(parsePropertyList(platform::propertyListXml(QVariant(-7))), integer(-7));
}

TEST(PropertyListXml, WritesNanAndLocalDatesSoThatTheyAreReadBack)
{
    EXPECT_TRUE(std::isnan(parsePropertyList(platform::propertyListXml(std::nan(""))).toDouble()));
    const QDateTime elsewhere = kDate.toOffsetFromUtc(-5 * 3600);
    EXPECT_VALUE(parsePropertyList(platform::propertyListXml(elsewhere)), kDate);
}

TEST(PropertyListXml, IsNullForOtherTypes)
{
    EXPECT_TRUE(platform::propertyListXml(QVariant()).isNull());
    EXPECT_TRUE(platform::propertyListXml(QVariant(QStringList{q("a")})).isNull());
    EXPECT_TRUE(platform::propertyListXml(QVariantList{integer(1), QVariant(QSize())}).isNull());
    EXPECT_TRUE(platform::propertyListXml(QVariantMap{{q("a"), QVariant()}}).isNull());
}

TEST(PropertyListXml, IsNullForTextsThatXmlCannotCarry)
{
    for (const QString &text : {QString(QChar(u'\0')), q("a\x1b"), QString(QChar(0xD800)),
                                QString(QChar(0xFFFE)), QString(QChar(0xFFFF))}) {
        EXPECT_TRUE(platform::propertyListXml(text).isNull());
        EXPECT_TRUE(platform::propertyListXml(QVariantMap{{text, true}}).isNull());
    }
}

TEST(PropertyListXml, IsNullBeyondTheDepthThatCanBeRead)
{
    QVariant list = QVariantList{};
    for (int depth = 1; depth < 64; ++depth)
        list = QVariantList{list};
    EXPECT_VALUE(parsePropertyList(platform::propertyListXml(list)), list);
    EXPECT_TRUE(platform::propertyListXml(QVariantList{list}).isNull());
    EXPECT_TRUE(platform::propertyListXml(QVariantMap{{q("k"), list}}).isNull());
}

// --- The XML form -----------------------------------------------------------------------------

TEST(XmlList, IsReadWithDocumentTypeCommentsAndInstructions)
{
    EXPECT_VALUE(
        parsePropertyList("<?xml version='1.0'?><!-- <dict> --><?app <x> ?>\n"
                          "<!DOCTYPE plist PUBLIC \"-//Korvane//DTD LIST 1.0//EN\" "
                          "\"http://example.invalid/list.dtd\">\n"
                          "<plist><!-- > --><dict><!--k--><key>a<!--b-->c</key><?x?>"
                          "<string>d<!--e-->f<![CDATA[<g>&]]></string></dict></plist><!--end-->"),
        (QVariantMap{{q("ac"), q("df<g>&")}}));
}

TEST(XmlList, IsReadWithoutADeclaration)
{
    EXPECT_VALUE(parsePropertyList("<plist><true/></plist>"), true);
    EXPECT_VALUE(parsePropertyList("\n <plist><true></true></plist>\n "), true);
}

TEST(XmlList, IsReadInTheEncodingOfItsByteOrderMark)
{
    const QString text = q("<plist><string>Größe 日本</string></plist>");
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE,
          QStringConverter::Utf32LE, QStringConverter::Utf32BE}) {
        QStringEncoder withMark(encoding, QStringConverter::Flag::WriteBom);
        QStringEncoder withoutMark(encoding);
        EXPECT_VALUE(parsePropertyList(withMark(text)), q("Größe 日本")) << encoding;
        EXPECT_VALUE(parsePropertyList(withoutMark(text)), q("Größe 日本")) << encoding;
    }
}

TEST(XmlList, IsReadInTheEncodingOfItsDeclaration)
{
    EXPECT_VALUE(parsePropertyList("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"
                                   "<plist><string>Gr\xf6\xdf"
                                   "e</string></plist>"),
                 q("Größe"));
    EXPECT_VALUE(parsePropertyList("<?xml version='1.0' encoding='Shift_JIS' ?>"
                                   "<plist><string>\x93\xfa\x96\x7b</string></plist>"),
                 q("日本"));
}

TEST(XmlList, IsMissingWhenItsEncodingIsUnknownOrWrong)
{
    EXPECT_MISSING(
        parsePropertyList("<?xml version='1.0' encoding='nonsense'?><plist><true/></plist>"));
    EXPECT_MISSING(
        parsePropertyList("<?xml version='1.0' encoding='UTF-16'?><plist><true/></plist>"));
    EXPECT_MISSING(fromXml("<string>Gr\xf6\xdf"
                           "e</string>"));
    EXPECT_MISSING(fromXml("<string>cut \xe6\x97</string>"));
    QByteArray halfPair("\xff\xfe", 2);
    for (const char16_t unit : u"<plist><string>\xD800</string></plist>")
        halfPair += QByteArray::fromRawData(reinterpret_cast<const char *>(&unit), 2);
    halfPair.chop(2);
    EXPECT_MISSING(parsePropertyList(halfPair));
}

TEST(XmlList, IsMissingWithoutExactlyOneValueInItsRoot)
{
    for (const QByteArray &list :
         std::initializer_list<QByteArray>{"",
                                           " ",
                                           "junk",
                                           "<",
                                           "<plist>",
                                           "<plist/>",
                                           "<plist></plist>",
                                           "<plist>text</plist>",
                                           "<true/>",
                                           "<dict></dict>",
                                           "<list><true/></list>",
                                           "<PLIST><true/></PLIST>",
                                           "<x:plist><true/></x:plist>",
                                           "<plist><true/><true/></plist>",
                                           "<plist><plist><true/></plist></plist>",
                                           "<plist>x<true/></plist>",
                                           "<plist><true/>x</plist>",
                                           "<plist><true/></plist>x",
                                           "x<plist><true/></plist>",
                                           "<plist><true/></plist><plist/>",
                                           "<plist><true/></dict>",
                                           "<plist><true/>",
                                           "<html><plist><true/></plist></html>"})
        EXPECT_MISSING(parsePropertyList(list)) << list.constData();
}

TEST(XmlList, IsMissingWhenAContainerHoldsWhatItMayNot)
{
    for (const QByteArray &list : std::initializer_list<QByteArray>{
             "<plist><dict><key>a</key></dict></plist>", "<plist><dict><true/></dict></plist>",
             "<plist><dict><string>a</string><true/></dict></plist>",
             "<plist><dict><key>a</key><key>b</key></dict></plist>",
             "<plist><dict><key>a</key><true/><true/></dict></plist>",
             "<plist><dict><key><b>a</b></key><true/></dict></plist>",
             "<plist><dict>x<key>a</key><true/></dict></plist>",
             "<plist><dict><key>a</key>x<true/></dict></plist>",
             "<plist><dict><key>a</key><true/>x</dict></plist>",
             "<plist><dict><key>a</key><array><unknown/></array></dict></plist>",
             "<plist><array>x</array></plist>", "<plist><array><key>a</key></array></plist>",
             "<plist><array><true/></dict></plist>", "<plist><array><true/></plist>",
             "<plist><set><true/></set></plist>", "<plist><key>a</key></plist>"})
        EXPECT_MISSING(parsePropertyList(list)) << list.constData();
}

TEST(XmlList, IsMissingWhenALeafIsUnknownOrUnreadable)
{
    for (const QByteArray &list : std::initializer_list<QByteArray>{
             "<plist><unknown/></plist>",
             "<plist><null/></plist>",
             "<plist><String/></plist>",
             "<plist><true>x</true></plist>",
             "<plist><false> </false></plist>",
             "<plist><true><true/></true></plist>",
             "<plist><string>a<b/>c</string></plist>",
             "<plist><string>&x;</string></plist>",
             "<!DOCTYPE plist SYSTEM 'x.dtd'><plist><string>&x;</string></plist>",
             "<plist><string>&#0;</string></plist>",
             "<plist><string>a & b</string></plist>",
             "<plist><string>&#x1b;</string></plist>",
             "<plist><integer></integer></plist>",
             "<plist><integer>x</integer></plist>",
             "<plist><integer>1.5</integer></plist>",
             "<plist><integer>1 2</integer></plist>",
             "<plist><integer>--1</integer></plist>",
             "<plist><integer>1,000</integer></plist>",
             "<plist><integer>18446744073709551616</integer></plist>",
             "<plist><integer>-9223372036854775809</integer></plist>",
             "<plist><integer>\u0661</integer></plist>",
             "<plist><real></real></plist>",
             "<plist><real>x</real></plist>",
             "<plist><real>1,5</real></plist>",
             "<plist><real>1e999</real></plist>",
             "<plist><date></date></plist>",
             "<plist><date>2009-03-01</date></plist>",
             "<plist><date>2009-13-01T12:00:00Z</date></plist>",
             "<plist><date>2009-02-29T12:00:00Z</date></plist>",
             "<plist><date>2009-03-01T12:00:00</date></plist>",
             "<plist><date>2009-03-01T12:00Z</date></plist>",
             "<plist><date>2009-03-01T12:00:00.5Z</date></plist>",
             "<plist><date>2009-03-01T12:00:00+01:00</date></plist>",
             "<plist><data>!!</data></plist>",
             "<plist><data>QQ=Q</data></plist>",
             "<plist><data>\u00e4</data></plist>"})
        EXPECT_MISSING(parsePropertyList(list)) << list.constData();
}

TEST(XmlList, ReadsNumbersWithSpaceSignAndHexadecimalDigits)
{
    EXPECT_VALUE(fromXml("<integer> -12\n</integer>"), integer(-12));
    EXPECT_VALUE(fromXml("<integer>+12</integer>"), integer(12));
    EXPECT_VALUE(fromXml("<integer>010</integer>"), integer(10));
    EXPECT_VALUE(fromXml("<integer>0x1F</integer>"), integer(31));
    EXPECT_VALUE(fromXml("<real> 1e3 </real>"), 1000.0);
    EXPECT_VALUE(fromXml("<real>-inf</real>"), -std::numeric_limits<double>::infinity());
}

TEST(XmlList, ReadsDataWithWhiteSpace)
{
    EXPECT_VALUE(fromXml("<data>\n\tS29y\n\tdmFuZQ==\n</data>"), QByteArray("Korvane"));
}

TEST(XmlList, KeepsLineEndsAsXmlDoes)
{
    EXPECT_VALUE(fromXml("<string>a\r\nb\rc&#13;d</string>"), q("a\nb\nc\rd"));
}

// --- The binary form --------------------------------------------------------------------------

TEST(BinaryListObject, ReadsIntegersOfEveryWidth)
{
    EXPECT_VALUE(fromObject(QByteArray("\x10\xff", 2)), integer(255));
    EXPECT_VALUE(fromObject(QByteArray("\x11\xff\xfe", 3)), integer(65534));
    EXPECT_VALUE(fromObject(QByteArray("\x12\xff\xff\xff\xff", 5)), integer(4294967295));
    EXPECT_VALUE(fromObject("\x13" + QByteArray(8, '\xff')), integer(-1));
    EXPECT_VALUE(fromObject("\x14" + QByteArray(8, '\0') + QByteArray(8, '\xff')),
                 QVariant::fromValue(~quint64{0}));
    EXPECT_VALUE(fromObject("\x14" + QByteArray(15, '\0') + "\x05"), integer(5));
}

TEST(BinaryListObject, ReadsRealsOfBothWidths)
{
    EXPECT_VALUE(fromObject(QByteArray("\x22\x3f\x00\x00\x00", 5)), 0.5);
    EXPECT_VALUE(fromObject("\x23" + BinaryList::number(std::bit_cast<quint64>(-2.25), 8)), -2.25);
}

TEST(BinaryListObject, ReadsDatesWithTheirMilliseconds)
{
    const quint64 bits = std::bit_cast<quint64>(-0.5);
    EXPECT_VALUE(fromObject("\x33" + BinaryList::number(bits, 8)),
                 QDateTime(QDate(2000, 12, 31), QTime(23, 59, 59, 500), Qt::UTC));
}

TEST(BinaryListObject, ReadsTextsInBothEncodings)
{
    EXPECT_VALUE(fromObject("\x53"
                            "abc"),
                 q("abc"));
    EXPECT_VALUE(fromObject(QByteArray("\x62\x65\xe5\x67\x2c", 5)), q("日本"));
    EXPECT_VALUE(fromObject(QByteArray("\x62\xd8\x3d\xde\x00", 5)), q("\U0001F600"));
}

TEST(BinaryListObject, ReadsTextsWithNuls)
{
    EXPECT_VALUE(fromObject(QByteArray("\x53"
                                       "a\0b",
                                       4)),
                 QString::fromLatin1("a\0b", 3));
    EXPECT_VALUE(fromObject(QByteArray("\x62\0a\0\0", 5)), QString::fromLatin1("a\0", 2));
}

TEST(BinaryListObject, ReadsCountsOfEveryWidth)
{
    EXPECT_VALUE(fromObject(QByteArray("\x5f\x10\x02"
                                       "ab",
                                       5)),
                 q("ab"));
    EXPECT_VALUE(fromObject(QByteArray("\x5f\x11\x00\x02"
                                       "ab",
                                       6)),
                 q("ab"));
    EXPECT_VALUE(fromObject(QByteArray("\x5f\x12\x00\x00\x00\x02"
                                       "ab",
                                       8)),
                 q("ab"));
    EXPECT_VALUE(fromObject(QByteArray("\x4f\x13\0\0\0\0\0\0\0\x02"
                                       "ab",
                                       12)),
                 QByteArray("ab"));
}

TEST(BinaryListObject, IsReadWithTablesOfEveryWidth)
{
    for (int offsetSize = 1; offsetSize <= 8; ++offsetSize) {
        for (int indexSize = 1; indexSize <= 8; ++indexSize) {
            BinaryList list(offsetSize, indexSize);
            const int root = list.addValue(QVariantList{q("a"), integer(1)});
            EXPECT_VALUE(parsePropertyList(list.bytes(static_cast<quint64>(root))),
                         (QVariantList{q("a"), integer(1)}));
        }
    }
}

TEST(BinaryListObject, MayStandInManyPlaces)
{
    BinaryList list;
    const int text = list.addText("shared");
    const int inner = list.addArray({text, text});
    const int root = list.addArray({inner, inner, text});
    const QVariantList pair{q("shared"), q("shared")};
    EXPECT_VALUE(parsePropertyList(list.bytes(static_cast<quint64>(root))),
                 (QVariantList{pair, pair, q("shared")}));
}

/// As the root, and as one item among others.
void expectMissing(const QByteArray &object)
{
    EXPECT_MISSING(fromObject(object)) << object.toHex().constData();
    BinaryList list;
    const int bad = list.add(object);
    const int good = list.addText("good");
    const int root = list.addArray({good, bad});
    EXPECT_MISSING(parsePropertyList(list.bytes(static_cast<quint64>(root))));
}

QByteArray dateObject(double seconds)
{
    return "\x33" + BinaryList::number(std::bit_cast<quint64>(seconds), 8);
}

TEST(BinaryListObjects, MakeTheListMissingWhenTheirTypeIsNoneOfOurs)
{
    for (const QByteArray &object : std::initializer_list<QByteArray>{
             QByteArray(1, '\0'),                    // null
             QByteArray("\x0f"), QByteArray("\x01"), // fill, unknown
             QByteArray("\x80\x01"),                 // identifier
             QByteArray("\xb0"), QByteArray("\xc0"), // sets
             QByteArray("\x71"
                        "a"),
             QByteArray("\x90"), QByteArray("\xe0"), QByteArray("\xf0")})
        expectMissing(object);
}

TEST(BinaryListObjects, MakeTheListMissingWhenTheyAreNumbersOfOtherWidths)
{
    for (const QByteArray &object : std::initializer_list<QByteArray>{
             QByteArray("\x15") + QByteArray(32, '\0'), QByteArray("\x1f") + QByteArray(32, '\0'),
             QByteArray("\x14") + QByteArray(7, '\0') + "\x01" + QByteArray(8, '\0'),
             QByteArray("\x14") + QByteArray(16, '\xff'), QByteArray("\x21\x3f\x00", 3),
             QByteArray("\x24") + QByteArray(16, '\0'), QByteArray("\x32") + QByteArray(4, '\0')})
        expectMissing(object);
}

TEST(BinaryListObjects, MakeTheListMissingWhenTheyAreDatesOutOfRange)
{
    for (const QByteArray &object : std::initializer_list<QByteArray>{
             dateObject(std::nan("")), dateObject(1e300), dateObject(-1e300), dateObject(1e12),
             dateObject(-1e12), dateObject(std::numeric_limits<double>::infinity())})
        expectMissing(object);
}

TEST(BinaryListObjects, MakeTheListMissingWhenTheyAreNoText)
{
    for (const QByteArray &object : std::initializer_list<QByteArray>{
             QByteArray("\x53"
                        "a\xe4"
                        "b"),
             QByteArray("\x61\xd8\x3d"), QByteArray("\x61\xde\x00", 3)})
        expectMissing(object);
}

} // namespace
