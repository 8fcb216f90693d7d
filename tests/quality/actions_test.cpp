#include "tests/quality/panel.h"

#include "platform/controls/controls.h"
#include "platform/controls/modal_session.h"
#include "platform/notification_center.h"
#include "quality/settings_table.h"
#include "quality/text_field_editing.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/user.h"

#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using quality::Setting;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

const QString kMirrorKey = QStringLiteral("mirror");

QVariant mirrorInSettings(const QualityPanel &panel)
{
    return panel.host.settings.value(kMirrorKey);
}

void refuse(QualityPanel &panel, const char *option)
{
    panel.host.answer = [option](const Offer &offer) { return offer.first != q(option); };
}

/// P1 whose mirror choices have German labels.
PpdText germanMirror()
{
    PpdText text = p1();
    text.option("Mirror").choices = {{"Off", "Aus"}, {"On", "An"}};
    return text;
}

/// P3 whose first colour output is labelled @p text.
PpdText p3Titled(const char *text)
{
    PpdText ppd = p3();
    ppd.option("ColorOutput").choices[0].text = text;
    return ppd;
}

constexpr int kIronOn = 2;
constexpr int kPlain = 1;

bool &ironOnFlag(QualityPanel &panel)
{
    return QualityTestAccess::isMirrorSetByIronOn(panel.controller());
}

} // namespace

// Pop-ups and boxes ---------------------------------------------------------------------

TEST(Actions, Actions_01_TakesAnAcceptedPrintQuality)
{
    QualityPanel panel(p1());
    panel.life().choose(panel.controls().ibPrintQuality, 1);
    EXPECT_PAIR(panel, PrintQuality, "Quick/Draft");
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("PrintQuality", "Draft")));
}

TEST(Actions, Actions_02_PutsARefusedPrintQualityBack)
{
    QualityPanel panel(p1());
    panel.life();
    panel.host.refuseAll();
    panel.controls().ibPDEView->show();
    QTest::keyClick(panel.controls().ibPrintQuality, Qt::Key_Down);
    EXPECT_PAIR(panel, PrintQuality, "Automatic/Automatic");
    EXPECT_TEXT(panel.controls().ibPrintQuality->currentText(), "Automatic");
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("PrintQuality", "Draft")));
}

TEST(Actions, Actions_03_KeepsRefusedColorPreferences)
{
    QualityPanel panel(p1());
    panel.life();
    panel.host.refuseAll();
    panel.choose(panel.controls().ibColorPreferences, 1);
    EXPECT_PAIR(panel, ColorPreferences, "Vivid Color/Vivid");
    EXPECT_EQ(panel.controls().ibColorPreferences->currentIndex(), 1);
}

TEST(Actions, Actions_04_KeepsARefusedPaperSource)
{
    QualityPanel panel(p1());
    panel.life();
    panel.host.refuseAll();
    panel.choose(panel.controls().ibPaperSource, 1);
    EXPECT_PAIR(panel, PaperSource, "Lower Tray/Tray2");
    EXPECT_EQ(panel.controls().ibPaperSource->currentIndex(), 1);
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("PaperSource", "Tray2")));
}

TEST(Actions, ModelIsWrittenBeforeOrAfterTheHostIsAsked)
{
    QualityPanel panel(p1());
    panel.life();
    QStringList seen;
    panel.host.answer = [&](const Offer &offered) {
        const auto setting = quality::settingOf(offered.first);
        seen.append(offered.first + u' ' + test::pair(panel.model(), *setting));
        return true;
    };
    panel.choose(panel.controls().ibColorPreferences, 1);
    panel.choose(panel.controls().ibSharpen, 2);
    panel.choose(panel.controls().ibDryTimePopUp, 1);
    EXPECT_EQ(seen, QStringList({q("ColorPreferences Automatic Color/Automatic"),
                                 q("Sharpen High/High"), q("DupDryTime Long Time/Long")}));
}

TEST(Actions, PutsARefusedHalftoneBack)
{
    QualityPanel panel(p3());
    panel.life();
    refuse(panel, "HalftoneLevel");
    panel.openAdvanced();
    QTest::keyClick(panel.controls().ibHalftone, Qt::Key_Down);
    EXPECT_PAIR(panel, HalftoneLevel, "Dither/Dither");
    EXPECT_TEXT(panel.controls().ibHalftone->currentText(), "Dither");
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("HalftoneLevel", "Smooth")));
}

TEST(Actions, PickingTheSelectedItemOffersItToo)
{
    QualityPanel panel(p1());
    panel.life().choose(panel.controls().ibPrintQuality, 0);
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("PrintQuality", "Automatic")));
}

// Colour output and ink -----------------------------------------------------------------

TEST(Actions, Actions_05_OffersWhatColorOutputChanges)
{
    QualityPanel panel(p1());
    panel.life();
    panel.console.clear();
    panel.choose(panel.controls().ibColorOutput, 1);
    EXPECT_EQ(texts(panel.host.offers),
              QStringList({q("InkToUse=Automatic"), q("ColorOutput=Black"),
                           q("ColorPreferences=Automatic"), q("ICCTestChartProcess=Off"),
                           q("Threshold=3"), q("TonerSave=∅"), q("HalftoneLevel=∅")}));
    EXPECT_EQ(panel.console.lines(),
              QStringList({q("Entered colorOutputAction method"),
                           q("Entered colorOutputAction [pdeModel colorOutputOption] LOOP"),
                           q("KorPDEController2 - colorOutputAction - THRESHOLD OPTION IS NULL"),
                           q("colorOutput Understanding Black Only"),
                           q("colorOutput Understanding setColorOutputTicket=Black")}));
}

