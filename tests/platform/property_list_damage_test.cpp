#include "platform/property_list.h"
#include "tests/platform/binary_list.h"
#include "tests/support/print_to.h"

#include <QDateTime>
#include <QStringEncoder>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using platform::parsePropertyList;
using test::BinaryList;
using test::q;

// Lists that are damaged or made to harm: each one is missing, or goes to a limit and is read.

namespace {

bool isMissing(const QByteArray &bytes)
{
    return !parsePropertyList(bytes).isValid();
}

bool isMissing(const BinaryList &list, int root)
{
    return isMissing(list.bytes(static_cast<quint64>(root)));
}

QByteArray xml(const QByteArray &content)
{
    return "<plist>" + content + "</plist>";
}

/// Arrays within one another, with a text in the innermost.
QByteArray nestedXml(int depth)
{
    return xml(QByteArray("<array>").repeated(depth) + "<string>x</string>" +
               QByteArray("</array>").repeated(depth));
}

QByteArray nestedBinary(int depth)
{
    BinaryList list;
    int inner = list.addText("x");
    for (int i = 0; i < depth; ++i)
        inner = list.addArray({inner});
    return list.bytes(static_cast<quint64>(inner));
}

QVariantMap sampleDictionary()
{
    return {
        {q("General"), QVariantMap{{q("Product Year"), qlonglong{2009}}, {q("Wide"), q("日本")}}},
        {q("Features"), QVariantList{true, false, 0.5, QByteArray("\x01\x02"), q("text")}},
        {q("Date"), QDateTime(QDate(2009, 3, 1), QTime(12, 0), Qt::UTC)}};
}

// --- Limits -----------------------------------------------------------------------------------

TEST(DepthLimit, Is64ContainersInBothForms)
{
    EXPECT_FALSE(isMissing(nestedXml(64)));
    EXPECT_TRUE(isMissing(nestedXml(65)));
    EXPECT_FALSE(isMissing(nestedBinary(64)));
    EXPECT_TRUE(isMissing(nestedBinary(65)));
}

TEST(DepthLimit, CountsDictionariesAndSiblingsOnce)
{
    const QByteArray open = "<dict><key>k</key>";
    EXPECT_FALSE(
        isMissing(xml(open.repeated(64) + "<true/>" + QByteArray("</dict>").repeated(64))));
    EXPECT_TRUE(isMissing(xml(open.repeated(65) + "<true/>" + QByteArray("</dict>").repeated(65))));
    EXPECT_FALSE(isMissing(xml("<array>" + QByteArray("<array/>").repeated(500) + "</array>")));
}

TEST(DepthLimit, HoldsForHundredsOfThousandsOfLevels)
{
    EXPECT_TRUE(isMissing(nestedXml(60'000)));
    EXPECT_TRUE(isMissing("<plist>" + QByteArray("<array>").repeated(140'000)));
    EXPECT_TRUE(isMissing("<plist>" + QByteArray("<a>").repeated(300'000)));
    EXPECT_TRUE(isMissing(nestedBinary(100'000)));
}

TEST(ValueLimit, Is20000InBothForms)
{
    const auto xmlOf = [](int leaves) {
        return xml("<array>" + QByteArray("<true/>").repeated(leaves) + "</array>");
    };
    const auto binaryOf = [](int leaves) {
        BinaryList list;
        const int leaf = list.add("\x09");
        const int root = list.addArray(QList<int>(leaves, leaf));
        return list.bytes(static_cast<quint64>(root));
    };
    EXPECT_EQ(parsePropertyList(xmlOf(19'999)).toList().size(), 19'999);
    EXPECT_TRUE(isMissing(xmlOf(20'000)));
    EXPECT_EQ(parsePropertyList(binaryOf(19'999)).toList().size(), 19'999);
    EXPECT_TRUE(isMissing(binaryOf(20'000)));
}

TEST(ValueLimit, CountsNoKeysButValuesOfEqualKeys)
{
    const auto list = [](int values) {
        return xml("<dict>" + QByteArray("<key>k</key><true/>").repeated(values) + "</dict>");
    };
    EXPECT_FALSE(isMissing(list(19'999)));
    EXPECT_TRUE(isMissing(list(20'000)));
}

TEST(SizeLimit, IsOneMebibyteInBothForms)
{
    const qsizetype mebibyte = 1024 * 1024;
    const QByteArray text = xml("<true/>");
    EXPECT_FALSE(isMissing(text + QByteArray(mebibyte - text.size(), ' ')));
    EXPECT_TRUE(isMissing(text + QByteArray(mebibyte + 1 - text.size(), ' ')));
    const auto binaryOf = [](qsizetype data) {
        return test::binaryList(QVariant(QByteArray(data, 'x')));
    };
    const qsizetype exact = mebibyte - (binaryOf(100).size() - 100);
    EXPECT_EQ(binaryOf(exact).size(), mebibyte);
    EXPECT_FALSE(isMissing(binaryOf(exact)));
    EXPECT_TRUE(isMissing(binaryOf(exact + 1)));
}

// --- XML --------------------------------------------------------------------------------------

QByteArray laughs(int levels)
{
    QByteArray entities = "<!ENTITY e0 'ha'>";
    for (int i = 1; i < levels; ++i)
        entities += "<!ENTITY e" + QByteArray::number(i) + " '" +
                    ("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
    return "<!DOCTYPE plist [" + entities + "]><plist><string>&e" + QByteArray::number(levels - 1) +
           ";</string></plist>";
}

TEST(HostileXml, IsMissingWhenItDeclaresAnything)
{
    for (const QByteArray &list : std::initializer_list<QByteArray>{
             laughs(1), laughs(10), laughs(1000),
             "<!DOCTYPE plist [<!ENTITY e 'ha'>]><plist><true/></plist>",
             "<!DOCTYPE plist []><plist><true/></plist>",
             "<!DOCTYPE plist [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>"
             "<plist><string>&e;</string></plist>",
             "<!DOCTYPE plist [<!ENTITY % e SYSTEM 'file:///etc/passwd'> %e;]>"
             "<plist><true/></plist>",
             "<!DOCTYPE plist [<!ENTITY a '&a;'>]><plist><string>&a;</string></plist>",
             "<!DOCTYPE plist PUBLIC \"[\" '>' [<!ENTITY e 'ha'>]><plist><true/></plist>"})
        EXPECT_TRUE(isMissing(list)) << list.left(200).constData();
}

TEST(HostileXml, IsMissingWhenAQuotedValueHoldsMarkup)
{
    for (const QByteArray &list : std::initializer_list<QByteArray>{
             "<plist a='>' b=''><true/></plist>", "<plist a=\"'\" b='>' c=''><true/></plist>",
             "<plist a=''b=''><true/></plist>", "<plist a='' a=''><true/></plist>",
             "<plist a='<'><true/></plist>"})
        EXPECT_TRUE(isMissing(list)) << list.left(200).constData();
}

TEST(HostileXml, IsMissingWhenItsMarkupDoesNotEnd)
{
    for (const QByteArray &list : std::initializer_list<QByteArray>{
             "<plist><true/></plist><!--", "<plist><!-- <true/></plist>",
             "<plist><!--><true/></plist>", "<plist><string><![CDATA[</string></plist>",
             "<?xml version='1.0'", "<?x <plist><true/></plist>", "<plist><true/></plist",
             "<plist><true/></plist><", "<plist><!-- a -- b --><true/></plist>"})
        EXPECT_TRUE(isMissing(list)) << list.left(200).constData();
}

TEST(HostileTag, IsOneOfMoreThan512Characters)
{
    const auto list = [](qsizetype tagLength) {
        const QByteArray begin = "<plist a='";
        return begin + QByteArray(tagLength - begin.size() - 2, 'x') + "'><true/></plist>";
    };
    EXPECT_FALSE(isMissing(list(512)));
    EXPECT_TRUE(isMissing(list(513)));
}

TEST(HostileTag, IsOneOfManyAttributes)
{
    QByteArray attributes;
    for (int i = 0; attributes.size() < 1'000'000; ++i)
        attributes += " a" + QByteArray::number(i, 36) + "=''";
    EXPECT_TRUE(isMissing("<plist" + attributes + "><true/></plist>"));
    EXPECT_TRUE(isMissing("<plist a=\"'\" b='>'" + attributes + "><true/></plist>"));
}

TEST(ExternalDocumentType, IsNeverLookedAt)
{
    // Reading the device would never end, and the entity would be declared there.
    const QByteArray type = "<!DOCTYPE plist SYSTEM 'file:///dev/zero'>";
    EXPECT_FALSE(isMissing(type + xml("<string>x</string>")));
    EXPECT_TRUE(isMissing(type + xml("<string>&e;</string>")));
}

TEST(LongMarkup, IsReadWhereItIsHarmless)
{
    const QByteArray filling(500'000, '<');
    EXPECT_FALSE(isMissing("<!--" + filling + "-->" + xml("<true/>")));
    EXPECT_FALSE(isMissing("<?x " + filling + "?>" + xml("<true/>")));
    EXPECT_EQ(
        parsePropertyList(xml("<string><![CDATA[" + filling + "]]></string>")).toString().size(),
        500'000);
    EXPECT_EQ(
        parsePropertyList(xml("<string>" + QByteArray("&lt;").repeated(200'000) + "</string>"))
            .toString()
            .size(),
        200'000);
}

// --- Binary -----------------------------------------------------------------------------------

TEST(BinaryTrailer, IsMissingWhenItsNumbersAreWrong)
{
    BinaryList list;
    const int root = list.addText("text");
    const auto start = static_cast<quint64>(list.nextOffset());
    const quint64 huge = ~quint64{0};
    const quint64 wraps = quint64{1} << 62; // times four is 0
    EXPECT_FALSE(isMissing(list.bytes(0, 1, start)));
    for (const auto &[top, count, tableStart] :
         std::initializer_list<std::array<quint64, 3>>{{1, 1, start},
                                                       {huge, 1, start},
                                                       {0, 0, start},
                                                       {0, 2, start},
                                                       {0, huge, start},
                                                       {0, wraps, start},
                                                       {0, wraps + 1, start},
                                                       {0, 1, start + 1},
                                                       {0, 1, start - 1},
                                                       {0, 1, 0},
                                                       {0, 1, 8},
                                                       {0, 1, huge},
                                                       {0, 1, huge - 31},
                                                       {0, 0, start + 4}})
        EXPECT_TRUE(isMissing(list.bytes(top, count, tableStart)))
            << top << ' ' << count << ' ' << tableStart;
    EXPECT_EQ(root, 0);
}

TEST(BinaryTrailer, IsMissingWhenTheTableIsLongerThanItSays)
{
    BinaryList list;
    list.addText("one");
    list.addText("two");
    const auto start = static_cast<quint64>(list.nextOffset());
    EXPECT_FALSE(isMissing(list.bytes(0, 2, start)));
    EXPECT_TRUE(isMissing(list.bytes(0, 1, start)));
}

TEST(BinaryTrailer, IsMissingWithNumbersOfNoWidthOrTooMuch)
{
    const QByteArray good = test::binaryList(q("text"));
    for (const int position : {26, 25}) {
        for (const int width : {0, 9, 16, 128, 255}) {
            QByteArray bad = good;
            bad[good.size() - position] = static_cast<char>(width);
            EXPECT_TRUE(isMissing(bad)) << position << ' ' << width;
        }
    }
}

TEST(BinaryOffset, IsMissingOutsideTheObjects)
{
    BinaryList list(8);
    list.addText("text");
    const qint64 end = list.nextOffset();
    for (const qint64 offset :
         {qint64{0}, qint64{7}, end, end + 1, qint64{1} << 40, qint64{-1}, qint64{1} << 62}) {
        const int bad = list.addOffset(offset);
        EXPECT_TRUE(isMissing(list, bad)) << offset;
    }
    EXPECT_FALSE(isMissing(list, list.addOffset(8)));
}

TEST(BinaryIndex, IsMissingOutsideTheTable)
{
    for (const int index : {3, 4, 255, 0xFFFFFF}) {
        BinaryList list;
        const int key = list.addText("key");
        EXPECT_TRUE(isMissing(list, list.addArray({key, index}))) << index;
        BinaryList withKey;
        const int text = withKey.addText("text");
        EXPECT_TRUE(isMissing(withKey, withKey.addDictionary({index}, {text}))) << index;
        BinaryList withValue;
        const int name = withValue.addText("name");
        EXPECT_TRUE(isMissing(withValue, withValue.addDictionary({name}, {index}))) << index;
    }
}

TEST(BinaryCount, IsMissingWhenItGoesBeyondTheObjects)
{
    for (const int kind : {0x4, 0x5, 0x6, 0xA, 0xD}) {
        for (const quint64 count : {quint64{5}, quint64{1} << 31, quint64{1} << 61,
                                    quint64{1} << 62, quint64{1} << 63, ~quint64{0}}) {
            BinaryList list;
            const QByteArray marker(1, static_cast<char>(kind << 4 | 15));
            const int root = list.add(marker + "\x13" + BinaryList::number(count, 8) + "ab");
            EXPECT_TRUE(isMissing(list, root)) << kind << ' ' << count;
        }
    }
}

TEST(BinaryCount, IsMissingWhenItIsNoInteger)
{
    for (const QByteArray &count :
         {QByteArray("\x22\0\0\0\0", 5), QByteArray("\x14") + QByteArray(15, '\0') + "\x01",
          QByteArray("\x51"
                     "a"),
          QByteArray("\x5f\x10\x01", 3), QByteArray()}) {
        BinaryList list;
        const int root = list.add("\x5f" + count + "text");
        EXPECT_TRUE(isMissing(list, root)) << count.toHex().toStdString();
    }
}

TEST(BinaryObject, IsMissingWhenItIsCutOff)
{
    for (const char marker : {'\x10', '\x11', '\x12', '\x13', '\x14', '\x22', '\x23', '\x33',
                              '\x41', '\x51', '\x61', '\xA1', '\xD1', '\x5F', '\xAF'}) {
        BinaryList list;
        const int root = list.add(QByteArray(1, marker));
        EXPECT_TRUE(isMissing(list, root)) << static_cast<int>(marker);
    }
}

TEST(BinaryDictionary, IsMissingWithAKeyThatIsNoText)
{
    for (const QByteArray &key :
         {QByteArray("\x09"), QByteArray("\x10\x01"), QByteArray("\xA0"), QByteArray("\xD0"),
          QByteArray("\x41"
                     "a"),
          QByteArray("\xF0")}) {
        BinaryList list;
        const int bad = list.add(key);
        const int value = list.addText("value");
        EXPECT_TRUE(isMissing(list, list.addDictionary({bad}, {value})))
            << key.toHex().toStdString();
    }
}

TEST(BinaryCycle, IsMissing)
{
    BinaryList itself;
    EXPECT_TRUE(isMissing(itself, itself.addArray({0})));

    BinaryList widely;
    EXPECT_TRUE(isMissing(widely, widely.addArray(QList<int>(1000, 0))));

    BinaryList dictionary;
    const int key = dictionary.addText("k");
    EXPECT_TRUE(isMissing(dictionary, dictionary.addDictionary({key}, {1})));

    BinaryList through;
    through.addArray({1});
    through.addArray({2});
    EXPECT_TRUE(isMissing(through, through.addArray({0})));
}

TEST(SharedObjects, AreMissingWhenTheyUnfoldBeyondTheLimit)
{
    const auto doubling = [](int levels) {
        BinaryList list(1, 1);
        int inner = list.addText("x");
        for (int i = 0; i < levels; ++i)
            inner = list.addArray({inner, inner});
        return list.bytes(static_cast<quint64>(inner));
    };
    EXPECT_FALSE(isMissing(doubling(13))); // 16,383 values
    EXPECT_TRUE(isMissing(doubling(14)));  // 32,767
    EXPECT_TRUE(isMissing(doubling(30)));
    EXPECT_TRUE(isMissing(doubling(60)));
    EXPECT_LT(doubling(30).size(), 300);
}

TEST(OverlappingObjects, AreMissingWhenTheyAreLongerThanTheList)
{
    // Texts that begin within one another, each up to the end.
    BinaryList list;
    const QByteArray step = QByteArray("\x5f\x11\x10\x00", 4); // 4,096 characters
    const qint64 begin = list.nextOffset();
    list.add(step.repeated(2000) + QByteArray(5000, 'x'));
    QList<int> texts;
    for (int i = 0; i < 2000; ++i)
        texts.append(list.addOffset(begin + i * step.size()));
    EXPECT_TRUE(isMissing(list, list.addArray(texts)));
    EXPECT_FALSE(isMissing(list, list.addArray(texts.first(3))));
}

// --- Damage -----------------------------------------------------------------------------------

TEST(Truncation, IsMissingAtEveryLength)
{
    const QByteArray text = platform::propertyListXml(sampleDictionary()).trimmed();
    const QByteArray binary = test::binaryList(sampleDictionary());
    ASSERT_FALSE(isMissing(text));
    ASSERT_FALSE(isMissing(binary));
    for (qsizetype length = 0; length < text.size(); ++length)
        EXPECT_TRUE(isMissing(text.first(length))) << length;
    for (qsizetype length = 0; length < binary.size(); ++length)
        EXPECT_TRUE(isMissing(binary.first(length))) << length;
}

TEST(Magic, IsThatOfTheFirstEditionOnly)
{
    const QByteArray binary = test::binaryList(q("text"));
    for (const char *magic : {"bplist01", "bplist10", "Bplist00", "bplist0"}) {
        QByteArray other = binary;
        other.replace(0, 8, magic);
        EXPECT_TRUE(isMissing(other)) << magic;
    }
    EXPECT_TRUE(isMissing("bplist00"));
    EXPECT_TRUE(isMissing(" " + binary));
}

/// Some bytes changed, left out, doubled or cut off.
QByteArray mutated(QByteArray bytes, std::mt19937 &random)
{
    const auto below = [&random](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<quint32>(std::max(end, qsizetype{1})));
    };
    for (int changes = 1 + static_cast<int>(below(4)); changes > 0; --changes) {
        const qsizetype at = below(bytes.size());
        const qsizetype length = 1 + below(8);
        switch (below(6)) {
        case 0:
            bytes.remove(at, length);
            break;
        case 1:
            bytes.insert(at, bytes.mid(below(bytes.size()), length));
            break;
        case 2:
            bytes.truncate(bytes.size() - below(3));
            break;
        case 3:
            bytes.replace(at, 1, QByteArray(1, "\0\xff\x01\x80<>&\"'/"[below(10)]));
            break;
        default:
            bytes.replace(at, 1, QByteArray(1, static_cast<char>(random())));
            break;
        }
    }
    return bytes;
}

/// What is read from a mutated list is a list: it is the same after writing. False when it is
/// missing.
bool isSoundList(const QByteArray &bytes)
{
    const QVariant list = parsePropertyList(bytes);
    const QByteArray written = platform::propertyListXml(list);
    if (!written.isNull()) {
        EXPECT_EQ(platform::propertyListXml(parsePropertyList(written)), written)
            << bytes.toHex().toStdString();
    }
    return list.isValid();
}

class Mutation : public testing::TestWithParam<int>
{
};

TEST_P(Mutation, LeavesAListMissingOrSound)
{
    const QByteArray text = platform::propertyListXml(sampleDictionary());
    const QByteArray lists[] = {
        text, test::binaryList(sampleDictionary()),
        QStringEncoder(QStringConverter::Utf16LE,
                       QStringConverter::Flag::WriteBom)(QString::fromUtf8(text))};
    const QByteArray &list = lists[GetParam()];
    ASSERT_FALSE(isMissing(list));
    std::mt19937 random(20090301);
    int sound = 0;
    for (int i = 0; i < 4000 && !HasFailure(); ++i)
        sound += isSoundList(mutated(list, random)) ? 1 : 0;
    EXPECT_GT(sound, 100) << "hardly any list was read";
    EXPECT_LT(sound, 3900) << "hardly any list was damaged";
}

INSTANTIATE_TEST_SUITE_P(PropertyList, Mutation, testing::Range(0, 3));

} // namespace
