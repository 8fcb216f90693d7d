#include "model/pde_tools.h"
#include "platform/values.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/driver_root.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using test::OpenPpd;
using test::q;

namespace {

const QString kList = QStringLiteral("/list.plist");

class Queries : public testing::Test
{
protected:
    PDETools2 tools;
};

TEST_F(Queries, Queries_01_EncodingWordsAreComparedExactly)
{
    struct Case
    {
        const char *word;
        unsigned long encoding;
    };
    constexpr Case cases[] = {{"ISOLatin1", 5}, {"WindowsANSI", 12}, {"JIS83-RKSJ", 8},
                              {"UTF-8", 4},     {"UTF8", 4},         {"utf-8", 30},
                              {"utf8", 30},     {"isolatin1", 30},   {"MacStandard", 30},
                              {"", 30},         {nullptr, 30}};
    for (const Case &c : cases) {
        ppd_file_t record{};
        QByteArray word(c.word);
        record.lang_encoding = c.word ? word.data() : nullptr;
        EXPECT_EQ(tools.getEncodingFromPPD(&record), c.encoding) << (c.word ? c.word : "(null)");
    }
    EXPECT_EQ(tools.getEncodingFromPPD(nullptr), 30u);
}

TEST_F(Queries, Queries_02_AnOpenedPpdSaysUtf8WhateverWordItsFileHas)
{
    const OpenPpd latin1(test::p1().withLanguageEncoding("ISOLatin1"), test::Marks::None,
                         test::Host::LeavesRecord);
    const OpenPpd wordless(test::p1().withLanguageEncoding(""), test::Marks::None,
                           test::Host::LeavesRecord);
    EXPECT_EQ(tools.getEncodingFromPPD(latin1.get()), 4u);
    EXPECT_EQ(tools.getEncodingFromPPD(wordless.get()), 30u);
}

TEST_F(Queries, Queries_03_TheDefaultIsAKeyword)
{
    const OpenPpd ppd(test::p1().withDefault("Sharpen", ""));
    EXPECT_TEXT(tools.getOptionsDefault(q("MediaType"), ppd.get()), "Plain");
    EXPECT_NULL(tools.getOptionsDefault(q("Nope"), ppd.get()));
    EXPECT_NULL(tools.getOptionsDefault(q("MediaType"), nullptr));
    EXPECT_TEXT(tools.getOptionsDefault(q("Sharpen"), ppd.get()), "");
    EXPECT_NULL(tools.getOptionsDefault(QString(), ppd.get()));
}

TEST_F(Queries, Queries_04_AChoiceIsFoundWhateverItsCase)
{
    const OpenPpd ppd(test::p1());
    ppd_option_t *media = tools.getPPDOption("MediaType", ppd.get());
    EXPECT_TEXT(tools.getOptionsChoice(q("IronOn"), media, ChoiceString::Text), "Iron-On Transfer");
    EXPECT_TEXT(tools.getOptionsChoice(q("IronOn"), media, ChoiceString::Keyword), "IronOn");
    EXPECT_TEXT(tools.getOptionsChoice(q("ironon"), media, ChoiceString::Keyword), "IronOn");
    EXPECT_NULL(tools.getOptionsChoice(q("Nope"), media, ChoiceString::Text));
    EXPECT_NULL(tools.getOptionsChoice(q("IronOn"), nullptr, ChoiceString::Text));
    EXPECT_NULL(tools.getOptionsChoice(QString(), media, ChoiceString::Text));
}

TEST_F(Queries, Queries_05_NothingIsMarkedBeforeTheDialogMarks)
{
    const OpenPpd ppd(test::p1(), test::Marks::None);
    const auto marked = [&](ChoiceString flag) {
        return tools.getPPDMarkedChoice(q("MediaType"), ppd.get(), flag);
    };
    EXPECT_NULL(marked(ChoiceString::Text));
    EXPECT_NULL(marked(ChoiceString::Keyword));
    ppdMarkDefaults(ppd.get());
    EXPECT_TEXT(marked(ChoiceString::Text), "Plain Paper");
    EXPECT_TEXT(marked(ChoiceString::Keyword), "Plain");
    EXPECT_NULL(tools.getPPDMarkedChoice(q("MediaType"), nullptr, ChoiceString::Text));
    EXPECT_NULL(tools.getPPDMarkedChoice(QString(), ppd.get(), ChoiceString::Text));
}

TEST_F(Queries, Queries_06_TheKindOfAnOptionTellsPopUpFromCheckBox)
{
    const OpenPpd popUp(test::p1());
    const OpenPpd checkBox(test::p1c());
    EXPECT_EQ(tools.getPPDOptionUI(q("DupDryTime"), popUp.get()), 1);
    EXPECT_EQ(tools.getPPDOptionUI(q("DupDryTime"), checkBox.get()), 0);
    EXPECT_EQ(tools.getPPDOptionUI(q("Tray2Option"), checkBox.get()), 0);
    EXPECT_EQ(tools.getPPDOptionUI(q("Nope"), checkBox.get()), -1);
    EXPECT_EQ(tools.getPPDOptionUI(q("DupDryTime"), nullptr), -1);
}

TEST_F(Queries, APickManyOptionIsNeitherPopUpNorCheckBox)
{
    test::PpdText text = test::p1();
    text.option("DupDryTime").ui = test::PpdUi::PickMany;
    const OpenPpd ppd(text);
    EXPECT_EQ(tools.getPPDOptionUI(q("DupDryTime"), ppd.get()), 2);
}

TEST_F(Queries, Queries_07_TheModelYearIsTrimmedBySetThenLosesItsLastComponent)
{
    struct Case
    {
        const char *driverPath;
        const char *year;
    };
    constexpr Case cases[] = {{"/Library/Printers/Korvane/2009/Drivers", "2009"},
                              {"/Library/Printers/Korvane/2009", ""},
                              {"/Library/Printers/Korvane/2009/", ""},
                              {"/Library/Printers/Korvane/series/2010/bin/x", "2010/bin"},
                              {"/Library/Printers/Korvane/", ""}};
    for (const Case &c : cases) {
        const OpenPpd ppd(test::p1().withAttribute("KorDriverPath", c.driverPath));
        EXPECT_TEXT(tools.getModelYear(ppd.get()), c.year) << c.driverPath;
    }
    const OpenPpd without(test::p1().withoutAttribute("KorDriverPath"));
    EXPECT_NULL(tools.getModelYear(without.get()));
}

TEST_F(Queries, Queries_08_TheConfigurationListStandsTwoFoldersAboveTheIcon)
{
    struct Case
    {
        const char *icon;
        const char *list;
    };
    constexpr Case cases[] = {{"/Library/Printers/Korvane/Icons/S300.icns",
                               "/Library/Printers/Korvane/.Config/Korvane S300.plist"},
                              {"/a/b.icns", "//.Config/Korvane S300.plist"},
                              {"b.icns", "/.Config/Korvane S300.plist"}};
    for (const Case &c : cases) {
        const OpenPpd ppd(test::p1().withAttribute("APPrinterIconPath", c.icon));
        EXPECT_TEXT(tools.getPlistPath(ppd.get()), c.list) << c.icon;
    }
    const OpenPpd without(test::p1().withoutAttribute("APPrinterIconPath"));
    EXPECT_NULL(tools.getPlistPath(without.get()));
}

TEST_F(Queries, Queries_09_APrinterWithoutNicknameHasANamelessList)
{
    const OpenPpd ppd(test::p1().withoutAttribute("NickName"));
    EXPECT_NULL(tools.getNickName(ppd.get()));
    EXPECT_TEXT(tools.getPlistPath(ppd.get()), "/Library/Printers/Korvane/.Config/.plist");
}

TEST_F(Queries, Queries_10_TheProductYearIsTheIntegerValueWhateverItsType)
{
    const test::DriverRoot root;
    const std::pair<QVariant, quint16> cases[] = {
        {2009, 2009}, {q("2009"), 2009}, {q(" 2009x"), 2009}, {2009.9, 2009},
        {true, 1},    {-1, 65535},       {67545, 2009},       {q("abc"), 0}};
    for (const auto &[year, expected] : cases) {
        root.writeProductYear(year.typeId() == QMetaType::Int ? QVariant(year.toLongLong()) : year,
                              kList);
        EXPECT_EQ(tools.getProductYear(kList), expected) << testing::PrintToString(year);
    }
}

TEST_F(Queries, Queries_11_AnUnknownYearIs65535)
{
    const test::DriverRoot root;
    EXPECT_EQ(tools.getProductYear(QString()), 65535);
    EXPECT_EQ(tools.getProductYear(kList), 65535) << "missing file";
    root.write(kList, "<plist><dict><key>General");
    EXPECT_EQ(tools.getProductYear(kList), 65535) << "broken file";
    root.writeList(kList, QVariantList{QStringLiteral("General")});
    EXPECT_EQ(tools.getProductYear(kList), 65535) << "root is an array";
    root.writeList(kList, QVariantMap{{q("General"), q("2009")}});
    EXPECT_EQ(tools.getProductYear(kList), 65535) << "General is a string";
    root.writeList(kList, QVariantMap{{q("General"), QVariantMap{}}});
    EXPECT_EQ(tools.getProductYear(kList), 65535) << "no Product Year";
}

TEST_F(Queries, AListOutsideTheDriverRootIsMissing)
{
    const test::DriverRoot root;
    root.writeProductYear(2009, q("/elsewhere/year.plist"));
    platform::setDriverRoot(root.realPath(q("/root")));
    root.writeProductYear(2009, q("/root/inside.plist"));
    EXPECT_EQ(tools.getProductYear(q("/inside.plist")), 2009);
    EXPECT_EQ(tools.getProductYear(q("/../root/inside.plist")), 2009) << "comes back";
    EXPECT_EQ(tools.getProductYear(q("/../elsewhere/year.plist")), 65535);
    ASSERT_TRUE(QFile::link(root.realPath(q("/elsewhere")), root.realPath(q("/root/link"))));
    EXPECT_EQ(tools.getProductYear(q("/link/year.plist")), 65535) << "through a link";
    const QString outside = root.realPath(q("/elsewhere/year.plist"));
    EXPECT_EQ(tools.getProductYear(QDir::current().relativeFilePath(outside)), 65535);
    platform::setDriverRoot(QString());
    EXPECT_EQ(tools.getProductYear(outside), 2009) << "without a root everything lies inside";
}

TEST_F(Queries, Queries_12_MirrorIsTheWordTrueOrNoKeyAtAll)
{
    platform::PrintSettings settings;
    EXPECT_FALSE(tools.getMirrorValueFromPrintSettings(&settings));
    tools.setMirrorValueFromPrintSettings(&settings, true);
    EXPECT_TRUE(tools.getMirrorValueFromPrintSettings(&settings));
    EXPECT_EQ(settings.value(q("mirror")), QVariant(q("true")));
    tools.setMirrorValueFromPrintSettings(&settings, false);
    EXPECT_FALSE(tools.getMirrorValueFromPrintSettings(&settings));
    EXPECT_TRUE(settings.all().empty());
}

TEST_F(Queries, Queries_13_AnyOtherMirrorValueIsNo)
{
    for (const QVariant &value : {QVariant(q("TRUE")), QVariant(q("true ")), QVariant(1)}) {
        platform::PrintSettings settings;
        settings.setValue(q("mirror"), value);
        EXPECT_FALSE(tools.getMirrorValueFromPrintSettings(&settings))
            << testing::PrintToString(value);
    }
    EXPECT_FALSE(tools.getMirrorValueFromPrintSettings(nullptr));
}

TEST_F(Queries, Queries_21_TheHelpBookLiesInTheMakersFolder)
{
    const OpenPpd ppd(test::p1());
    EXPECT_TEXT(tools.copyHelpLinkPath(ppd.get()),
                "/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle");
    const ppd_file_t nameless{};
    EXPECT_TEXT(tools.copyHelpLinkPath(&nameless),
                "/Library/Printers/(null)/PDEs/QualityAndMedia.bundle");
}

TEST_F(Queries, Queries_22_APaperSizeIsNamedByItsLabel)
{
    const OpenPpd ppd(test::p1());
    EXPECT_TEXT(tools.getLocalizedPaperSize(q("EnvelopeDL"), ppd.get()), "DL Envelope");
    EXPECT_NULL(tools.getLocalizedPaperSize(q("EnvDL"), ppd.get()));
    EXPECT_NULL(tools.getLocalizedPaperSize(q("EnvelopeDL"), nullptr));
    const OpenPpd sizeless(test::p1().without("PageSize"));
    EXPECT_NULL(tools.getLocalizedPaperSize(q("EnvelopeDL"), sizeless.get()));
}

TEST(QueriesTrace, Queries_23_AQueryThatReturnsEarlyStillLeavesItsPair)
{
    const test::DebugLog log;
    log.switchOn(test::DebugLog::kInfo);
    {
        const PDETools2 tools;
        EXPECT_NULL(tools.getOptionsDefault(q("MediaType"), nullptr));
    }
    EXPECT_EQ(log.traces(),
              QStringList({q("{ -[PDETools2 init]"), q("} -[PDETools2 init]"),
                           q("{ -[PDETools2 getOptionsDefault:withPPD:]"),
                           q("} -[PDETools2 getOptionsDefault:withPPD:]"),
                           q("{ -[PDETools2 dealloc]"), q("} -[PDETools2 dealloc]")}));
}

TEST_F(Queries, AnAttributeIsDecodedWithTheGivenEncoding)
{
    const OpenPpd ppd(test::p1().withAttribute("KorNote", "caf\xC3\xA9"));
    EXPECT_TEXT(tools.getComponentPath(q("KorNote"), ppd.get(), platform::encoding::utf8), "café");
    EXPECT_TEXT(tools.getComponentPath(q("KorNote"), ppd.get(), platform::encoding::isoLatin1),
                "cafÃ©");
    EXPECT_NULL(tools.getComponentPath(q("KorNote"), ppd.get(), platform::encoding::ascii));
    EXPECT_NULL(tools.getComponentPath(q("KorNope"), ppd.get(), platform::encoding::utf8));
    EXPECT_NULL(tools.getComponentPath(QString(), ppd.get(), platform::encoding::utf8));
}

TEST_F(Queries, TheModelNameIsThatOfThePpd)
{
    const OpenPpd ppd(test::p1());
    EXPECT_TEXT(tools.getModelName(ppd.get()), "Korvane S300");
    const ppd_file_t nameless{};
    EXPECT_NULL(tools.getModelName(&nameless));
}

TEST_F(Queries, TheSystemVersionIsWhatTheHostSet)
{
    EXPECT_EQ(tools.OSVersion(), 0x1060);
    platform::setSystemVersion(0x1049);
    EXPECT_EQ(tools.OSVersion(), 0x1049);
    EXPECT_TRUE(tools.isRunningOn105OrLater()) << "constant, whatever the version";
}

} // namespace
