#include "tests/dialog_tools/command_run.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using test::bytesOf;
using test::CommandRun;
using test::q;

namespace {

/// One text in a sample PPD replaced by another, or a line added.
struct Change
{
    QByteArray from;
    QByteArray to;
};

/// Checks sample PPDs that a test has spoilt, with the staged driver and its plug-in.
class CheckPpd : public testing::Test
{
protected:
    static QString sample(const char *name)
    {
        return q(KORVANE_SOURCE_DIR "/driver/ppd/") + q(name);
    }
    CommandRun check(const QStringList &words) const
    {
        return room.print(QStringList{q("check-ppd"), q("--root"), q(KORVANE_ROOT_DIR)} + words);
    }
    /// "LINE: severity: what; remedy" of each finding.
    QStringList findingsIn(const QByteArray &ppd)
    {
        const QString path = room.write("printer.ppd", ppd);
        const CommandRun run = check({path});
        EXPECT_NE(run.status, 2) << run.errors.constData();
        QStringList lines = QString::fromUtf8(run.output).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_EQ(run.status, lines.isEmpty() ? 0 : 1) << run.errors.constData();
        for (QString &line : lines)
            line.remove(path + u':');
        return lines;
    }
    QStringList findings(const char *name, const std::vector<Change> &changes)
    {
        QByteArray ppd = bytesOf(sample(name));
        for (const Change &change : changes) {
            EXPECT_TRUE(ppd.contains(change.from)) << change.from.constData();
            ppd.replace(change.from, change.to);
        }
        return findingsIn(ppd);
    }
    QStringList ink(const std::vector<Change> &changes)
    {
        return findings("Korvane-S300.ppd", changes);
    }
    QStringList toner(const std::vector<Change> &changes)
    {
        return findings("Korvane-T500.ppd", changes);
    }
    /// Number of the line that begins so, in the PPD checked last.
    QString lineOf(const QByteArray &start) const
    {
        const QList<QByteArray> lines = bytesOf(room.path("printer.ppd")).split('\n');
        for (qsizetype i = 0; i < lines.size(); ++i)
            if (lines[i].startsWith(start))
                return QString::number(i + 1);
        return {};
    }
    /// Whether one finding stands on the line that begins so and contains the text.
    testing::AssertionResult says(const QStringList &found, const QByteArray &start,
                                  const char *text) const
    {
        const QString place = lineOf(start) + u':';
        for (const QString &line : found)
            if (line.startsWith(place) && line.contains(q(text)))
                return testing::AssertionSuccess();
        return testing::AssertionFailure()
               << "no finding on line " << place.toStdString() << " among\n"
               << found.join(u'\n').toStdString();
    }
    static QByteArray without(const char *name, const QByteArray &option)
    {
        QByteArray ppd = bytesOf(sample(name));
        const qsizetype begin = ppd.indexOf("*OpenUI *" + option + '/');
        const qsizetype end = ppd.indexOf("*CloseUI: *" + option, begin);
        EXPECT_TRUE(begin > 0 && end > begin) << option.constData();
        return ppd.remove(begin, end - begin + 12 + option.size());
    }

