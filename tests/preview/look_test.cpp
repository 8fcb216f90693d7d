#include "dialog/preview/job_look.h"
#include "dialog/printers/ppd_document.h"
#include "platform/values.h"
#include "tests/support/print_to.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace dialog {
namespace {

using test::q;

const QSizeF kA4(595, 842);
const QSizeF kLetter(612, 792);

// A printer with the options that the two samples lack.
constexpr const char *kOfficePrinter = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "OFFICE.PPD"
*Manufacturer: "Test"
*Product: "(Office)"
*PSVersion: "(3010.000) 0"
*ModelName: "Office"
*ShortNickName: "Office"
*NickName: "Office"
*ColorDevice: True
*LandscapeOrientation: Minus90
*VariablePaperSize: True
*MaxMediaWidth: "1000"
*MaxMediaHeight: "2000"
*HWMargins: 10 20 30 40
*CustomPageSize True: "pop pop pop pop pop"
*ParamCustomPageSize Width: 1 points 100 1000
*ParamCustomPageSize Height: 2 points 100 2000
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 0
*OpenUI *PageSize/Page Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4 Paper: ""
*PageSize Letter/US Letter: ""
*CloseUI: *PageSize
*DefaultImageableArea: A4
*ImageableArea A4: "10 20 585 802"
*ImageableArea Letter: "18 18 594 774"
*DefaultPaperDimension: A4
*PaperDimension A4: "595 842"
*PaperDimension Letter: "612 792"
*OpenUI *ColorModel/Color Model: PickOne
*DefaultColorModel: RGB
*ColorModel RGB/Color: ""
*ColorModel Gray/Grayscale: ""
*CloseUI: *ColorModel
*OpenUI *MirrorPrint/Mirror: Boolean
*DefaultMirrorPrint: False
*MirrorPrint True/On: ""
*MirrorPrint False/Off: ""
*CloseUI: *MirrorPrint
*OpenUI *Collate/Collate: Boolean
*DefaultCollate: False
*Collate True/On: ""
*Collate False/Off: ""
*CloseUI: *Collate
)ppd";

/// A printer and what is chosen of it.
class Look : public testing::Test
{
protected:
    Look() { open(q("/Korvane-S300.ppd")); }

