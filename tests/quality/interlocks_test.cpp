#include "quality/interlocks.h"
#include "tests/support/print_to.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quality;
using test::q;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

SettingSet options(std::initializer_list<Setting> settings)
{
    SettingSet set;
    for (const Setting setting : settings)
        set.insert(setting);
    return set;
}

ColorOutputSituation situation(Occasion occasion, int index, const char *title, SettingSet set)
{
    return {.occasion = occasion,
            .index = index,
            .title = q(title),
            .grayscale = q("Grayscale"),
            .options = set};
}

constexpr auto kAct = Occasion::Action;
constexpr auto kSync = Occasion::Synchronisation;
using enum Setting;
using enum Effect;

} // namespace

TEST(Interlocks, OnlyColorAndBlackModeHaveAPlan)
{
    const SettingSet all = options(
        {ColorPreferences, InkToUse, ICCTestChartProcess, TonerSave, Threshold, HalftoneLevel});
    for (const int index : {-1, 2, 3})
        for (const Occasion occasion : {kAct, kSync})
            EXPECT_THAT(colorOutputPlan(situation(occasion, index, "Color", all)), IsEmpty());
}

TEST(Interlocks, AnActionTouchesOnlyOptionsThatThePrinterHas)
{
    EXPECT_THAT(colorOutputPlan(situation(kAct, 0, "Color", {})), IsEmpty());
    EXPECT_THAT(colorOutputPlan(situation(kAct, 1, "Black", {})),
                ElementsAre(Interlock{Threshold, ReportMissing}));
    EXPECT_THAT(colorOutputPlan(situation(kAct, 1, "Black", options({Threshold}))),
                ElementsAre(Interlock{Threshold, Enable}));
}

TEST(Interlocks, AnActionInColorModeLooksAtTheTitle)
{
    const SettingSet set = options({ColorPreferences, ICCTestChartProcess});
    EXPECT_THAT(colorOutputPlan(situation(kAct, 0, "Color", set)),
                ElementsAre(Interlock{ColorPreferences, Enable},
                            Interlock{ICCTestChartProcess, Enable},
                            Interlock{ICCTestChartProcess, StoreFromState}));
    EXPECT_THAT(colorOutputPlan(situation(kAct, 0, "Grayscale", set)),
                ElementsAre(Interlock{ColorPreferences, Disable},
                            Interlock{ICCTestChartProcess, Disable},
                            Interlock{ICCTestChartProcess, Untick},
                            Interlock{ICCTestChartProcess, StoreFromState}));
    EXPECT_THAT(colorOutputPlan(situation(kAct, 0, "color", set)),
                ElementsAre(Interlock{ColorPreferences, Disable},
                            Interlock{ICCTestChartProcess, Enable},
                            Interlock{ICCTestChartProcess, StoreFromState}));
}

TEST(Interlocks, SynchronisationStoresTonerSaveInColorModeEvenWithoutTheOption)
{
    EXPECT_THAT(colorOutputPlan(situation(kSync, 0, "Color", {})),
                ElementsAre(Interlock{TonerSave, StoreFromState}));
    EXPECT_THAT(colorOutputPlan(situation(kSync, 1, "Black", {})), IsEmpty());
}

TEST(Interlocks, SynchronisationPrefersInkOverTonerSave)
{
    EXPECT_THAT(colorOutputPlan(situation(kSync, 0, "Color", options({InkToUse, TonerSave}))),
                ElementsAre(Interlock{InkToUse, RefillForColor}, Interlock{TonerSave, Disable},
                            Interlock{TonerSave, Untick}, Interlock{TonerSave, StoreFromState}));
    EXPECT_THAT(colorOutputPlan(situation(kSync, 0, "Color", options({TonerSave}))),
                ElementsAre(Interlock{InkToUse, Disable}, Interlock{TonerSave, Enable},
                            Interlock{TonerSave, ShowModel}, Interlock{TonerSave, StoreFromState}));
    EXPECT_THAT(colorOutputPlan(situation(kSync, 1, "Black", options({InkToUse, TonerSave}))),
                ElementsAre(Interlock{InkToUse, RefillForBlack}, Interlock{TonerSave, Disable}));
}

