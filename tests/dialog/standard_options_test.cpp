#include "dialog/printers/standard_options.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

OptionChoices officePrinter()
{
    return {
        {q("PageSize"), {q("Letter"), q("A4"), q("Env10"), q("Custom")}},
        {q("PageRegion"), {q("Letter"), q("A4")}},
        {q("MediaType"), {q("Plain"), q("PhotoGlossy")}},
        {q("InputSlot"), {q("Tray1"), q("Tray2")}},
        {q("Duplex"), {q("None"), q("DuplexNoTumble"), q("DuplexTumble")}},
        {q("ColorModel"), {q("CMYK"), q("RGB"), q("Gray")}},
        {q("cupsPrintQuality"), {q("Normal"), q("Draft"), q("High")}},
        {q("OutputBin"), {q("FaceUp"), q("FaceDown")}},
        {q("Collate"), {q("True"), q("False")}},
        {q("OutputOrder"), {q("Normal"), q("Reverse")}},
        {q("Orientation"), {q("Portrait"), q("Landscape")}},
        {q("Resolution"), {q("600dpi"), q("1200x600dpi")}},
    };
}

JobSettings jobWith(const char *name, const char *value)
{
    JobSettings settings;
    settings.counterparts = officePrinter();
    settings.printSettings[q(name)] = q(value);
    return settings;
}

struct Said
{
    const char *name;
    const char *value;
    JobOptions expected;
};

TEST(StandardOptions, AreSaidInThePrintersWords)
{
    const Said table[] = {
        {"sides", "one-sided", {{q("Duplex"), q("None")}}},
        {"sides", "two-sided-long-edge", {{q("Duplex"), q("DuplexNoTumble")}}},
        {"sides", "two-sided-short-edge", {{q("Duplex"), q("DuplexTumble")}}},
        {"print-color-mode", "monochrome", {{q("ColorModel"), q("Gray")}}},
        {"print-color-mode", "color", {{q("ColorModel"), q("CMYK")}}},
        {"print-quality", "3", {{q("cupsPrintQuality"), q("Draft")}}},
        {"print-quality", "4", {{q("cupsPrintQuality"), q("Normal")}}},
        {"print-quality", "5", {{q("cupsPrintQuality"), q("High")}}},
        {"output-bin", "face-down", {{q("OutputBin"), q("FaceDown")}}},
        {"multiple-document-handling",
         "separate-documents-uncollated-copies",
         {{q("Collate"), q("False")}}},
        {"multiple-document-handling",
         "separate-documents-collated-copies",
         {{q("Collate"), q("True")}}},
        {"outputorder", "reverse", {{q("OutputOrder"), q("Reverse")}}},
        {"orientation-requested", "4", {{q("Orientation"), q("Landscape")}}},
        {"printer-resolution", "600x600dpi", {{q("Resolution"), q("600dpi")}}},
        {"printer-resolution", "1200x600dpi", {{q("Resolution"), q("1200x600dpi")}}},
        {"media", "A4", {{q("PageSize"), q("A4")}}},
        {"media", "iso_a4_210x297mm", {{q("PageSize"), q("A4")}}},
        {"media", "na-number-10-envelope", {{q("PageSize"), q("Env10")}}},
        {"media", "Custom.100x200mm", {{q("PageSize"), q("Custom.100x200mm")}}},
        {"media",
         "letter,photo-glossy,Tray2",
         {{q("PageSize"), q("Letter")},
          {q("MediaType"), q("PhotoGlossy")},
          {q("InputSlot"), q("Tray2")}}},
        {"media", "tray-1", {{q("InputSlot"), q("Tray1")}}},
    };
    for (const auto &[name, value, expected] : table)
        EXPECT_EQ(jobOptions(jobWith(name, value)), expected) << name << "=" << value;
}

TEST(StandardOptions, StayWhereThePrinterHasNoSuchChoice)
{
    const std::pair<const char *, const char *> table[] = {
        {"sides", "tumble"},
        {"print-color-mode", "bi-level"},
        {"print-quality", "7"},
        {"output-bin", "stacker-9"},
        {"orientation-requested", "6"},
        {"printer-resolution", "75dpi"},
        {"media", "A4,parchment"},
        {"number-up", "4"},
        {"page-ranges", "1-3,5"},
        {"copies", "2"},
    };
    for (const auto &[name, value] : table)
        EXPECT_EQ(jobOptions(jobWith(name, value)), JobOptions({{q(name), q(value)}}));
}

