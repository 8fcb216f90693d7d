#include "platform/bundle.h"
#include "platform/property_list.h"
#include "platform/values.h"
#include "tests/support/print_to.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

using test::q;

namespace {

/// A bundle in a directory of its own, with the message files beside this test.
class BundleTest : public testing::Test
{
protected:
    BundleTest()
    {
        makeFolder("Contents/Resources");
        const QDir messages(QStringLiteral(TEST_MESSAGES));
        for (const QString &name : messages.entryList({q("*.qm")}))
            EXPECT_TRUE(QFile::copy(messages.filePath(name), path("Contents/Resources/") + name));
        bundle = Bundle::bundleWithPath(directory.path());
    }

    [[nodiscard]] QString path(const char *name) const { return directory.filePath(q(name)); }
    void makeFolder(const char *name) const { EXPECT_TRUE(QDir().mkpath(path(name))); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    void writeInfo(const char *name, const char *value) const
    {
        write(name, platform::propertyListXml(QVariantMap{{q("Name"), q(value)}}));
    }
    [[nodiscard]] QString printQuality(const char *language) const
    {
        platform::setPreferredLanguages({q(language)});
        return bundle->localizedString(q("Print Quality"));
    }

    QTemporaryDir directory;
    std::unique_ptr<Bundle> bundle;
};

TEST_F(BundleTest, IsADirectory)
{
    write("file", "x");
    EXPECT_SAME(bundle->path(), directory.path());
    EXPECT_EQ(Bundle::bundleWithPath(path("file")), nullptr);
    EXPECT_EQ(Bundle::bundleWithPath(path("missing")), nullptr);
    EXPECT_EQ(Bundle::bundleWithPath(q("")), nullptr);
    EXPECT_EQ(Bundle::bundleWithPath(QString()), nullptr);
}

TEST_F(BundleTest, ReadsItsInformationFromContentsFirst)
{
    EXPECT_TRUE(bundle->infoDictionary().isEmpty());
    writeInfo("Info.plist", "outer");
    EXPECT_EQ(bundle->infoDictionary().value(q("Name")), QVariant(q("outer")));
    writeInfo("Contents/Info.plist", "inner");
    EXPECT_EQ(bundle->infoDictionary().value(q("Name")), QVariant(q("inner")));
}

TEST_F(BundleTest, HasNoInformationWhenTheListIsNoDictionary)
{
    write("Contents/Info.plist", platform::propertyListXml(q("text")));
    EXPECT_TRUE(bundle->infoDictionary().isEmpty());
    write("Contents/Info.plist", "damaged");
    EXPECT_TRUE(bundle->infoDictionary().isEmpty());
}

TEST_F(BundleTest, FindsItsResources)
{
    write("Contents/Resources/panel.ui", "x");
    makeFolder("Contents/Resources/Help");
    EXPECT_SAME(bundle->resourcePath(q("panel.ui")), path("Contents/Resources/panel.ui"));
    EXPECT_SAME(bundle->resourcePath(q("Help")), path("Contents/Resources/Help"));
    EXPECT_NULL(bundle->resourcePath(q("missing.ui")));
    EXPECT_NULL(bundle->resourcePath(q("")));
    EXPECT_NULL(bundle->resourcePath(QString()));
}

TEST_F(BundleTest, SpeaksTheFirstPreferredLanguage)
{
    EXPECT_TEXT(printQuality("de"), "Druckqualität");
    EXPECT_TEXT(printQuality("ja"), "印刷品質");
    EXPECT_TEXT(printQuality("de"), "Druckqualität");
    platform::setPreferredLanguages({q("en"), q("de")});
    EXPECT_TEXT(bundle->localizedString(q("Print Quality")), "Print Quality");
}

TEST_F(BundleTest, ReadsALanguageOfARegionByItsLanguage)
{
    EXPECT_TEXT(printQuality("de-AT"), "Druckqualität");
    EXPECT_TEXT(printQuality("de_AT"), "Druckqualität");
    EXPECT_TEXT(printQuality("pt-BR"), "Qualidade");
    EXPECT_TEXT(printQuality("pt"), "Qualidade");
}

TEST_F(BundleTest, ReadsSimplifiedChineseOnly)
{
    for (const char *language : {"zh_CN", "zh-CN", "zh-Hans", "zh-Hans-CN"})
        EXPECT_TEXT(printQuality(language), "打印质量") << language;
    for (const char *language : {"zh", "zh_TW", "zh-TW", "zh-Hant", "zh-Hant-HK"})
        EXPECT_TEXT(printQuality(language), "Print Quality") << language;
}

TEST_F(BundleTest, ShowsTheKeyWithoutATextForIt)
{
    for (const char *language : {"en", "fr", "C", "", "deutsch", "../de"})
        EXPECT_TEXT(printQuality(language), "Print Quality") << language;
    platform::setPreferredLanguages({});
    EXPECT_TEXT(bundle->localizedString(q("Print Quality")), "Print Quality");
}

TEST_F(BundleTest, LooksUpKeysInTheTablesOwnContextOnly)
{
    platform::setPreferredLanguages({q("de")});
    EXPECT_TEXT(bundle->localizedString(q("Paper")), "Paper");
    EXPECT_TEXT(bundle->localizedString(q("print quality")), "print quality");
    EXPECT_TEXT(bundle->localizedString(q("Größe")), "Format");
}

TEST_F(BundleTest, UsesTheFallbackOnlyForAMissingText)
{
    platform::setPreferredLanguages({q("de")});
    EXPECT_TEXT(bundle->localizedString(q("Print Quality"), q("fallback")), "Druckqualität");
    EXPECT_TEXT(bundle->localizedString(q("Paper"), q("fallback")), "fallback");
    EXPECT_TEXT(bundle->localizedString(q("Paper"), q("")), "Paper");
    EXPECT_TEXT(bundle->localizedString(q("Paper"), QString()), "Paper");
}

TEST_F(BundleTest, TakesAnEmptyAndANullKeyAsTheyAre)
{
    platform::setPreferredLanguages({q("de")});
    EXPECT_TEXT(bundle->localizedString(q("")), "");
    EXPECT_NULL(bundle->localizedString(QString()));
    EXPECT_TEXT(bundle->localizedString(QString(), q("fallback")), "fallback");
}

TEST_F(BundleTest, KeepsTablesApart)
{
    platform::setPreferredLanguages({q("de")});
    EXPECT_TEXT(bundle->localizedString(q("Print Quality"), {}, q("Windows")),
                "Qualität im Fenster");
    EXPECT_TEXT(bundle->localizedString(q("Print Quality"), {}, q("Missing")), "Print Quality");
    EXPECT_TEXT(bundle->localizedString(q("Print Quality"), {}, q("")), "Druckqualität");
}

TEST_F(BundleTest, IsNotTranslatedByTheApplication)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(path("Contents/Resources/Localizable_de.qm")));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_TEXT(printQuality("en"), "Print Quality");
    EXPECT_TEXT(Bundle::mainBundle()->localizedString(q("Print Quality")), "Print Quality");
    QCoreApplication::removeTranslator(&translator);
}