TEST(Interlocks, SynchronisationInBlackModeTiesColorPreferencesToTheThreshold)
{
    EXPECT_THAT(colorOutputPlan(situation(kSync, 1, "Black", options({ColorPreferences}))),
                IsEmpty());
    EXPECT_THAT(colorOutputPlan(situation(kSync, 1, "Black", options({Threshold}))),
                ElementsAre(Interlock{ColorPreferences, SelectFirst},
                            Interlock{ColorPreferences, Disable}, Interlock{Threshold, Enable}));
}

TEST(Interlocks, SynchronisationInColorModeTiesHalftoneToTheTestChart)
{
    const SettingSet set = options({ICCTestChartProcess, HalftoneLevel});
    EXPECT_THAT(
        colorOutputPlan(situation(kSync, 0, "Grayscale", set)),
        ElementsAre(Interlock{TonerSave, StoreFromState}, Interlock{ICCTestChartProcess, Disable},
                    Interlock{ICCTestChartProcess, Untick}, Interlock{HalftoneLevel, Enable},
                    Interlock{ICCTestChartProcess, StoreFromState}));
    EXPECT_THAT(colorOutputPlan(situation(kSync, 0, "Color", set)),
                ElementsAre(Interlock{TonerSave, StoreFromState},
                            Interlock{ICCTestChartProcess, Enable},
                            Interlock{HalftoneLevel, Disable},
                            Interlock{ICCTestChartProcess, StoreFromState}));
}

TEST(Interlocks, InkIndicesDependOnTheColorTicket)
{
    struct
    {
        const char *ticket;
        int expected[5]; // for the indices -1 to 3
    } cases[] = {
        {"Color", {-1, 0, 1, 3, 3}}, {"Black", {-1, 0, 2, 4, 3}}, {"Mono", {-1, 0, 2, 4, 3}},
        {"Gray", {-1, 0, 1, 2, 3}},  {"color", {-1, 0, 1, 2, 3}},
    };
    for (const auto &[ticket, expected] : cases)
        for (int index = -1; index < 4; ++index)
            EXPECT_EQ(mappedInkIndex(index, q(ticket)), expected[index + 1]) << ticket << index;
    EXPECT_EQ(mappedInkIndex(2, QString()), 2);
}

TEST(Interlocks, MirrorMovesIntoThePrintSettingsWith106)
{
    EXPECT_EQ(mirrorPlace(0x1049), MirrorPlace::Model);
    EXPECT_EQ(mirrorPlace(0x105F), MirrorPlace::Model);
    EXPECT_EQ(mirrorPlace(0x1060), MirrorPlace::PrintSettings);
}

TEST(Interlocks, IronOnSwitchesMirrorOnOnlyWhereItIsOff)
{
    MirrorSituation now{.paperTypeTicket = q("IronOn"), .mirror = q("On")};
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::On);
    now.isMirrorInPrintSettings = true;
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::None);

    now.place = MirrorPlace::Model;
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::None);
    now.mirror = q("Off");
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::On);
    now.mirror = QString();
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::None);
}

TEST(Interlocks, AnotherPaperSwitchesOffOnlyWhatIronOnHadSwitchedOn)
{
    MirrorSituation now{.paperTypeTicket = q("Plain"), .mirror = q("On")};
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::None);
    now.isMirrorSetByIronOn = true;
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::Off);
    now.paperTypeTicket = q("ironon");
    EXPECT_EQ(mirrorForNewPaperType(now), MirrorChange::Off);
}

TEST(Interlocks, MirrorIsKeptForIronOnHandAndPreset)
{
    MirrorSituation now{.paperTypeTicket = q("Plain")};
    EXPECT_EQ(mirrorToKeep(now), MirrorChange::None);
    now.place = MirrorPlace::Model;
    EXPECT_EQ(mirrorToKeep(now), MirrorChange::Off);
    now.isMirrorManuallySet = true;
    EXPECT_EQ(mirrorToKeep(now), MirrorChange::On);
    now = {.paperTypeTicket = q("Plain"), .isMirrorSetDuringPreset = true};
    EXPECT_EQ(mirrorToKeep(now), MirrorChange::On);
    now = {.paperTypeTicket = q("IronOn")};
    EXPECT_EQ(mirrorToKeep(now), MirrorChange::On);
}

