#include "dialog/presets/preset_plan.h"
#include "dialog/presets/printer_presets.h"
#include "platform/values.h"
#include "tests/presets/preset_printer.h"
#include "tests/support/print_to.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>

using namespace dialog;
using test::q;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using ChoicesByOption = std::map<QString, QStringList>;

QStringList namesOf(const PpdDocument &printer)
{
    QStringList names;
    for (const Preset &preset : printerPresets(printer))
        names.append(preset.name);
    return names;
}

TEST(PrinterPresets, AreReadAsPairsInOneLineOrInSeveral)
{
    const ChoicesByOption expected{{q("MediaType"), {q("IronOn")}}, {q("Mirror"), {q("On")}}};
    EXPECT_EQ(parsePrinterPreset(q("*MediaType IronOn *Mirror On")), expected);
    EXPECT_EQ(parsePrinterPreset(q("\n  *MediaType IronOn;\r\n\t*Mirror On;\n")), expected);
}

TEST(PrinterPresets, PassOverWhatIsMeantForApplications)
{
    EXPECT_EQ(parsePrinterPreset(q("org.example.kind Photo *MediaType IronOn org.example.level 2")),
              (ChoicesByOption{{q("MediaType"), {q("IronOn")}}}));
}

TEST(PrinterPresets, PassOverWhatIsCutOff)
{
    EXPECT_EQ(parsePrinterPreset(q("")), ChoicesByOption());
    EXPECT_EQ(parsePrinterPreset(q("*MediaType")), ChoicesByOption());
    EXPECT_EQ(parsePrinterPreset(q("* *MediaType *Mirror On")),
              (ChoicesByOption{{q("Mirror"), {q("On")}}}));
    EXPECT_EQ(parsePrinterPreset(q("*Mirror Off *Mirror On")),
              (ChoicesByOption{{q("Mirror"), {q("On")}}}));
}

TEST(PrinterPresets, StandInTheOrderOfThePpdByTheirTexts)
{
    const auto printer = test::opened(
        test::presetPrinter()
            .withLine(
                "*APPrinterPreset Shirt/Shirt Print: \"\n*MediaType IronOn\n*Mirror On\"\n*End")
            .withLine("*APPrinterPreset Fast_Draft: \"*PrintQuality Draft\"")
            .withLine("*APPrinterPreset Other/Other Printer: \"*Lamination On\"")
            .withLine("*APPrinterPreset Again/shirt print: \"*Mirror On\""));
    EXPECT_EQ(namesOf(*printer), QStringList({q("Shirt Print"), q("Fast Draft")}));
    EXPECT_EQ(printerPresets(*printer)[0].content.choices,
              (ChoicesByOption{{q("MediaType"), {q("IronOn")}}, {q("Mirror"), {q("On")}}}));
}

TEST(PrinterPresets, HaveTextsInTheEncodingOfTheFile)
{
    const auto printer = test::opened(test::presetPrinter()
                                          .withLanguageEncoding("ISOLatin1")
                                          .withLine("*APPrinterPreset Big/Gr\xf6\xdf"
                                                    "er: \"*Mirror On\""));
    EXPECT_EQ(namesOf(*printer), QStringList({q("Größer")}));
}

TEST(PrinterPresets, HaveTheTextOfThePersonsLanguageWhereThePpdBringsIt)
{
    std::setlocale(LC_ALL, "C"); // libcups then asks the environment, not Qt's locale
    qunsetenv("LC_ALL");
    qputenv("LANG", "de_AT.UTF-8");
    platform::setPreferredLanguages({q("de-AT")});
    const auto printer =
        test::opened(test::presetPrinter()
                         .withLine("*cupsLanguages: \"en de\"")
                         .withLine("*APPrinterPreset Big/Bigger: \"*Mirror On\"")
                         .withLine("*APPrinterPreset Small/Smaller: \"*Mirror On\"")
                         .withLine("*de.APPrinterPreset Big/Größer: \"\""));
    EXPECT_EQ(namesOf(*printer), QStringList({q("Größer"), q("Smaller")}));
}

class SamplePrinterPresets : public testing::TestWithParam<const char *>
{
protected:
    std::unique_ptr<PpdDocument> printer = std::move(std::get<std::unique_ptr<PpdDocument>>(
        *std::make_unique<PpdDocument::Opened>(PpdDocument::open(
            q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/") + q(GetParam())))));
};

INSTANTIATE_TEST_SUITE_P(Editions, SamplePrinterPresets,
                         testing::Values("Korvane-S300.ppd", "Korvane-S300-de.ppd",
                                         "Korvane-S300-ja.ppd", "Korvane-T500.ppd"),
                         [](const auto &edition) {
                             std::string name = edition.param;
                             std::ranges::replace_if(
                                 name, [](char c) { return c == '-' || c == '.'; }, '_');
                             return name;
                         });

TEST_P(SamplePrinterPresets, ApplyWholeAndWithoutConflict)
{
    const std::vector<Preset> presets = printerPresets(*printer);
    EXPECT_GE(presets.size(), 2U);
    for (const Preset &preset : presets) {
        const PresetPlan plan =
            planPreset(preset.content, *printer, {printer->marks(), {}, {}, {}});
        EXPECT_TRUE(plan.missing.empty()) << preset.name.toStdString();
        EXPECT_TRUE(plan.conflicts.empty()) << preset.name.toStdString();
        EXPECT_FALSE(contentOf(plan.state, *printer).isEmpty()) << preset.name.toStdString();
        EXPECT_FALSE(preset.name.contains(QChar(QChar::ReplacementCharacter)));
    }
}

TEST(SamplePrinterPresetTexts, AreTranslatedInEachEdition)
{
    QStringList names;
    for (const char *edition : {"Korvane-S300.ppd", "Korvane-S300-de.ppd", "Korvane-S300-ja.ppd"}) {
        auto opened =
            PpdDocument::open(q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/") + q(edition));
        names += namesOf(*std::get<std::unique_ptr<PpdDocument>>(opened));
    }
    EXPECT_EQ(names.size(), 9);
    EXPECT_EQ(names.removeDuplicates(), 0);
    EXPECT_TRUE(names.contains(q("封筒")));
}

} // namespace