TEST(Actions, Actions_06_BlackModeLeavesBlackInksAndNoColorSettings)
{
    QualityPanel panel(p1());
    panel.life();
    panel.choose(panel.controls().ibColorPreferences, 1);
    panel.click(panel.controls().ibUseICCTestChart);
    panel.choose(panel.controls().ibInkToUse, 2);
    panel.choose(panel.controls().ibColorOutput, 1);
    EXPECT_EQ(titles(panel.controls().ibInkToUse),
              QStringList({q("Automatic"), q("Black Only"), q("Black and Color")}));
    EXPECT_EQ(panel.controls().ibInkToUse->currentIndex(), 0);
    EXPECT_FALSE(panel.controls().ibColorPreferences->isEnabled());
    EXPECT_EQ(panel.controls().ibColorPreferences->currentIndex(), 0);
    EXPECT_FALSE(panel.controls().ibUseICCTestChart->isEnabled());
    EXPECT_FALSE(panel.controls().ibUseICCTestChart->isChecked());
}

TEST(Actions, Actions_07_MapsTheLastBlackInkToTheFifthChoice)
{
    QualityPanel panel(p1());
    panel.life();
    panel.choose(panel.controls().ibColorOutput, 1);
    panel.console.clear();
    panel.choose(panel.controls().ibInkToUse, 2);
    EXPECT_PAIR(panel, InkToUse, "Black and Color/BlackColor");
    EXPECT_EQ(panel.console.lines(),
              QStringList({q("inkToUseAction indexb4Mapping=2\n"),
                           q("inkToUseAction indexB4changePPDOptionKeyValue=4\n"),
                           q("inkToUseAction curChoiceName=BlackColor\n"),
                           q("inkToUseAction curChoiceText=Black and Color\n")}));
}

TEST(Actions, Actions_08_MapsInksByTheColorMode)
{
    struct
    {
        int colorOutput;
        int ink;
        const char *ticket;
    } cases[] = {
        {1, 1, "BlackOnly"}, {0, 1, "ColorOnly"}, {0, 2, "ColorBlack"}, {0, 0, "Automatic"}};
    for (const auto &[colorOutput, ink, ticket] : cases) {
        QualityPanel panel(p1());
        panel.life();
        panel.choose(panel.controls().ibColorOutput, colorOutput);
        panel.host.offers.clear();
        panel.choose(panel.controls().ibInkToUse, ink);
        EXPECT_TEXT(panel.model().inkToUseTicket(), ticket);
        EXPECT_THAT(panel.host.offers, ElementsAre(offer("InkToUse", ticket)));
    }
}

TEST(Actions, Actions_09_MapsInksOfATonerPrinterInMonoMode)
{
    QualityPanel panel(p2m(), {.year = {}});
    panel.ppd.mark("ColorOutput", "Mono");
    panel.life();
    EXPECT_TRUE(panel.controls().ibInkToUse->isHidden());
    panel.controls().ibInkToUse->setCurrentIndex(2);
    panel.controller().inkToUseAction(panel.controls().ibInkToUse);
    EXPECT_PAIR(panel, InkToUse, "Black and Color/BlackColor");
}

TEST(Actions, AnInkThatThePrinterDoesNotHaveIsFoundByTheItemsOwnKeyword)
{
    QualityPanel panel(p1s());
    panel.life();
    panel.choose(panel.controls().ibInkToUse, 2);
    EXPECT_PAIR(panel, InkToUse, "Color and Black/ColorBlack");
}

TEST(Actions, AnInkThatCannotBeFoundIsPutBack)
{
    QualityPanel panel(p1s());
    panel.life();
    DebugLog log;
    log.switchOn();
    panel.controls().ibInkToUse->addItem(q("Gold"), q("Gold"));
    panel.controls().ibInkToUse->addItem(q("Silver"), q("Silver"));
    panel.choose(panel.controls().ibInkToUse, 0);
    panel.host.offers.clear();
    panel.controls().ibInkToUse->setCurrentIndex(4);
    panel.controller().inkToUseAction(panel.controls().ibInkToUse);
    EXPECT_PAIR(panel, InkToUse, "Automatic/Automatic");
    EXPECT_EQ(panel.controls().ibInkToUse->currentIndex(), 0);
    EXPECT_THAT(panel.host.offers, IsEmpty());
    EXPECT_EQ(log.errorMessages(),
              QStringList({q("the printer has no InkToUse choice at index 4")}));
}

TEST(Actions, Actions_10_GrayscaleTakesColorSettingsAway)
{
    QualityPanel panel(p3());
    panel.life();
    panel.choose(panel.controls().ibColorOutput, 1);
    panel.host.offers.clear();
    panel.choose(panel.controls().ibColorOutput, 0);
    QualityOutlets &controls = panel.controls();
    EXPECT_TEXT(controls.ibColorOutput->currentText(), "Grayscale");
    EXPECT_FALSE(controls.ibColorPreferences->isEnabled());
    EXPECT_FALSE(controls.ibUseICCTestChart->isEnabled());
    EXPECT_FALSE(controls.ibUseICCTestChart->isChecked());
    EXPECT_PAIR(panel, ICCTestChartProcess, "Off/Off");
    EXPECT_TRUE(controls.ibTonerSave->isEnabled());
    EXPECT_FALSE(controls.ibThresholdStepper->isEnabled());
    EXPECT_FALSE(controls.ibThresholdTextFeild->isEnabled());
    EXPECT_EQ(controls.ibThresholdStepper->value(), 3);
    EXPECT_TEXT(controls.ibThresholdTextFeild->text(), "3");
    EXPECT_TRUE(controls.ibHalftone->isEnabled());
    EXPECT_EQ(controls.ibHalftone->currentIndex(), 0);
    EXPECT_TEXT(panel.model().thresoldTicket(), "3");
    EXPECT_THAT(panel.host.offers, Contains(offer("Threshold", "3")));
}