    test::CommandRoom room;
};

TEST_F(CheckPpd, EverySamplePrinterIsClean)
{
    const QStringList samples =
        QDir(q(KORVANE_SOURCE_DIR "/driver/ppd")).entryList({q("*.ppd")}, QDir::Files);
    ASSERT_GE(samples.size(), 4);
    for (const QString &name : samples) {
        const CommandRun run = check({sample(name.toUtf8().constData())});
        EXPECT_EQ(run.status, 0) << run.errors.constData();
        EXPECT_EQ(run.output, "") << name.toStdString();
    }
}

TEST_F(CheckPpd, AMissingRowIsAnError)
{
    for (const char *option : {"PrintQuality", "MediaType", "ColorOutput"}) {
        const QStringList found = findingsIn(without("Korvane-S300.ppd", option));
        EXPECT_TRUE(found.contains(
            q("1: error: the option %1 is missing and its row will be hidden; add the option")
                .arg(q(option))))
            << found.join(u'\n').toStdString();
    }
}

TEST_F(CheckPpd, TicketWordsOtherThanThoseUsedAreErrors)
{
    EXPECT_TRUE(says(ink({{"*ICCTestChartProcess On/", "*ICCTestChartProcess Yes/"}}),
                     "*ICCTestChartProcess Yes/", "error: the choice Yes of ICCTestChartProcess"));
    EXPECT_TRUE(says(toner({{"*PrintDensity On/", "*PrintDensity Dark/"}}), "*PrintDensity Dark/",
                     "error: the panel never uses the choice Dark of PrintDensity"));
    EXPECT_TRUE(says(toner({{"*Threshold 5/", "*Threshold 6/"}}), "*Threshold 6/",
                     "error: the panel never uses the choice 6 of Threshold"));
    EXPECT_TRUE(says(ink({{"*ColorOutput Black/", "*ColorOutput Gray/"}}), "*ColorOutput Gray/",
                     "error: the panel never uses the choice Gray of ColorOutput"));
    EXPECT_TRUE(says(ink({{"*DupDryTime/Two-Sided Dry Time: PickOne",
                           "*DupDryTime/Two-Sided Dry Time: Boolean"}}),
                     "*DupDryTime Short/", "use the keywords True and False"));
}

TEST_F(CheckPpd, LabelsThatAreComparedMustNotBeTranslated)
{
    EXPECT_TRUE(says(ink({{"*Mirror Off/Off", "*Mirror Off/Aus"}}), "*Mirror Off/",
                     "error: the choice Off of Mirror is not what the panel's rules assume"));
    EXPECT_TRUE(
        says(toner({{"*TonerSave Off/Off", "*TonerSave Off/Aus"}}), "*TonerSave Off/", "error"));
    EXPECT_TRUE(says(toner({{"*HalftoneLevel Dither/Dither", "*HalftoneLevel Dither/Raster"}}),
                     "*HalftoneLevel Dither/", "error"));
    EXPECT_TRUE(says(ink({{"*ColorOutput Color/Color", "*ColorOutput Color/Farbe"}}),
                     "*ColorOutput Color/", "label the first choice"));
    EXPECT_TRUE(says(toner({{"*ColorOutput Gray/Grayscale", "*ColorOutput Gray/Graustufen"}}),
                     "*ColorOutput Gray/", "label the first choice"));
}

TEST_F(CheckPpd, InksInAnotherOrderOrTooFewAreErrors)
{
    EXPECT_TRUE(says(ink({{"*InkToUse ColorOnly/", "*InkToUse Swap/"},
                          {"*InkToUse BlackOnly/", "*InkToUse ColorOnly/"},
                          {"*InkToUse Swap/", "*InkToUse BlackOnly/"}}),
                     "*InkToUse BlackOnly/", "in this order"));
    EXPECT_TRUE(says(ink({{"*InkToUse BlackColor/Black and Color: "
                           "\"userdict/KorvaneInkToUse(BlackColor)put\"\n",
                           ""}}),
                     "*OpenUI *InkToUse", "InkToUse lacks a choice"));
}

TEST_F(CheckPpd, OptionsOfTheWrongTypeAreErrors)
{
    EXPECT_TRUE(says(ink({{"*MediaType/Paper Type: PickOne", "*MediaType/Paper Type: PickMany"}}),
                     "*OpenUI *MediaType", "error: MediaType is PickMany"));
    EXPECT_TRUE(
        says(ink({{"*Sharpen/Image Sharpening: PickOne", "*Sharpen/Image Sharpening: Boolean"}}),
             "*OpenUI *Sharpen", "error: Sharpen is Boolean"));
    EXPECT_TRUE(says(toner({{"*ReduceGhosting/Reduce Ghosting: PickOne",
                             "*ReduceGhosting/Reduce Ghosting: PickMany"}}),
                     "*OpenUI *ReduceGhosting", "error: ReduceGhosting is PickMany"));
}

TEST_F(CheckPpd, ThresholdsAPersonCanTypeAreChoices)
{
    const QStringList found =
        toner({{"*Threshold 4/4: \"userdict/KorvaneThreshold(4)put\"\n", ""}});
    EXPECT_EQ(found.size(), 1) << found.join(u'\n').toStdString();
    EXPECT_TRUE(says(found, "*OpenUI *Threshold", "error: a person can type the threshold 4"));
}

TEST_F(CheckPpd, MoreThanTwoColorOutputsAreReported)
{
    EXPECT_TRUE(says(toner({{"*CloseUI: *ColorOutput",
                             "*ColorOutput Sepia/Sepia: \"\"\n*CloseUI: *ColorOutput"}}),
                     "*ColorOutput Sepia/", "warning: the panel has rules for the first two"));
}

TEST_F(CheckPpd, ColorPreferencesMustNotBearTheKeywordOfAPrintQuality)
{
    const QStringList found = ink({{"*ColorPreferences Vivid/", "*ColorPreferences Best/"}});
    EXPECT_EQ(found.size(), 1) << found.join(u'\n').toStdString();
    EXPECT_TRUE(says(found, "*ColorPreferences Best/", "error: the color preference Best"));
}

TEST_F(CheckPpd, ChoicesThatThePanelStartsFromAreMissed)
{
    EXPECT_TRUE(says(ink({{"*Sharpen Off/", "*Sharpen None/"},
                          {"*DefaultSharpen: Off", "*DefaultSharpen: None"}}),
                     "*OpenUI *Sharpen", "warning: Sharpen lacks the choice Off"));
}

TEST_F(CheckPpd, OptionsThatWouldNeverBeShownAreReported)
{
    EXPECT_TRUE(says(findingsIn(bytesOf(sample("Korvane-T500.ppd")) +
                                "*OpenUI *ICCTestChartProcess/Chart: PickOne\n"
                                "*DefaultICCTestChartProcess: Off\n"
                                "*ICCTestChartProcess Off/Off: \"\"\n"
                                "*ICCTestChartProcess On/On: \"\"\n"
                                "*CloseUI: *ICCTestChartProcess\n"),
                     "*OpenUI *ICCTestChartProcess", "will not be shown"));
    // Without its list, the printer counts as one of a later year.
    EXPECT_TRUE(says(ink({{"*NickName: \"Korvane S300\"", "*NickName: \"Korvane S9\""}}),
                     "*OpenUI *DupDryTime", "says 65535 as product year"));
}

TEST_F(CheckPpd, TheOtherPanelsOptionsAreMissedWhereItIsOffered)
{
    const QStringList found = findingsIn(without("Korvane-T500.ppd", "ReduceGhosting"));
    EXPECT_EQ(found.size(), 1) << found.join(u'\n').toStdString();
    EXPECT_TRUE(found.value(0).contains(q("warning: ReduceGhosting is missing")));
    EXPECT_TRUE(
        says(toner({{"*ImprovePrintQuality ImproveTonerFixing/", "*ImprovePrintQuality Fix/"}}),
             "*OpenUI *ImprovePrintQuality", "lacks the choice ImproveTonerFixing"));
}

TEST_F(CheckPpd, UnreachableChoicesAndUselessConstraintsAreFound)
{
    EXPECT_TRUE(says(ink({{"*% Tray 2 has to be installed.",
                           "*UIConstraints: *Sharpen High *ColorOutput Color\n"
                           "*UIConstraints: *Sharpen High *ColorOutput Black"}}),
                     "*Sharpen High/", "error: Sharpen High can never be chosen"));
    EXPECT_TRUE(says(ink({{"*UIConstraints: *PaperSource Tray2 *Tray2Option False",
                           "*UIConstraints: *PaperSource Tray7 *Tray2Option False"}}),
                     "*UIConstraints: *PaperSource Tray7",
                     "warning: the constraint names PaperSource Tray7"));
}

TEST_F(CheckPpd, DefaultsThatExcludeEachOtherAreErrors)
{
    EXPECT_TRUE(says(toner({{"*DefaultTonerSave: Off", "*DefaultTonerSave: On"},
                            {"*DefaultPrintDensity: Off", "*DefaultPrintDensity: On"}}),
                     "*DefaultTonerSave", "error: the defaults TonerSave On and PrintDensity On"));
}

TEST_F(CheckPpd, FilesThatAreNotThereAreReported)
{
    EXPECT_TRUE(says(ink({{"Icons/S300.icns", "Icons/S301.icns"}}), "*APPrinterIconPath",
                     "warning: there is no icon /Library/Printers/Korvane/Icons/S301.icns"));
    EXPECT_TRUE(says(ink({{"PDEs/QualityAndMedia.bundle", "PDEs/Nothing.bundle"}}),
                     "*APDialogExtension", "it is not there"));
    EXPECT_TRUE(says(ink({{"/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle",
                           "/Library/Printers/../Printers/Korvane/PDEs/QualityAndMedia.bundle"}}),
                     "*APDialogExtension", "the path goes through"));
    EXPECT_TRUE(says(ink({{"*NickName: \"Korvane S300\"", "*NickName: \"Korvane S9\""}}),
                     "*APPrinterIconPath", ".Config/Korvane S9.plist"));
    EXPECT_TRUE(says(ink({{"*ModelName: \"Korvane S300\"", "*ModelName: \"Korvane S9\""}}),
                     "*ModelName", "the Other panel is not offered"));
    EXPECT_TRUE(ink({{"*APDialogExtension", "*XXDialogExtension"}})
                    .contains(q("1: warning: the PPD names no panels; add *APDialogExtension with "
                                "the path of the plug-in's bundle")));
}

TEST_F(CheckPpd, TextsAndEncodingsAreLookedAt)
{
    EXPECT_TRUE(says(ink({{"*PrintQuality Draft/Draft", "*PrintQuality Draft/Normal"}}),
                     "*PrintQuality Normal/", "has the same text as Draft"));
    EXPECT_TRUE(says(
        findings("Korvane-S300-ja.ppd", {{"LanguageEncoding: UTF-8", "LanguageEncoding: Big5"}}),
        "*LanguageEncoding", "error: the encoding Big5 is not known"));
    EXPECT_TRUE(says(findings("Korvane-S300-de.ppd",
                              {{"LanguageEncoding: ISOLatin1", "LanguageEncoding: UTF-8"}}),
                     "*OpenUI *PrintQuality", "error: the text of PrintQuality is not in the"));
}

TEST_F(CheckPpd, FilesThatLibcupsRefusesAreUnreadable)
{
    const CommandRun run = check({room.write("bad.ppd", "*PPD-Adobe: \"4.3\"\nnonsense\n")});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(run.errors.contains("bad.ppd:2: ")) << run.errors.constData();
    EXPECT_EQ(check({room.path("missing.ppd")}).status, 2);
    EXPECT_EQ(check({}).status, 2);
    EXPECT_EQ(check({q("--nonsense"), sample("Korvane-S300.ppd")}).status, 2);
}

TEST_F(CheckPpd, TheWorstFileGivesTheStatusAndAllAreChecked)
{
    const QString spoilt = room.write(
        "spoilt.ppd", bytesOf(sample("Korvane-S300.ppd")).replace("S300.icns", "S301.icns"));
    const CommandRun found = check({sample("Korvane-T500.ppd"), spoilt});
    EXPECT_EQ(found.status, 1);
    const CommandRun unreadable = check({room.path("missing.ppd"), spoilt});
    EXPECT_EQ(unreadable.status, 2);
    EXPECT_TRUE(unreadable.output.contains("S301.icns"));
}

TEST_F(CheckPpd, JsonHasTheSameFindings)
{
    const QString spoilt = room.write(
        "spoilt.ppd",
        bytesOf(sample("Korvane-S300.ppd")).replace("*Mirror Off/Off", "*Mirror Off/Aus"));
    const CommandRun run = check({q("--json"), spoilt});
    EXPECT_EQ(run.status, 1);
    const QJsonArray array = QJsonDocument::fromJson(run.output).array();
    ASSERT_EQ(array.size(), 1);
    const QJsonObject finding = array[0].toObject();
    EXPECT_EQ(finding.keys(), (QStringList{q("choice"), q("file"), q("line"), q("option"),
                                           q("remedy"), q("severity"), q("what")}));
    EXPECT_EQ(finding[q("choice")].toString(), q("Off"));
    EXPECT_EQ(finding[q("file")].toString(), spoilt);
    EXPECT_EQ(finding[q("severity")].toString(), q("error"));
    const CommandRun clean = check({q("--json"), sample("Korvane-S300.ppd")});
    EXPECT_EQ(clean.status, 0);
    EXPECT_TRUE(QJsonDocument::fromJson(clean.output).isArray());
}

TEST_F(CheckPpd, WithoutTheDriverOnlyTheDialogsOwnFindingsAreThere)
{
    const CommandRun run =
        room.print({q("check-ppd"), q("--root"), room.path("nowhere"), sample("Korvane-S300.ppd")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output.count('\n'), 2);
}

} // namespace