TEST_F(BundleTest, ShowsTheKeyWhenTheMessageFileIsDamaged)
{
    QFile::remove(path("Contents/Resources/Localizable_de.qm"));
    write("Contents/Resources/Localizable_de.qm", "no messages");
    EXPECT_TEXT(printQuality("de"), "Print Quality");
}

TEST_F(BundleTest, GivesNullWithoutABundle)
{
    platform::setPreferredLanguages({q("de")});
    EXPECT_TEXT(platform::localizedString(bundle.get(), q("Print Quality")), "Druckqualität");
    EXPECT_NULL(platform::localizedString(nullptr, q("Print Quality")));
}

TEST(MainBundle, HasNoFilesAndNoTexts)
{
    platform::setPreferredLanguages({q("de")});
    EXPECT_NULL(Bundle::mainBundle()->path());
    EXPECT_TRUE(Bundle::mainBundle()->infoDictionary().isEmpty());
    EXPECT_NULL(Bundle::mainBundle()->resourcePath(q("etc")));
    EXPECT_TEXT(Bundle::mainBundle()->localizedString(q("Grayscale")), "Grayscale");
    EXPECT_TEXT(Bundle::mainBundle()->localizedString(q("Grayscale"), q("grey")), "grey");
}

TEST(MessageLanguage, IsTheLanguagePart)
{
    EXPECT_TEXT(Bundle::messageLanguage(q("de")), "de");
    EXPECT_TEXT(Bundle::messageLanguage(q("de-AT")), "de");
    EXPECT_TEXT(Bundle::messageLanguage(q("sr_Latn_RS")), "sr");
    EXPECT_TEXT(Bundle::messageLanguage(q("zh_CN")), "zh_CN");
    EXPECT_NULL(Bundle::messageLanguage(q("zh_TW")));
    EXPECT_NULL(Bundle::messageLanguage(q("")));
    EXPECT_NULL(Bundle::messageLanguage(QString()));
}

} // namespace