TEST(Actions, Actions_11_AnotherTitleThanColorTakesOnlyColorPreferencesAway)
{
    QualityPanel panel(p3Titled("Vivid"));
    panel.life();
    panel.choose(panel.controls().ibColorOutput, 0);
    EXPECT_FALSE(panel.controls().ibColorPreferences->isEnabled());
    EXPECT_TRUE(panel.controls().ibUseICCTestChart->isEnabled());
}

TEST(Actions, Actions_12_ShowsANeutralThresholdButOffersTheTicketHeld)
{
    QualityPanel panel(p3());
    panel.life();
    panel.choose(panel.controls().ibColorOutput, 1);
    panel.click(panel.controls().ibThresholdStepper->upButton());
    panel.click(panel.controls().ibThresholdStepper->upButton());
    ASSERT_EQ(panel.controls().ibThresholdStepper->value(), 5);
    panel.host.offers.clear();
    panel.choose(panel.controls().ibColorOutput, 0);
    EXPECT_TEXT(panel.controls().ibThresholdTextFeild->text(), "3");
    EXPECT_EQ(panel.controls().ibThresholdStepper->value(), 3);
    EXPECT_FALSE(panel.controls().ibThresholdTextFeild->isEnabled());
    EXPECT_FALSE(panel.controls().ibThresholdStepper->isEnabled());
    EXPECT_TEXT(panel.model().thresoldTicket(), "5");
    EXPECT_THAT(panel.host.offers, Contains(offer("Threshold", "5")));
}

TEST(Actions, Actions_13_AThirdColorOutputChangesNoControl)
{
    PpdText text = p1();
    text.option("ColorOutput").choices.push_back({"Sepia", "Sepia"});
    QualityPanel panel(text);
    panel.life();
    panel.choose(panel.controls().ibInkToUse, 2);
    panel.host.offers.clear();
    panel.choose(panel.controls().ibColorOutput, 2);
    EXPECT_EQ(titles(panel.controls().ibInkToUse),
              QStringList({q("Automatic"), q("Color Only"), q("Color and Black")}));
    EXPECT_EQ(panel.controls().ibInkToUse->currentIndex(), 2);
    EXPECT_TRUE(panel.controls().ibColorPreferences->isEnabled());
    EXPECT_TRUE(panel.controls().ibUseICCTestChart->isEnabled());
    EXPECT_PAIR(panel, InkToUse, "Color and Black/BlackOnly");
    EXPECT_PAIR(panel, ColorOutput, "Sepia/Sepia");
    EXPECT_PAIR(panel, ColorPreferences, "Automatic Color/Automatic");
    EXPECT_EQ(texts(panel.host.offers),
              QStringList({q("InkToUse=BlackOnly"), q("ColorOutput=Sepia"),
                           q("ColorPreferences=Automatic"), q("ICCTestChartProcess=Off"),
                           q("Threshold=3"), q("TonerSave=∅"), q("HalftoneLevel=∅")}));
}

TEST(Actions, Actions_14_WithoutTheOptionOnlyTheFirstLineIsWritten)
{
    PpdText text = p1();
    QualityPanel panel(text.without("ColorOutput"));
    panel.life();
    panel.console.clear();
    panel.controller().colorOutputAction(panel.controls().ibColorOutput);
    EXPECT_EQ(panel.console.lines(), QStringList({q("Entered colorOutputAction method")}));
    EXPECT_THAT(panel.host.offers, IsEmpty());
}

TEST(Actions, ColorOutputAlwaysResetsColorPreferences)
{
    QualityPanel panel(p1());
    panel.life();
    panel.choose(panel.controls().ibColorPreferences, 1);
    panel.choose(panel.controls().ibColorOutput, 0);
    EXPECT_PAIR(panel, ColorPreferences, "Automatic Color/Automatic");
    EXPECT_TRUE(panel.controls().ibColorPreferences->isEnabled());
    EXPECT_EQ(panel.controls().ibColorPreferences->currentIndex(), 1);
}

TEST(Actions, Actions_15_KeepsARefusedTestChart)
{
    QualityPanel panel(p1());
    panel.life();
    panel.host.refuseAll();
    panel.click(panel.controls().ibUseICCTestChart);
    EXPECT_PAIR(panel, ICCTestChartProcess, "On/On");
    EXPECT_TRUE(panel.controls().ibUseICCTestChart->isChecked());
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("ICCTestChartProcess", "On")));
}

TEST(Actions, Actions_16_ADryTimeBoxSaysTrueAndFalse)
{
    QualityPanel panel(p1c());
    panel.life();
    panel.click(panel.controls().ibDryTimeCheckBox);
    EXPECT_PAIR(panel, DupDryTime, "Longer drying/True");
    panel.click(panel.controls().ibDryTimeCheckBox);
    EXPECT_PAIR(panel, DupDryTime, "Normal drying/False");
    EXPECT_THAT(panel.host.offers,
                ElementsAre(offer("DupDryTime", "True"), offer("DupDryTime", "False")));
}

TEST(Actions, ATonerSaveBoxSaysOnAndOff)
{
    QualityPanel panel(p2(), {.year = {}});
    panel.life();
    panel.click(panel.controls().ibTonerSave);
    EXPECT_PAIR(panel, TonerSave, "On/On");
    panel.click(panel.controls().ibTonerSave);
    EXPECT_PAIR(panel, TonerSave, "Off/Off");
    EXPECT_EQ(texts(panel.host.offers), QStringList({q("TonerSave=On"), q("TonerSave=Off")}));
}

// Paper type and mirror -----------------------------------------------------------------

TEST(Actions, Actions_17_IronOnMirrorsThroughThePrintSettings)
{
    QualityPanel panel(p1());
    panel.life().choose(panel.controls().ibPaperType, kIronOn);
    EXPECT_EQ(mirrorInSettings(panel), QVariant(q("true")));
    EXPECT_TRUE(ironOnFlag(panel));
    EXPECT_THAT(panel.host.offers,
                ElementsAre(offer("MediaType", "IronOn"), offer("Mirror", "Off")));
    EXPECT_PAIR(panel, Mirror, "Off/Off");
}