TEST(StandardOptions, StayAtAPrinterWithoutAPpd)
{
    JobSettings settings = jobWith("sides", "two-sided-long-edge");
    settings.counterparts.clear();
    EXPECT_EQ(jobOptions(settings), JobOptions({{q("sides"), q("two-sided-long-edge")}}));
}

TEST(StandardOptions, StandAboveMarksOfTheSameMeaning)
{
    const std::pair<const char *, Choice> table[] = {
        {"sides=two-sided-long-edge", {q("Duplex"), q("DuplexTumble")}},
        {"sides=tumble", {q("Duplex"), q("DuplexTumble")}},
        {"media=A4", {q("PageSize"), q("Letter")}},
        {"media=A4", {q("PageRegion"), q("Letter")}},
        {"media=parchment", {q("PageSize"), q("Letter")}},
        {"media=PhotoGlossy", {q("MediaType"), q("Plain")}},
        {"print-quality=5", {q("cupsPrintQuality"), q("Draft")}},
        {"mirror=true", {q("MirrorPrint"), q("False")}},
    };
    for (const auto &[setting, mark] : table) {
        const QString text = q(setting);
        JobSettings settings = jobWith(text.section(u'=', 0, 0).toUtf8().constData(),
                                       text.section(u'=', 1).toUtf8().constData());
        settings.counterparts[q("MirrorPrint")] = {q("False"), q("True")};
        settings.marks = {mark, {q("Sharpen"), q("Low")}};
        const JobOptions options = jobOptions(settings);
        EXPECT_EQ(options.size(), 2U) << setting;
        EXPECT_EQ(options.front(), std::pair(q("Sharpen"), q("Low"))) << setting;
        EXPECT_EQ(replacedMarks(settings), Choices{mark}) << setting;
    }
}

TEST(StandardOptions, LeaveMarksOfAnotherMeaningAlone)
{
    JobSettings settings = jobWith("media", "Tray2");
    settings.marks = {{q("PageSize"), q("A4")}, {q("MediaType"), q("PhotoGlossy")}};
    EXPECT_EQ(jobOptions(settings).size(), 3U);
    EXPECT_TRUE(replacedMarks(settings).empty());
}

TEST(StandardOptions, ReplaceNothingWhereTheMarkSaysTheSame)
{
    JobSettings settings = jobWith("sides", "two-sided-short-edge");
    settings.marks = {{q("Duplex"), q("DuplexTumble")}};
    EXPECT_EQ(jobOptions(settings), JobOptions({{q("Duplex"), q("DuplexTumble")}}));
    EXPECT_TRUE(replacedMarks(settings).empty());
}

TEST(StandardOptions, MeanOneThingEachEvenWhenTwoPrintSettingsSayIt)
{
    JobSettings settings = jobWith("sides", "two-sided-long-edge");
    settings.printSettings[q("Duplex")] = q("None");
    settings.printSettings[q("Copies")] = q("9");
    settings.printSettings[q("copies")] = q("2");
    const JobOptions expected{{q("copies"), q("2")}, {q("Duplex"), q("DuplexNoTumble")}};
    EXPECT_EQ(jobOptions(settings), expected);
}

TEST(SharedSheets, OfThePanelsAreSentAsPagesPerSheet)
{
    const std::pair<QVariant, const char *> table[] = {
        {2, "2"}, {q("2"), "2"}, {3, "6"}, {4, "16"}, {7, "16"}};
    for (const auto &[columns, pages] : table) {
        JobSettings settings;
        settings.printSettings[columnsKey()] = columns;
        EXPECT_EQ(jobOptions(settings), JobOptions({{q("number-up"), q(pages)}}));
    }
    JobSettings one;
    one.printSettings[columnsKey()] = 1;
    EXPECT_EQ(jobOptions(one), JobOptions());
}

TEST(SharedSheets, OfTheJobStandAboveThePanelsColumns)
{
    JobSettings settings = jobWith("number-up", "4");
    settings.printSettings[columnsKey()] = 2;
    EXPECT_EQ(jobOptions(settings), JobOptions({{q("number-up"), q("4")}}));
}

} // namespace
