#include "platform/print_objects.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using test::q;

namespace {

const QString kKey = QStringLiteral("com.korvane.key");

class PrintSettingsTest : public testing::Test
{
protected:
    [[nodiscard]] OSStatus set(const QVariant &value)
    {
        return PMPrintSettingsSetValue(&settings, kKey, value, PMLock::Unlocked);
    }

    platform::PrintSettings settings;
};

TEST_F(PrintSettingsTest, KeepEachTypeAsItIs)
{
    for (const QVariant &value :
         {QVariant(q("true")), QVariant(q("")), QVariant(7), QVariant(0.5), QVariant(true)}) {
        QVariant stored;
        EXPECT_EQ(set(value), noErr);
        EXPECT_EQ(PMPrintSettingsGetValue(&settings, kKey, &stored), noErr);
        EXPECT_EQ(stored.typeId(), value.typeId());
        EXPECT_EQ(stored, value);
    }
}

TEST_F(PrintSettingsTest, LoseAKeyThatIsSetToNull)
{
    for (const QVariant &null : {QVariant(), QVariant(QString()), QVariant::fromValue(nullptr)}) {
        EXPECT_EQ(set(q("value")), noErr);
        EXPECT_EQ(settings.all().size(), 1u);
        EXPECT_EQ(set(null), noErr);
        EXPECT_TRUE(settings.all().empty());
    }
    EXPECT_EQ(set(QVariant()), noErr) << "removing what is not there";
}

TEST_F(PrintSettingsTest, LeaveTheAnswerAloneForAMissingKey)
{
    QVariant answer = q("before");
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, kKey, &answer), paramErr);
    EXPECT_EQ(answer, QVariant(q("before")));
}

TEST_F(PrintSettingsTest, AcceptBothLocks)
{
    EXPECT_EQ(PMPrintSettingsSetValue(&settings, kKey, 1, PMLock::Locked), noErr);
    EXPECT_EQ(PMPrintSettingsSetValue(&settings, kKey, 2, PMLock::Unlocked), noErr);
    EXPECT_EQ(settings.value(kKey), QVariant(2));
}

TEST(PrintObjects, DoNothingWithNullHandles)
{
    QVariant value = 1;
    QString name = q("before");
    PMPaper paper = nullptr;
    EXPECT_EQ(PMPrintSettingsSetValue(nullptr, kKey, 1, PMLock::Unlocked), paramErr);
    EXPECT_EQ(PMPrintSettingsGetValue(nullptr, kKey, &value), paramErr);
    EXPECT_EQ(PMGetPageFormatPaper(nullptr, &paper), paramErr);
    EXPECT_EQ(PMPaperGetPPDPaperName(nullptr, &name), paramErr);
    EXPECT_EQ(value, QVariant(1));
    EXPECT_EQ(paper, nullptr);
    EXPECT_TEXT(name, "before");
}

TEST(PageFormat, HandsOutItsPaper)
{
    platform::PageFormat format;
    format.setPaperName(q("A4"));
    PMPaper paper = nullptr;
    QString name;
    ASSERT_EQ(PMGetPageFormatPaper(&format, &paper), noErr);
    EXPECT_EQ(PMPaperGetPPDPaperName(paper, &name), noErr);
    EXPECT_TEXT(name, "A4");
}

TEST(PageFormat, HasNoPaperWithoutItsName)
{
    platform::PageFormat format;
    PMPaper paper = nullptr;
    EXPECT_EQ(PMGetPageFormatPaper(&format, &paper), paramErr);
    EXPECT_EQ(paper, nullptr);
    format.setPaperName(q(""));
    EXPECT_EQ(PMGetPageFormatPaper(&format, &paper), noErr);
    format.setPaperName(QString());
    EXPECT_EQ(PMGetPageFormatPaper(&format, &paper), paramErr);
}

} // namespace