TEST(Actions, Actions_18_LeavingIronOnTakesMirrorBack)
{
    QualityPanel panel(p1());
    panel.life().choose(panel.controls().ibPaperType, kIronOn);
    panel.host.offers.clear();
    panel.choose(panel.controls().ibPaperType, kPlain);
    EXPECT_FALSE(mirrorInSettings(panel).isValid());
    EXPECT_FALSE(ironOnFlag(panel));
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("MediaType", "Plain")));
}

TEST(Actions, Actions_19_LeavesAMirrorAloneThatWasOnBefore)
{
    QualityPanel panel(p1());
    panel.host.settings.setValue(kMirrorKey, q("true"));
    panel.life();
    panel.choose(panel.controls().ibPaperType, kIronOn);
    EXPECT_FALSE(ironOnFlag(panel));
    panel.choose(panel.controls().ibPaperType, kPlain);
    EXPECT_FALSE(ironOnFlag(panel));
    EXPECT_EQ(mirrorInSettings(panel), QVariant(q("true")));
    EXPECT_EQ(texts(panel.host.offers), QStringList({q("MediaType=IronOn"), q("MediaType=Plain")}));
}

TEST(Actions, Actions_20_UndoesEverythingWhenIronOnIsRefused)
{
    QualityPanel panel(p1());
    panel.life();
    panel.host.refuseAll();
    panel.controls().ibPDEView->show();
    QTest::keyClick(panel.controls().ibPaperType, Qt::Key_Down);
    EXPECT_PAIR(panel, MediaType, "Plain Paper/Plain");
    EXPECT_TEXT(panel.controls().ibPaperType->currentText(), "Plain Paper");
    EXPECT_FALSE(mirrorInSettings(panel).isValid());
    EXPECT_FALSE(ironOnFlag(panel));
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("MediaType", "IronOn")));
}

TEST(Actions, Actions_21_UpTo105IronOnTicksTheBox)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life().choose(panel.controls().ibPaperType, kIronOn);
    EXPECT_PAIR(panel, Mirror, "On/On");
    EXPECT_TRUE(panel.controls().ibMIrror->isChecked());
    EXPECT_TRUE(ironOnFlag(panel));
    EXPECT_THAT(panel.host.offers,
                ElementsAre(offer("MediaType", "IronOn"), offer("Mirror", "On")));
}

TEST(Actions, UpTo105ARefusedIronOnUnticksTheBoxAgain)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life();
    panel.host.refuseAll();
    panel.controls().ibPDEView->show();
    QTest::keyClick(panel.controls().ibPaperType, Qt::Key_Down);
    EXPECT_PAIR(panel, Mirror, "Off/Off");
    EXPECT_FALSE(panel.controls().ibMIrror->isChecked());
    EXPECT_FALSE(ironOnFlag(panel));
}

TEST(Actions, UpTo105LeavingIronOnUnticksTheBox)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life().choose(panel.controls().ibPaperType, kIronOn);
    panel.choose(panel.controls().ibPaperType, kPlain);
    EXPECT_PAIR(panel, Mirror, "Off/Off");
    EXPECT_FALSE(panel.controls().ibMIrror->isChecked());
}

TEST(Actions, Actions_22_AMirrorLabelOtherThanOffCountsAsOn)
{
    QualityPanel panel(germanMirror(), {.version = 0x105F});
    panel.life();
    panel.external(Setting::Mirror, "Off");
    EXPECT_PAIR(panel, Mirror, "Aus/Off");
    panel.choose(panel.controls().ibPaperType, kIronOn);
    EXPECT_PAIR(panel, Mirror, "Aus/Off");
    EXPECT_FALSE(ironOnFlag(panel));
}

TEST(Actions, Actions_23_TakesAnAcceptedMirror)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life().click(panel.controls().ibMIrror);
    EXPECT_PAIR(panel, Mirror, "On/On");
    EXPECT_TRUE(panel.controller().isMirrorManuallySet());
    EXPECT_FALSE(panel.controller().isMirrorSetDuringPreset());
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("Mirror", "On")));
}

TEST(Actions, Actions_24_ARefusedMirrorComparesWithAnotherWord)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life().click(panel.controls().ibMIrror);
    panel.host.refuseAll();
    panel.click(panel.controls().ibMIrror);
    EXPECT_PAIR(panel, Mirror, "On/On");
    EXPECT_FALSE(panel.controls().ibMIrror->isChecked());
    EXPECT_FALSE(panel.controller().isMirrorManuallySet());
}

TEST(Actions, Actions_25_ARefusedMirrorTicksTheBoxForTrue)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life().click(panel.controls().ibMIrror);
    panel.model().setMirror(q("Yes"));
    panel.model().setMIrrorTicket(q("True"));
    panel.host.refuseAll();
    panel.click(panel.controls().ibMIrror);
    EXPECT_PAIR(panel, Mirror, "Yes/True");
    EXPECT_TRUE(panel.controls().ibMIrror->isChecked());
}

TEST(Actions, Actions_26_SetsTheMirrorFlagsThoughRefused)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life();
    panel.controller().setIsMirrorSetDuringPreset(true);
    panel.host.refuseAll();
    panel.click(panel.controls().ibMIrror);
    EXPECT_FALSE(panel.controller().isMirrorSetDuringPreset());
    EXPECT_TRUE(panel.controller().isMirrorManuallySet());
}