TEST(Interlocks, ARefusedMirrorComparesWithTrue)
{
    EXPECT_EQ(mirrorStateAfterRefusal(q("True")), 1);
    for (const char *ticket : {"On", "Off", "true", ""})
        EXPECT_EQ(mirrorStateAfterRefusal(q(ticket)), 0) << ticket;
    EXPECT_EQ(mirrorStateAfterRefusal(QString()), 0);
}

TEST(Interlocks, TheMirrorBoxFollowsATicketThatDiffers)
{
    EXPECT_EQ(mirrorStateToShow(1, q("On")), std::nullopt);
    EXPECT_EQ(mirrorStateToShow(0, q("Off")), std::nullopt);
    EXPECT_EQ(mirrorStateToShow(0, q("On")), 1);
    EXPECT_EQ(mirrorStateToShow(1, q("Off")), 0);
    EXPECT_EQ(mirrorStateToShow(0, QString()), 0);
    EXPECT_EQ(mirrorStateToShow(1, q("True")), 0);
}

TEST(Interlocks, EachPlaceGoesToTheFirstOptionThatThePrinterHas)
{
    EXPECT_THAT(
        sharedPlacesPlan(options({Threshold, ColorPreferences, InkToUse})),
        ElementsAre(RowPlan{Threshold, RowFate::Titled}, RowPlan{ColorPreferences, RowFate::Hidden},
                    RowPlan{HalftoneLevel, RowFate::Hidden},
                    RowPlan{ICCTestChartProcess, RowFate::Hidden},
                    RowPlan{TonerSave, RowFate::Hidden}, RowPlan{InkToUse, RowFate::Titled}));
}

TEST(Interlocks, RequiredRowsAreHiddenWhereTheyAreMissing)
{
    EXPECT_THAT(requiredRowsPlan(options({MediaType})),
                ElementsAre(RowPlan{PrintQuality, RowFate::Hidden},
                            RowPlan{MediaType, RowFate::Titled},
                            RowPlan{ColorOutput, RowFate::Hidden}));
}

TEST(Interlocks, UnusualPrintersAreNamed)
{
    const ChoiceList inks{
        {q("Any"), q("ColorOnly"), q("BlackOnly"), q("ColorBlack"), q("BlackColor")}, {}};
    EXPECT_EQ(unusualInk(inks), std::nullopt);
    EXPECT_EQ(unusualInk({{q("Any"), q("BlackOnly")}, {}}),
              (UnusualChoice{q("InkToUse"), q("BlackOnly")}));
    EXPECT_EQ(unusualInk({{q("Any"), q("ColorOnly")}, {}}),
              (UnusualChoice{q("InkToUse"), QString()}));

    EXPECT_EQ(unusualSwitch(q("Mirror"), {{q("On"), q("Off")}, {}}), std::nullopt);
    EXPECT_EQ(unusualSwitch(q("Mirror"), {{q("On"), q("False")}, {}}),
              (UnusualChoice{q("Mirror"), q("False")}));

    const ChoiceList halftones{{q("Dither"), q("Detail")}, {q("Dither"), q("Detail")}};
    EXPECT_EQ(unusualLabel(q("HalftoneLevel"), q("Dither"), q("Dither"), halftones), std::nullopt);
    EXPECT_EQ(unusualLabel(q("HalftoneLevel"), q("Detail"), q("Dither"), halftones),
              (UnusualChoice{q("HalftoneLevel"), q("Detail")}));
    EXPECT_EQ(unusualLabel(q("HalftoneLevel"), q("Smooth"), q("Dither"), halftones),
              (UnusualChoice{q("HalftoneLevel"), QString()}));

    EXPECT_EQ(unusualColorOutput({{q("Color")}, {q("Color")}}, q("Grayscale")), std::nullopt);
    EXPECT_EQ(unusualColorOutput({{q("Gray")}, {q("Grayscale")}}, q("Grayscale")), std::nullopt);
    EXPECT_EQ(unusualColorOutput({{q("Color")}, {q("Farbe")}}, q("Grayscale")),
              (UnusualChoice{q("ColorOutput"), q("Color")}));
}
