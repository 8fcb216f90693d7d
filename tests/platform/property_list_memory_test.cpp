#include "platform/property_list.h"
#include "tests/platform/binary_list.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <new>

#include <sys/resource.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#define KORVANE_OWN_ALLOCATOR 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KORVANE_OWN_ALLOCATOR 1
#endif
#endif

using test::BinaryList;
using test::q;

// Reading takes at most 64 MiB, whatever the list. Each list is read in a child process that cannot
// get more; a list that needs more ends the child with kOutOfMemory.

namespace {

constexpr rlim_t kCap = 64 * 1024 * 1024;
constexpr int kMissing = 0;
constexpr int kRead = 1;
constexpr int kOutOfMemory = 2;

rlim_t addressSpaceInUse()
{
    rlim_t pages = 0;
    std::FILE *file = std::fopen("/proc/self/statm", "r");
    if (!file || std::fscanf(file, "%lu", &pages) != 1)
        return 0;
    std::fclose(file);
    return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

[[noreturn]] void readUnderCap(const QByteArray &bytes)
{
    const rlim_t limit = addressSpaceInUse() + kCap;
    const rlimit limits{.rlim_cur = limit, .rlim_max = limit};
    ::setrlimit(RLIMIT_AS, &limits);
    ::alarm(60);
    try {
        ::_exit(platform::parsePropertyList(bytes).isValid() ? kRead : kMissing);
    } catch (const std::bad_alloc &) {
        ::_exit(kOutOfMemory);
    }
}

[[noreturn]] void allocateUnderCap(size_t bytes)
{
    const rlim_t limit = addressSpaceInUse() + kCap;
    const rlimit limits{.rlim_cur = limit, .rlim_max = limit};
    ::setrlimit(RLIMIT_AS, &limits);
    try {
        const QByteArray block(static_cast<qsizetype>(bytes), 'x');
        ::_exit(block.isEmpty() ? kMissing : kRead);
    } catch (const std::bad_alloc &) {
        ::_exit(kOutOfMemory);
    }
}

class MemoryCap : public testing::Test
{
protected:
    void SetUp() override
    {
#ifdef KORVANE_OWN_ALLOCATOR
        GTEST_SKIP() << "the sanitizer's allocator needs address space of its own";
#endif
    }
    void expectMissing(const QByteArray &bytes) const
    {
        EXPECT_EXIT(readUnderCap(bytes), testing::ExitedWithCode(kMissing), "");
    }
    void expectRead(const QByteArray &bytes) const
    {
        EXPECT_EXIT(readUnderCap(bytes), testing::ExitedWithCode(kRead), "");
    }
};

constexpr qsizetype kFull = 1000 * 1000;

QByteArray xml(const QByteArray &content)
{
    return "<plist>" + content + "</plist>";
}

QByteArray filled(const QByteArray &part)
{
    return part.repeated(kFull / part.size());
}

TEST_F(MemoryCap, IsAboutThisHigh)
{
    EXPECT_EXIT(allocateUnderCap(kCap * 3 / 4), testing::ExitedWithCode(kRead), "");
    EXPECT_EXIT(allocateUnderCap(kCap * 5 / 4), testing::ExitedWithCode(kOutOfMemory), "");
}

TEST_F(MemoryCap, HoldsForLongTexts)
{
    expectRead(xml("<string>" + QByteArray(kFull, 'x') + "</string>"));
    expectRead(xml("<string>" + filled("&lt;") + "</string>"));
    expectRead(xml("<string>" + filled("<![CDATA[x]]>") + "</string>"));
    expectRead(xml("<data>" + QByteArray(kFull, 'Q') + "</data>"));
    expectRead(test::binaryList(QVariant(QString(kFull / 2, u'x'))));
    expectRead(test::binaryList(QVariant(QByteArray(kFull, 'x'))));
}

TEST_F(MemoryCap, HoldsForManyValuesAndLevels)
{
    expectRead(xml("<array>" + QByteArray("<array/>").repeated(19'999) + "</array>"));
    expectRead(xml("<dict>" + QByteArray("<key>k</key><dict/>").repeated(19'999) + "</dict>"));
    expectMissing(xml("<array>" + filled("<array/>") + "</array>"));
    expectMissing("<plist>" + filled("<array>"));
    expectMissing(xml(filled("<!---->")));
    expectMissing(filled("<?x?>"));
}

TEST_F(MemoryCap, HoldsForAttributes)
{
    QByteArray attributes;
    for (int i = 0; attributes.size() < kFull; ++i)
        attributes += " a" + QByteArray::number(i, 36) + "=''";
    expectMissing("<plist" + attributes + "><true/></plist>");
}

TEST_F(MemoryCap, HoldsForEntities)
{
    const QByteArray long4000(4000, 'x');
    expectMissing("<!DOCTYPE plist [<!ENTITY e '" + long4000 + "'>]>" +
                  xml("<string>" + filled("&e;") + "</string>"));
    expectMissing("<!DOCTYPE plist [<!ENTITY e '" + long4000 + "'>]><plist a='" + filled("&e;") +
                  "'><true/></plist>");
    expectMissing("<!DOCTYPE plist [<!ENTITY % e '" + QByteArray(4000, ' ') + "'>" + filled("%e;") +
                  "]>" + xml("<true/>"));
}

TEST_F(MemoryCap, HoldsForSharedContainers)
{
    BinaryList list(1, 1);
    int inner = list.addText("x");
    for (int i = 0; i < 30; ++i)
        inner = list.addArray({inner, inner});
    expectMissing(list.bytes(static_cast<quint64>(inner)));
}

TEST_F(MemoryCap, HoldsForALongTextInManyPlaces)
{
    BinaryList list;
    const int text = list.addText(QByteArray(kFull - 100'000, 'x'));
    const int root = list.addArray(QList<int>(19'999, text));
    expectRead(list.bytes(static_cast<quint64>(root)));
}

TEST_F(MemoryCap, HoldsForALongTextUnderManyIndices)
{
    BinaryList list;
    QList<int> texts;
    texts.append(list.addText(QByteArray(800'000, 'x')));
    for (int i = 0; i < 10'000; ++i)
        texts.append(list.addOffset(8));
    expectRead(list.bytes(static_cast<quint64>(list.addArray(texts))));
}

TEST_F(MemoryCap, HoldsForTextsThatOverlap)
{
    BinaryList list;
    const QByteArray step = QByteArray("\x5f\x12\x00\x06\x1a\x20", 6); // 400,000 characters
    const qint64 begin = list.nextOffset();
    list.add(step.repeated(10'000) + QByteArray(500'000, 'x'));
    QList<int> texts;
    for (int i = 0; i < 10'000; ++i)
        texts.append(list.addOffset(begin + i * step.size()));
    expectMissing(list.bytes(static_cast<quint64>(list.addArray(texts))));
}

TEST_F(MemoryCap, HoldsForCountsWithoutContents)
{
    for (const char kind : {'\x4f', '\x5f', '\x6f', '\xaf', '\xdf'}) {
        BinaryList list;
        const int root =
            list.add(QByteArray(1, kind) + "\x13" + BinaryList::number(quint64{1} << 40, 8));
        expectMissing(list.bytes(static_cast<quint64>(root)));
    }
}

} // namespace