TEST(Actions, Actions_27_UpTo105PlainPaperSwitchesMirrorOff)
{
    for (const int version : {0x105F, 0x1060}) {
        QualityPanel panel(p1(), {.version = version});
        panel.life();
        panel.model().setMirror(q("On"));
        panel.model().setMIrrorTicket(q("On"));
        panel.controls().ibMIrror->setChecked(true);
        panel.controller().updateMirrorValue();
        EXPECT_PAIR(panel, Mirror, version == 0x105F ? "Off/Off" : "On/On");
        EXPECT_TRUE(panel.controls().ibMIrror->isChecked());
        EXPECT_FALSE(mirrorInSettings(panel).isValid());
    }
}

TEST(Actions, Actions_28_IronOnHandAndPresetKeepMirrorOn)
{
    using Prepare = void (*)(QualityPanel &);
    constexpr Prepare reasons[] = {
        [](QualityPanel &panel) { panel.model().setPaperTypeTicket(q("IronOn")); },
        [](QualityPanel &panel) { panel.controller().setIsMirrorManuallySet(true); },
        [](QualityPanel &panel) { panel.controller().setIsMirrorSetDuringPreset(true); },
    };
    for (const Prepare prepare : reasons) {
        QualityPanel panel(p1());
        panel.life();
        prepare(panel);
        panel.controller().updateMirrorValue();
        EXPECT_EQ(mirrorInSettings(panel), QVariant(q("true")));

        QualityPanel older(p1(), {.version = 0x105F});
        older.life();
        prepare(older);
        older.controller().updateMirrorValue();
        EXPECT_PAIR(older, Mirror, "On/On");
        EXPECT_FALSE(mirrorInSettings(older).isValid());
    }
}

TEST(Actions, Actions_29_UnticksMirrorWhenTheTicketIsOff)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life();
    panel.controls().ibMIrror->setChecked(true);
    panel.controller().setIsMirrorManuallySet(true);
    panel.controller().updateControls();
    EXPECT_FALSE(panel.controller().isMirrorManuallySet());
    EXPECT_FALSE(panel.controls().ibMIrror->isChecked());
}

TEST(Actions, Actions_30_AMissingTicketForgetsTheHand)
{
    QualityPanel panel(p1(), {.version = 0x105F});
    panel.life();
    panel.model().setMIrrorTicket(QString());
    panel.controller().setIsMirrorManuallySet(true);
    panel.controller().updateControls();
    EXPECT_FALSE(panel.controller().isMirrorManuallySet());
    EXPECT_FALSE(panel.controls().ibMIrror->isChecked());
}

TEST(Actions, Actions_46_StraightAfterLifeMirrorIsTheWordOff)
{
    QualityPanel panel(germanMirror(), {.version = 0x105F});
    panel.life();
    EXPECT_PAIR(panel, Mirror, "Off/Off");
    panel.choose(panel.controls().ibPaperType, kIronOn);
    EXPECT_PAIR(panel, Mirror, "On/On");
    EXPECT_TRUE(panel.controls().ibMIrror->isChecked());
    EXPECT_TRUE(ironOnFlag(panel));
}

// Synchronisation -----------------------------------------------------------------------

TEST(Actions, Actions_31_SynchronisesAGrayscalePrinterWithInk)
{
    QualityPanel panel(p3());
    panel.life();
    panel.model().setTonerSaveTicket(q("On"));
    panel.controls().ibTonerSave->setChecked(true);
    panel.controller().updateControls();
    EXPECT_FALSE(panel.controls().ibTonerSave->isEnabled());
    EXPECT_FALSE(panel.controls().ibTonerSave->isChecked());
    EXPECT_PAIR(panel, TonerSave, "Off/Off");
    EXPECT_TRUE(panel.controls().ibHalftone->isEnabled());
    EXPECT_FALSE(panel.controls().ibUseICCTestChart->isEnabled());
    EXPECT_FALSE(panel.controls().ibUseICCTestChart->isChecked());
}

TEST(Actions, Actions_32_SynchronisesATonerPrinter)
{
    QualityPanel panel(p2(), {.year = {}});
    panel.life();
    panel.model().setTonerSave(q("On"));
    panel.model().setTonerSaveTicket(q("On"));
    panel.controller().updateControls();
    EXPECT_FALSE(panel.controls().ibInkToUse->isEnabled());
    EXPECT_TRUE(panel.controls().ibTonerSave->isEnabled());
    EXPECT_TRUE(panel.controls().ibTonerSave->isChecked());
    EXPECT_TEXT(panel.model().tonerSaveTicket(), "On");
}

TEST(Actions, Actions_33_ShowsNothingForAnInkOfTheOtherMode)
{
    QualityPanel panel(p1());
    panel.life();
    panel.model().setInkToUse(q("Black Only"));
    panel.controller().updateControls();
    EXPECT_EQ(titles(panel.controls().ibInkToUse),
              QStringList({q("Automatic"), q("Color Only"), q("Color and Black")}));
    EXPECT_EQ(panel.controls().ibInkToUse->currentIndex(), -1);
    EXPECT_PAIR(panel, InkToUse, "Black Only/Automatic");
}

TEST(Actions, Actions_34_KeepsTheInkOverARefill)
{
    QualityPanel panel(p1());
    panel.life();
    panel.choose(panel.controls().ibInkToUse, 1);
    panel.host.offers.clear();
    DebugLog log;
    log.switchOn();
    panel.controller().updateControls();
    EXPECT_TEXT(panel.controls().ibInkToUse->currentText(), "Color Only");
    EXPECT_THAT(panel.host.offers, IsEmpty());
    EXPECT_FALSE(log.traces().contains(q("{ -[KorPDEController2 inkToUseAction:]")));
}

// Threshold -----------------------------------------------------------------------------

