#include "tests/tools/string_table.h"

#include "tests/support/print_to.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

using test::q;

/// Every text that the panels and the conflict windows look up.
constexpr const char *lookedUp[] = {
    "Quality & Media",
    "Other",
    "Automatic",
    "Color",
    "Ink To Use",
    "Conflicting settings",
    "Instructions",
    "OK",
    "is not compatible with",
    "Choose an option to resolve the conflict:",
    "Continue without resolving the conflict.",
    "Show instructions to resolve the conflict settings.",
    "Paper Type: ",
    "Paper Size: ",
    "Paper Type: Automatic",
    "Paper Type: Envelope",
    "Paper Type: Iron-On Transfer",
    "Paper Type: Plain Paper",
    "Print Quality: Draft",
    "Print Quality: Normal",
    "Advanced Options: Mirror (ON)",
    "Advanced Options: Mirror (OFF)",
    "Layout: Pages per Sheet (>1)",
    "Document Color: Black Only",
    "Document Color: Color",
    "Cartridge(s) installed: Photo",
    "Cartridge(s) installed: Only Color",
    "1) If your application does not have File -> Page Setup, skip to step 7.",
    "2) Cancel the Print dialog.",
    "3) Select File -> Page Setup.",
    "4) From the Paper Size pop-up menu, select the desired paper size.",
    "5) Click OK.",
    "6) Open the Print dialog.",
    "7) From the Print dialog, select your desired settings.",
    "8) Click the close button in the upper left corner of this screen.",
    "1) From the pop-up menu, choose Quality & Media.",
    "2) Go to Advanced Options -> From the Color Output pop-up menu, choose Color.",
    "3) Click the close button in the upper left corner of this screen.",
    "1) From the pop-up menu, choose Layout.",
    "2) From the Pages per Sheet popup menu, choose 1.",
    "1) Cancel the Print dialog.",
    "2) Launch the Korvane Utility",
    "3) Select the Install/ Change Cartridge... button.",
    "4) Install a black cartridge.",
    "5) Open the Print dialog, and then reselect your settings.",
    "6) Click the close button in the upper left corner of this screen.",
    "2) Go to Advanced Options -> From the Ink To Use pop-up menu, choose Automatic.",
};

class StringTable : public testing::TestWithParam<QString>
{
};

INSTANTIATE_TEST_SUITE_P(Languages, StringTable, testing::ValuesIn(strings::languages),
                         [](const auto &instance) { return instance.param.toStdString(); });

TEST_P(StringTable, HasASourceWithoutFaults)
{
    const strings::Source source = strings::readSource(strings::sourcePath(GetParam()));
    EXPECT_EQ(source.faults, QStringList());
}

TEST_P(StringTable, IsSortedByKeyWithEachKeyOnce)
{
    const QStringList keys = strings::readSource(strings::sourcePath(GetParam())).keysInOrder;
    EXPECT_EQ(keys, strings::readTable().value(GetParam()).keys());
}

TEST_P(StringTable, HasEveryTextThatIsLookedUp)
{
    const strings::Texts texts = strings::readTable().value(GetParam());
    for (const char *key : lookedUp)
        EXPECT_TRUE(texts.contains(q(key))) << key;
}