    void open(const QString &name) { openFile(q(KORVANE_PPD_DIR) + name); }
    void openOffice(const QByteArray &ppd = kOfficePrinter)
    {
        QFile file(folder.filePath(q("office.ppd")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(ppd) == ppd.size());
        file.close();
        openFile(file.fileName());
    }
    void openFile(const QString &path)
    {
        auto opened = PpdDocument::open(path);
        ASSERT_TRUE(std::holds_alternative<std::unique_ptr<PpdDocument>>(opened))
            << std::get<PpdError>(opened).message().toStdString();
        printer = std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
        settings.clear();
        paperName = QString();
    }

    void mark(const char *option, const char *choice)
    {
        ASSERT_TRUE(printer->hasChoice({q(option), q(choice)})) << option << ' ' << choice;
        printer->mark({q(option), q(choice)});
    }
    void set(const char *key, const char *value) { settings[q(key)] = q(value); }
    [[nodiscard]] SheetLook look() const
    {
        return sheetLook(*printer, {printer->marks(), settings, paperName});
    }

    QTemporaryDir folder;
    std::unique_ptr<PpdDocument> printer;
    std::map<QString, QVariant> settings;
    QString paperName;
};

TEST_F(Look, OfAFreshPrinterIsPlain)
{
    SheetLook plain;
    plain.paper = {kLetter, {9, 9, 9, 9}};
    plain.paperText = q("US Letter");
    plain.pagesPerSheet = look().pagesPerSheet; // any number without a grid is one page
    plain.isCollated = false;
    EXPECT_EQ(look(), plain);
    EXPECT_EQ(printedSides(look(), 3).size(), 3U);
}

TEST_F(Look, ThePaperIsTheMarkedOneWithItsMarginsAndText)
{
    openOffice();
    const SheetLook a4 = look();
    EXPECT_EQ(a4.paper.size, kA4);
    EXPECT_EQ(a4.paper.margins, QMarginsF(10, 40, 10, 20));
    EXPECT_TEXT(a4.paperText, "A4 Paper");
    mark("PageSize", "Letter");
    EXPECT_EQ(look().paper.size, kLetter);
    EXPECT_TEXT(look().paperText, "US Letter");
}

TEST_F(Look, ThePageFormatsPaperStandsAboveTheMarkedOne)
{
    mark("PageSize", "A5");
    paperName = q("EnvelopeDL");
    EXPECT_EQ(look().paper.size, QSizeF(312, 624));
    EXPECT_TEXT(look().paperText, "DL Envelope");
}

TEST_F(Look, TheJobsMediaStandsAboveBoth)
{
    mark("PageSize", "A5");
    paperName = q("EnvelopeDL");
    for (const char *media : {"A4", "A4,Tray1", "iso_a4_210x297mm"}) {
        set("media", media);
        EXPECT_EQ(look().paper.size, kA4) << media;
        EXPECT_EQ(look().paper.margins, QMarginsF(9, 9, 9, 9)) << media;
    }
}

TEST_F(Look, APaperOfAPersonsOwnHasTheSizeThatItSays)
{
    openOffice();
    paperName = q("Custom.100x200mm");
    const QSizeF size = look().paper.size;
    EXPECT_NEAR(size.width(), 283.46, 0.1);
    EXPECT_NEAR(size.height(), 566.93, 0.1);
    EXPECT_EQ(look().paper.margins, QMarginsF(10, 40, 30, 20));
}

TEST_F(Look, APaperThatNobodyKnowsIsTheUsualOneOfTheLocale)
{
    set("media", "no-such-paper");
    platform::setLocaleIdentifier(q("de_DE"));
    EXPECT_EQ(look().paper.size, kA4);
    EXPECT_TRUE(look().paperText.isEmpty());
    platform::setLocaleIdentifier(q("en_US"));
    EXPECT_EQ(look().paper.size, kLetter);
}

TEST_F(Look, APrinterWithoutOptionsHasTheUsualPaperOfTheLocale)
{
    printer = PpdDocument::withoutOptions(q("office"));
    platform::setLocaleIdentifier(q("ja_JP"));
    EXPECT_EQ(look().paper.size, kA4);
}

TEST(UsualPaper, IsLetterWhereLetterIsUsed)
{
    for (const char *locale : {"en_US", "fr_CA", "es_MX", "es_CO", "fil_PH"})
        EXPECT_EQ(usualPaper(q(locale)).size, kLetter) << locale;
    for (const char *locale : {"en_GB", "de_DE", "ja_JP", "pt_BR", "zh_CN", "C"})
        EXPECT_EQ(usualPaper(q(locale)).size, kA4) << locale;
}

TEST_F(Look, TheJobIsFlippedByTheTextTrueOnly)
{
    EXPECT_FALSE(look().isMirrored);
    for (const QVariant &value : {QVariant(q("false")), QVariant(q("True")), QVariant(q("yes")),
                                  QVariant(true), QVariant(1)}) {
        settings[q("mirror")] = value;
        EXPECT_FALSE(look().isMirrored) << testing::PrintToString(value);
    }
    set("mirror", "true");
    EXPECT_TRUE(look().isMirrored);
}

TEST_F(Look, ThePrintersOwnMirrorFlipsToo)
{
    mark("Mirror", "On");
    EXPECT_TRUE(look().isMirrored);
    openOffice();
    EXPECT_FALSE(look().isMirrored);
    mark("MirrorPrint", "True");
    EXPECT_TRUE(look().isMirrored);
}

TEST_F(Look, ThePrintersMirrorAndTheJobsFlipOnce)
{
    mark("Mirror", "On");
    set("mirror", "true");
    EXPECT_TRUE(look().isMirrored);
}

TEST_F(Look, ThePrintersMirrorIsLeftAsItIsByAJobSettingThatMeansNothing)
{
    mark("Mirror", "On");
    set("mirror", "false");
    EXPECT_TRUE(look().isMirrored) << "the job is sent with Mirror=On";
}

TEST_F(Look, SidesComeFromThePrintersDuplex)
{
    EXPECT_EQ(look().sides, Sides::One);
    for (const char *choice : {"DuplexNoTumble", "DuplexTumble"}) {
        mark("Duplex", choice);
        EXPECT_EQ(look().sides, Sides::Two) << choice;
    }
    mark("Duplex", "None");
    EXPECT_EQ(look().sides, Sides::One);
}

TEST_F(Look, TheJobsSidesStandAboveThePrintersDuplex)
{
    mark("Duplex", "DuplexTumble");
    set("sides", "one-sided");
    EXPECT_EQ(look().sides, Sides::One);
    mark("Duplex", "None");
    set("sides", "two-sided-short-edge");
    EXPECT_EQ(look().sides, Sides::Two);
}

struct Inks
{
    const char *printer;
    const char *option;
    const char *choice;
    bool isGrayscale;
};

TEST_F(Look, TheSamplePrintersPrintWithoutColorsByTheseChoices)
{
    const Inks table[] = {
        {"/Korvane-S300.ppd", "ColorOutput", "Color", false},
        {"/Korvane-S300.ppd", "ColorOutput", "Black", true},
        {"/Korvane-S300.ppd", "InkToUse", "Automatic", false},
        {"/Korvane-S300.ppd", "InkToUse", "ColorOnly", false},
        {"/Korvane-S300.ppd", "InkToUse", "BlackOnly", true},
        {"/Korvane-S300.ppd", "InkToUse", "ColorBlack", false},
        {"/Korvane-S300.ppd", "InkToUse", "BlackColor", false},
        {"/Korvane-T500.ppd", "ColorOutput", "Gray", true},
        {"/Korvane-T500.ppd", "ColorOutput", "Mono", true},
    };
    for (const Inks &row : table) {
        open(q(row.printer));
        mark(row.option, row.choice);
        EXPECT_EQ(look().isGrayscale, row.isGrayscale) << row.printer << ' ' << row.choice;
    }
}

TEST_F(Look, APrinterWithoutColorsHasNone)
{
    openOffice(QByteArray(kOfficePrinter).replace("ColorDevice: True", "ColorDevice: False"));
    EXPECT_TRUE(look().isGrayscale);
}

TEST_F(Look, TheJobsColorModeStandsAboveThePrintersColorModel)
{
    openOffice();
    EXPECT_FALSE(look().isGrayscale);
    mark("ColorModel", "Gray");
    EXPECT_TRUE(look().isGrayscale);
    set("print-color-mode", "color");
    EXPECT_FALSE(look().isGrayscale);
    mark("ColorModel", "RGB");
    set("print-color-mode", "monochrome");
    EXPECT_TRUE(look().isGrayscale);
}

TEST_F(Look, AColorModeWithoutACounterpartCountsByItself)
{
    set("print-color-mode", "monochrome");
    EXPECT_TRUE(look().isGrayscale);
    set("print-color-mode", "color");
    EXPECT_FALSE(look().isGrayscale);
}

TEST_F(Look, PagesPerSheetAreReadFromTheJob)
{
    set("number-up", "6");
    set("number-up-layout", "tbrl");
    set("page-border", "double-thick");
    EXPECT_EQ(look().pagesPerSheet, 6);
    EXPECT_EQ(look().order, PageOrder::TbRl);
    EXPECT_EQ(look().border, PageBorder::DoubleThick);
}

TEST_F(Look, ScalingIsReadFromTheJob)
{
    EXPECT_EQ(look().scaling, PageScaling::Unset);
    set("print-scaling", "fill");
    EXPECT_EQ(look().scaling, PageScaling::Fill);
    set("print-scaling", "something-new");
    EXPECT_EQ(look().scaling, PageScaling::Unset);
}

TEST_F(Look, TheOrientationIsReadFromTheJobAndTurnsAsThePrinterSays)
{
    set("orientation-requested", "4");
    EXPECT_EQ(look().orientation, SheetOrientation::Landscape);
    EXPECT_EQ(look().landscapeTurn, LandscapeTurn::Plus90);
    openOffice();
    set("orientation-requested", "6");
    EXPECT_EQ(look().orientation, SheetOrientation::ReversePortrait);
    EXPECT_EQ(look().landscapeTurn, LandscapeTurn::Minus90);
}

TEST_F(Look, TheSelectionIsReadFromTheJob)
{
    set("page-ranges", "2-4,7");
    set("page-set", "even");
    set("outputorder", "reverse");
    const SideSelection expected{
        {{2, 4}, {7, 7}}, SideSelection::Set::Even, SideSelection::Order::Reverse};
    EXPECT_EQ(look().selection, expected);
}

TEST_F(Look, CopiesAreAtLeastOne)
{
    set("copies", "3");
    EXPECT_EQ(look().copies, 3);
    set("copies", "-2");
    EXPECT_EQ(look().copies, 1);
}

TEST_F(Look, CopiesAreCollatedByTheJobOrByThePrinter)
{
    EXPECT_FALSE(look().isCollated);
    set("multiple-document-handling", "separate-documents-collated-copies");
    EXPECT_TRUE(look().isCollated);
    openOffice();
    EXPECT_FALSE(look().isCollated);
    mark("Collate", "True");
    EXPECT_TRUE(look().isCollated);
    set("multiple-document-handling", "separate-documents-uncollated-copies");
    EXPECT_FALSE(look().isCollated);
}

} // namespace
} // namespace dialog