TEST(Actions, Actions_35_TheStepperWritesFieldModelAndOffer)
{
    QualityPanel panel(p3());
    panel.life();
    panel.choose(panel.controls().ibColorOutput, 1);
    panel.host.offers.clear();
    panel.console.clear();
    panel.click(panel.controls().ibThresholdStepper->upButton());
    EXPECT_TEXT(panel.controls().ibThresholdTextFeild->text(), "4");
    EXPECT_PAIR(panel, Threshold, "4/4");
    EXPECT_THAT(panel.host.offers, ElementsAre(offer("Threshold", "4")));
    EXPECT_THAT(panel.console.lines(), Contains(q("[ibThresholdStepper intValue] is 4")));

    QualityPanel without(p1());
    without.life();
    without.controls().ibThresholdStepper->setValue(4);
    without.controller().thresholdStepperAction(without.controls().ibThresholdStepper);
    EXPECT_TEXT(without.controls().ibThresholdTextFeild->text(), "4");
    EXPECT_PAIR(without, Threshold, "4/4");
    EXPECT_THAT(without.host.offers, ElementsAre(offer("Threshold", "4")));
}

namespace {

/// P3 in black mode, with the threshold field ready for typing.
void readyForTyping(QualityPanel &panel)
{
    panel.life();
    panel.choose(panel.controls().ibColorOutput, 1);
    panel.host.offers.clear();
    EXPECT_TEXT(panel.controls().ibThresholdTextFeild->text(), "3");
}

} // namespace

TEST(Actions, Actions_36_TypingBeginsWithTheOldTextAndEndsWithTheNew)
{
    QualityPanel panel(p3());
    readyForTyping(panel);
    panel.model().setThreshold(QString());
    QStringList seen;
    QLineEdit *field = panel.controls().ibThresholdTextFeild;
    TextFieldEditing::of(field)->setDelegate(
        field,
        [&](QLineEdit *edited) {
            panel.controller().controlTextDidBeginEditing(edited);
            seen.append(q("begin ") + test::pair(panel.model(), Setting::Threshold));
        },
        {});
    panel.type("4");
    EXPECT_EQ(seen, QStringList({q("begin 3/3")}));
    EXPECT_TEXT(field->text(), "4");
    EXPECT_EQ(panel.controls().ibThresholdStepper->value(), 4);
    EXPECT_PAIR(panel, Threshold, "4/4");
    EXPECT_THAT(panel.host.offers, IsEmpty());
}

TEST(Actions, Actions_37_PastedTextsAreJudged)
{
    QualityPanel panel(p3());
    readyForTyping(panel);
    panel.paste("45");
    EXPECT_TEXT(panel.controls().ibThresholdTextFeild->text(), "5");
    EXPECT_EQ(panel.controls().ibThresholdStepper->value(), 5);
    EXPECT_PAIR(panel, Threshold, "5/5");
    panel.paste("7");
    EXPECT_TEXT(panel.controls().ibThresholdTextFeild->text(), "1");
    EXPECT_EQ(panel.controls().ibThresholdStepper->value(), 1);
    EXPECT_PAIR(panel, Threshold, "1/1");
}

TEST(Actions, Actions_38_AnotherFieldTakesTheSteppersValue)
{
    QualityPanel panel(p3());
    panel.life();
    panel.controls().ibThresholdStepper->setValue(2);
    panel.controls().ibThresholdTextFeild->setText(q("2"));
    QLineEdit other;
    other.setText(q("5"));
    panel.controller().controlTextDidChange(&other);
    EXPECT_PAIR(panel, Threshold, "2/2");
    EXPECT_EQ(panel.controls().ibThresholdStepper->value(), 2);
}