TEST_P(StringTable, HasEveryTextOfTheInterfaceFiles)
{
    const strings::Texts texts = strings::readTable().value(GetParam());
    QDirIterator files(q(KORVANE_RESOURCES_DIR "/interface"), {q("*.ui")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        for (const QString &text : strings::translatableTexts(file))
            EXPECT_TRUE(texts.contains(text)) << qPrintable(file) << ": " << qPrintable(text);
    }
}

TEST_P(StringTable, AnswersInTheCompiledFormWithTheTextOfItsSource)
{
    QTranslator compiled;
    ASSERT_TRUE(compiled.load(
        q(KORVANE_BUNDLE_DIR "/Contents/Resources/Localizable_%1.qm").arg(GetParam())));
    const strings::Texts texts = strings::readTable().value(GetParam());
    EXPECT_FALSE(texts.isEmpty());
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        EXPECT_SAME(compiled.translate("Localizable", text.key().toUtf8().constData()),
                    text.value());
}

TEST(StringTables, LackNoTextInAnyLanguageAndKeepEveryKeyIdenticalToItsSource)
{
    EXPECT_EQ(strings::faultsOf(strings::readTable()), QStringList());
}

TEST(StringTables, AreTranslatedInEveryLanguage)
{
    const strings::Table table = strings::readTable();
    for (const QString &language : strings::languages) {
        if (language == q("en"))
            continue;
        const strings::Texts texts = table.value(language);
        const auto same = std::count_if(texts.keyBegin(), texts.keyEnd(), [&](const QString &key) {
            return texts.value(key) == key;
        });
        EXPECT_LT(same, texts.size() / 10) << qPrintable(language);
    }
}

TEST(StringTables, CallASettingTheSameOnItsLabelAsInTheWindows)
{
    const strings::Table table = strings::readTable();
    for (auto texts = table.cbegin(); texts != table.cend(); ++texts) {
        for (const char *name :
             {"Paper Type", "Print Quality", "Ink To Use", "Dry Time", "Threshold"}) {
            const QString label = texts->value(q(name) + q(":"));
            ASSERT_FALSE(label.isEmpty()) << name;
            for (const char *continued : {"", ": ", ": Automatic", ": Draft"}) {
                const QString text = texts->value(q(name) + q(continued));
                EXPECT_TRUE(text.isNull() || text.startsWith(label.chopped(1).trimmed()))
                    << qPrintable(texts.key()) << ": " << qPrintable(text);
            }
        }
    }
}

TEST(StringTables, NameTheModelInTheUtilityLineOfGermanAndJapanese)
{
    const strings::Table table = strings::readTable();
    for (const char *language : {"de", "ja"})
        EXPECT_TRUE(table[q(language)][q("2) Launch the Korvane Utility")].contains(q("%@")))
            << language;
}

TEST(StringTables, HaveTheWordsThatStandForAutomaticAndColor)
{
    const strings::Table table = strings::readTable();
    EXPECT_TEXT(table[q("de")][q("Automatic")], "Automatisch");
    EXPECT_TEXT(table[q("de")][q("Color")], "Farbe");
}

/// One case per fault that the comparison can find, on a table of two languages.
struct FaultCase
{
    const char *name;
    const char *key;
    const char *english;
    const char *german; ///< null: no text
    const char *fault;  ///< null: none
};

// clang-format off
constexpr FaultCase faultCases[] = {
    {"Good",            "Size: ",       "Size: ",       "Format: ",  nullptr},
    {"NoText",          "Size: ",       "Size: ",       nullptr,     "de: \"Size: \": no text"},
    {"EmptyText",       "Size",         "Size",         "",          "de: \"Size\": empty"},
    {"LostBlank",       "Size: ",       "Size: ",       "Format:",   "de: \"Size: \": other blanks at the ends"},
    {"AddedBlank",      "Size",         "Size",         " Format",   "de: \"Size\": other blanks at the ends"},
    {"Placeholder",     "Size",         "Size",         "Form %1",   "de: \"Size\": a placeholder"},
    {"FormatElsewhere", "Size",         "Size",         "Form %@",   "de: \"Size\": a placeholder"},
    {"StepNumber",      "2) Go",        "2) Go",        "3) Los",    "de: \"2) Go\": another step number"},
    {"EnglishDiffers",  "Size",         "Sizes",        "Format",    "en: \"Size\": not its own text"},
    {"ModelName",       "2) Launch the Korvane Utility", "2) Launch the Korvane Utility", "2) Los, %@", nullptr},
    {"PlaceholderInFormat", "2) Launch the Korvane Utility", "2) Launch the Korvane Utility", "2) Los, %s",
        "de: \"2) Launch the Korvane Utility\": a placeholder"},
};
// clang-format on

void PrintTo(const FaultCase &fault, std::ostream *out)
{
    *out << fault.name;
}

class StringTableFault : public testing::TestWithParam<FaultCase>
{
};

INSTANTIATE_TEST_SUITE_P(Faults, StringTableFault, testing::ValuesIn(faultCases),
                         [](const auto &instance) { return std::string(instance.param.name); });

TEST_P(StringTableFault, IsFoundByTheComparison)
{
    const FaultCase &fault = GetParam();
    strings::Table table;
    table[q("en")].insert(q(fault.key), q(fault.english));
    table[q("de")];
    if (fault.german)
        table[q("de")].insert(q(fault.key), q(fault.german));
    const QStringList expected = fault.fault ? QStringList{q(fault.fault)} : QStringList();
    EXPECT_EQ(strings::faultsOf(table), expected);
}

TEST(StringTables, ReportAKeyThatEnglishDoesNotHave)
{
    strings::Table table;
    table[q("en")];
    table[q("de")].insert(q("Size"), q("Format"));
    EXPECT_EQ(strings::faultsOf(table), QStringList{q("de: \"Size\": no such key")});
}

TEST(InterfaceTexts, AreThoseThatAreNotMarkedAsFixed)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(q("a.ui")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("<ui><string>Shown</string><string notr=\"true\">Fixed</string><string/></ui>");
    file.close();
    EXPECT_EQ(strings::translatableTexts(file.fileName()), QStringList{q("Shown")});
}

} // namespace