TEST(Actions, EachSessionOfEditingBeginsAnew)
{
    QualityPanel panel(p3());
    readyForTyping(panel);
    DebugLog log;
    log.switchOn();
    const auto begins = [&] {
        return log.traces().count(q("{ -[KorPDEController2 controlTextDidBeginEditing:]"));
    };
    panel.type("4");
    panel.type("5");
    EXPECT_EQ(begins(), 1);
    QTest::keyClick(panel.controls().ibThresholdTextFeild, Qt::Key_Return);
    panel.type("2");
    EXPECT_EQ(begins(), 2);
    QFocusEvent away(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(panel.controls().ibThresholdTextFeild, &away);
    panel.type("3");
    EXPECT_EQ(begins(), 3);
    EXPECT_EQ(log.traces().count(q("{ -[KorPDEController2 controlTextDidChange:]")), 4);
}

TEST(Actions, Actions_39_AnExternalThresholdAlwaysShows3)
{
    QualityPanel panel(p3());
    panel.life();
    panel.controls().ibThresholdTextFeild->setText(q("5"));
    panel.controls().ibThresholdStepper->setValue(5);
    panel.model().setThreshold(q("5"));
    panel.model().setThresholdTicket(q("5"));
    panel.console.clear();
    panel.controller().updateControl(q("Threshold"));
    EXPECT_TEXT(panel.controls().ibThresholdTextFeild->text(), "3");
    EXPECT_EQ(panel.controls().ibThresholdStepper->value(), 5);
    EXPECT_PAIR(panel, Threshold, "5/5");
    EXPECT_EQ(panel.console.lines(), QStringList({q("[pdeModel thresoldTicket ] is 5")}));
}

// One option ----------------------------------------------------------------------------

TEST(Actions, Actions_40_UnknownKeywordsUpdateNothing)
{
    QualityPanel panel(p1());
    panel.life();
    panel.model().setPrintQuality(q("Finest"));
    panel.model().setDryTime(q("Long Time"));
    panel.console.clear();
    for (const QString &keyword : {QString(), q("DupDryTime"), q("printquality"), q("")})
        panel.controller().updateControl(keyword);
    EXPECT_TEXT(panel.controls().ibPrintQuality->currentText(), "Automatic");
    EXPECT_TEXT(panel.controls().ibDryTimePopUp->currentText(), "Auto Time");
    EXPECT_THAT(panel.host.offers, IsEmpty());
    EXPECT_EQ(panel.console.lines(), QStringList());
}

TEST(Actions, UpdatesOnePopUpByItsValue)
{
    QualityPanel panel(p3());
    panel.life();
    panel.external(Setting::PrintQuality, "Best");
    panel.external(Setting::ColorPreferences, "Vivid");
    panel.external(Setting::PaperSource, "Tray2");
    panel.external(Setting::ColorOutput, "Black");
    panel.external(Setting::InkToUse, "ColorOnly");
    panel.external(Setting::Sharpen, "High");
    panel.external(Setting::HalftoneLevel, "Smooth");
    EXPECT_TEXT(panel.controls().ibPrintQuality->currentText(), "Finest");
    EXPECT_TEXT(panel.controls().ibColorPreferences->currentText(), "Vivid Color");
    EXPECT_TEXT(panel.controls().ibPaperSource->currentText(), "Lower Tray");
    EXPECT_TEXT(panel.controls().ibColorOutput->currentText(), "Black Only");
    EXPECT_TEXT(panel.controls().ibInkToUse->currentText(), "Color Only");
    EXPECT_TEXT(panel.controls().ibSharpen->currentText(), "High");
    EXPECT_TEXT(panel.controls().ibHalftone->currentText(), "Smooth");
    EXPECT_THAT(panel.host.offers, IsEmpty());
}

TEST(Actions, UpdatesOneBoxByItsTicket)
{
    QualityPanel panel(p3());
    panel.life();
    panel.console.clear();
    const std::pair<Setting, QPointer<QCheckBox>> boxes[] = {
        {Setting::Mirror, panel.controls().ibMIrror},
        {Setting::ICCTestChartProcess, panel.controls().ibUseICCTestChart},
        {Setting::TonerSave, panel.controls().ibTonerSave},
    };
    for (const auto &[setting, box] : boxes) {
        panel.external(setting, "On");
        EXPECT_TRUE(box->isChecked());
        panel.external(setting, "Off");
        EXPECT_FALSE(box->isChecked());
    }
    EXPECT_EQ(panel.console.lines(), QStringList({q("[pdeModel tonerSaveTicket ] is On"),
                                                  q("[pdeModel tonerSaveTicket ] is Off")}));
}

TEST(Actions, AnExternalPaperTypeUndoesTheIronOnMirror)
{
    QualityPanel newer(p1());
    newer.life().choose(newer.controls().ibPaperType, kIronOn);
    newer.host.offers.clear();
    newer.external(Setting::MediaType, "Plain");
    EXPECT_FALSE(mirrorInSettings(newer).isValid());
    EXPECT_FALSE(ironOnFlag(newer));
    EXPECT_THAT(newer.host.offers, ElementsAre(offer("Mirror", "Off")));

    QualityPanel older(p1(), {.version = 0x105F});
    older.life().choose(older.controls().ibPaperType, kIronOn);
    older.host.offers.clear();
    older.external(Setting::MediaType, "Plain");
    EXPECT_PAIR(older, Mirror, "Off/Off");
    EXPECT_FALSE(older.controls().ibMIrror->isChecked());
    EXPECT_THAT(older.host.offers, ElementsAre(offer("Mirror", "Off")));
}

// Disclosure ----------------------------------------------------------------------------

TEST(Actions, Actions_41_TheRecordsFollowTheTriangle)
{
    QualityPanel panel(p1());
    panel.life();
    QList<QObject *> objects;
    QObject observer;
    platform::NotificationCenter::defaultCenter().addObserver(
        &observer, PDEControllerDisclosureButtonChangedNotification,
        [&](const platform::Notification &notification) { objects.append(notification.object); });
    const auto expectRecords = [&](double panelHeight) {
        EXPECT_EQ(QualityTestAccess::headerViewRect(panel.controller()).y(), 123.0);
        EXPECT_EQ(panel.controls().ibHeaderView->frameRecord(), QRectF(0, 123, 440, 160));
        EXPECT_EQ(panel.controls().ibPDEView->frameRecord(), QRectF(0, 0, 440, panelHeight));
    };
    expectRecords(160);
    panel.click(panel.controls().ibDisclosure);
    expectRecords(283);
    panel.click(panel.controls().ibDisclosure);
    expectRecords(160);
    QObject *triangle = panel.controls().ibDisclosure;
    EXPECT_EQ(objects, QList<QObject *>({triangle, triangle}));
}

TEST(Actions, TheRecordsFollowTheTriangleWithoutSecondTray)
{
    PpdText text = p1();
    QualityPanel panel(text.withDefault("Tray2Option", "False"));
    panel.life();
    const auto header = [&] { return panel.controls().ibHeaderView->frameRecord(); };
    const auto height = [&] { return panel.controls().ibPDEView->frameRecord().height(); };
    EXPECT_EQ(header(), QRectF(0, 88, 440, 160));
    EXPECT_EQ(height(), 160);
    panel.click(panel.controls().ibDisclosure);
    EXPECT_EQ(header(), QRectF(0, 123, 440, 160));
    EXPECT_EQ(height(), 243);
    panel.click(panel.controls().ibDisclosure);
    EXPECT_EQ(header(), QRectF(0, 123, 440, 160));
    EXPECT_EQ(height(), 160);
}

TEST(Actions, Actions_42_ThePanelHasItsNewHeightWhenTheHostHears)
{
    QualityPanel panel(p1());
    panel.life();
    panel.controls().ibPDEView->show();
    QList<int> heights{panel.controls().ibPDEView->height()};
    QList<double> records;
    QObject observer;
    platform::NotificationCenter::defaultCenter().addObserver(
        &observer, PDEControllerDisclosureButtonChangedNotification,
        [&](const platform::Notification &) {
            heights.append(panel.controls().ibPDEView->height());
            records.append(panel.controls().ibPDEView->frameRecord().height());
        });
    panel.click(panel.controls().ibDisclosure);
    panel.click(panel.controls().ibDisclosure);
    ASSERT_EQ(heights.size(), 3);
    EXPECT_GT(heights[1], heights[0]);
    EXPECT_EQ(heights[2], heights[0]);
    EXPECT_EQ(records, QList<double>({283, 160}));
}

// What counts as an action --------------------------------------------------------------

TEST(Actions, Actions_43_WithoutTheOptionNothingHappens)
{
    PpdText text = p1();
    QualityPanel panel(text.without("PrintQuality"), {.version = 0x1049});
    panel.life();
    DebugLog log;
    log.switchOn();
    panel.controller().printQualityAction(panel.controls().ibPrintQuality);
    EXPECT_EQ(log.traces(), QStringList({q("{ -[KorPDEController2 printQualityAction:]"),
                                         q("} -[KorPDEController2 printQualityAction:]")}));
}

TEST(Actions, EveryGuardedActionDoesNothingWithoutItsOption)
{
    using Action = void (KorPDEController2::*)(QWidget *);
    using C = KorPDEController2;
    constexpr Action actions[] = {
        &C::printQualityAction,    &C::paperTypeAction,        &C::paperSourceAction,
        &C::colorOutputAction,     &C::colorPreferencesAction, &C::inkToUseAction,
        &C::mirrorAction,          &C::sharpenAction,          &C::dryTimePopUpAction,
        &C::dryTimeCheckBoxAction, &C::ICCTestChartAction,     &C::tonerSaveAction,
        &C::halftoneAction,
    };
    PpdText empty;
    QualityPanel panel(empty.add({"PageSize", "Size", PpdUi::PickOne, {{"A4", "A4"}}, "A4"}));
    panel.life();
    const QJsonObject before = quality::describeModel(panel.model());
    for (const Action action : actions)
        (panel.controller().*action)(nullptr);
    EXPECT_EQ(quality::describeModel(panel.model()), before);
    EXPECT_THAT(panel.host.offers, IsEmpty());
}

TEST(Actions, Actions_44_NoChangeByTheProgramIsAnAction)
{
    for (const PpdText &text : {p1(), p3()}) {
        QualityPanel panel(text);
        panel.life();
        QWidget *view = panel.controls().ibPDEView;
        view->show();
        panel.controls().ibDisclosure->setChecked(true);
        for (auto *popUp : view->findChildren<QComboBox *>()) {
            popUp->setCurrentIndex(popUp->count() - 1);
            popUp->setCurrentIndex(0);
        }
        for (auto *box : view->findChildren<QCheckBox *>())
            box->setChecked(!box->isChecked());
        panel.controls().ibThresholdTextFeild->setText(q("4"));
        panel.controls().ibThresholdStepper->setValue(5);
        EXPECT_THAT(panel.host.offers, IsEmpty());
        EXPECT_TRUE(panel.controls().ibAdvancedView->isHidden());
    }
}

TEST(Actions, Actions_45_TheWheelOverAnUnfocusedPopUpDoesNothing)
{
    QualityPanel panel(p1());
    panel.life();
    panel.controls().ibPDEView->show();
    QComboBox *popUp = panel.controls().ibPaperType;
    popUp->clearFocus();
    const int before = popUp->currentIndex();
    QWheelEvent wheel(QPointF(5, 5), popUp->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(popUp, &wheel);
    EXPECT_EQ(popUp->currentIndex(), before);
    EXPECT_THAT(panel.host.offers, IsEmpty());
}

TEST(Actions, AClickOnTheDisclosureLabelOpensThePanel)
{
    QualityPanel panel(p1());
    panel.life();
    panel.controls().ibPDEView->show();
    QTest::mouseClick(panel.controls().ibDisclosureLabel.data(), Qt::LeftButton);
    EXPECT_FALSE(panel.controls().ibAdvancedView->isHidden());
    EXPECT_EQ(panel.controls().ibDisclosure->arrowType(), Qt::DownArrow);
    QTest::mouseClick(panel.controls().ibDisclosureLabel.data(), Qt::LeftButton);
    EXPECT_TRUE(panel.controls().ibAdvancedView->isHidden());
    EXPECT_EQ(panel.controls().ibDisclosure->arrowType(), Qt::RightArrow);
}

TEST(Actions, ActionsLiveOnAfterTheHostDestroyedTheView)
{
    QualityPanel panel(p1());
    panel.life();
    delete panel.controls().ibPDEView.data();
    panel.controller().updateControls();
    for (const QString &keyword : panel.controller().supportedOptions())
        panel.controller().updateControl(keyword);
    panel.controller().printQualityAction(nullptr);
    EXPECT_PAIR(panel, PrintQuality, "∅/∅");
    EXPECT_EQ(texts(panel.host.offers), QStringList({q("PrintQuality=∅")}));
}

TEST(Actions, APanelMayGoWhileAConflictWindowIsOpen)
{
    QualityPanel panel(p1(), {.version = 0x1049});
    panel.life();
    const QPointer<QWidget> view = panel.controls().ibPDEView.data();
    const QPointer<QComboBox> popUp = panel.controls().ibPaperType.data();
    panel.model().setPrintQualityTicket(q("Draft"));
    int windows = 0;
    QObject watcher;
    QObject::connect(&platform::ModalSessions::shared(), &platform::ModalSessions::opened, &watcher,
                     [&] {
                         ++windows;
                         QTimer::singleShot(0, &watcher, [&] {
                             panel.destroy();
                             platform::stopAllModalSessions();
                         });
                     });
    panel.choose(popUp, kIronOn);
    EXPECT_EQ(windows, 1);
    ASSERT_TRUE(view) << "the pick's own event was still under way";
    QCoreApplication::sendPostedEvents(view, QEvent::DeferredDelete);
    EXPECT_FALSE(view);
}
