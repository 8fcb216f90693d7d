#include "tests/quality/panel.h"

#include "platform/controls/controls.h"
#include "platform/notification_center.h"
#include "quality/settings_table.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/plugin_bundle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using quality::Setting;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

QStringList words(const char *text)
{
    return q(text).split(u' ', Qt::SkipEmptyParts);
}

/// P1 whose print quality has no "Automatic", while colour preferences have one.
PpdText withoutAutomaticQuality()
{
    PpdText text = p1();
    return text.withoutChoice("PrintQuality", "Automatic").withDefault("PrintQuality", "Normal");
}

constexpr const char *kInkPrinterOptions =
    "PrintQuality MediaType PaperSource ColorPreferences InkToUse ICCTestChartProcess ColorOutput "
    "Sharpen Mirror";

} // namespace

TEST(SetUp, SetUp_01_AnswersTheOptionsOfAnInkPrinterBefore2010)
{
    QualityPanel panel(p1());
    EXPECT_EQ(panel.controller().supportedOptions(),
              words("PrintQuality MediaType PaperSource ColorPreferences InkToUse "
                    "ICCTestChartProcess DupDryTime ColorOutput Sharpen Mirror"));
}

TEST(SetUp, SetUp_02_LeavesDryTimeOutFrom2010OnAndWithoutAYear)
{
    QualityPanel newer(p1(), {.year = 2010});
    EXPECT_EQ(newer.controller().supportedOptions(), words(kInkPrinterOptions));
    QualityPanel unknown(p1(), {.year = {}});
    EXPECT_EQ(unknown.controller().supportedOptions(), words(kInkPrinterOptions));
    EXPECT_EQ(unknown.controller().productYearOnUse(), 65535);
}

TEST(SetUp, SetUp_03_AnswersTheOptionsOfATonerPrinter)
{
    QualityPanel panel(p2(), {.year = {}});
    EXPECT_EQ(panel.controller().supportedOptions(),
              words("PrintQuality MediaType ColorOutput Threshold TonerSave HalftoneLevel"));
}

TEST(SetUp, SetUp_04_IgnoresADryTimeThatPicksMany)
{
    PpdText text = p1();
    text.option("DupDryTime").ui = PpdUi::PickMany;
    QualityPanel panel(text);
    EXPECT_FALSE(panel.model().dryTimePopUpOption());
    EXPECT_FALSE(panel.model().dryTimeCheckBoxOption());
    EXPECT_FALSE(panel.controller().supportedOptions().contains(q("DupDryTime")));
}

TEST(SetUp, SetUp_05_FillsTheModelWithDefaults)
{
    QualityPanel panel(p1());
    EXPECT_PAIR(panel, PrintQuality, "Automatic/Automatic");
    EXPECT_PAIR(panel, MediaType, "Automatic detect/Automatic");
    EXPECT_PAIR(panel, PaperSource, "Upper Tray/Tray1");
    EXPECT_PAIR(panel, ColorPreferences, "Automatic Color/Automatic");
    EXPECT_PAIR(panel, InkToUse, "Automatic/Automatic");
    EXPECT_PAIR(panel, ICCTestChartProcess, "Off/Off");
    EXPECT_PAIR(panel, ColorOutput, "Color/Color");
    EXPECT_PAIR(panel, TonerSave, "∅/∅");
    EXPECT_PAIR(panel, HalftoneLevel, "∅/∅");
    EXPECT_PAIR(panel, Mirror, "Off/Off");
    EXPECT_PAIR(panel, Sharpen, "None/Off");
    EXPECT_PAIR(panel, Threshold, "∅/∅");
    EXPECT_PAIR(panel, DupDryTime, "∅/∅");
}

TEST(SetUp, SetUp_06_TakesTheColorPreferencesTicketFromPrintQuality)
{
    QualityPanel panel(withoutAutomaticQuality());
    EXPECT_PAIR(panel, ColorPreferences, "Automatic Color/∅");
}

TEST(SetUp, SetUp_07_CopiesMarkedChoicesWithoutAView)
{
    QualityPanel panel(p1());
    panel.restore();
    EXPECT_PAIR(panel, MediaType, "Plain Paper/Plain");
    EXPECT_PAIR(panel, DupDryTime, "Auto Time/Automatic");
    EXPECT_PAIR(panel, Threshold, "∅/∅");
    EXPECT_THAT(panel.host.offers, IsEmpty());
}

TEST(SetUp, SetUp_08_ResetsMirrorWhereNoneIsMarked)
{
    QualityPanel panel(p2(), {.year = {}});
    ASSERT_TRUE(panel.controller().mainView());
    panel.model().setMirror(q("On"));
    panel.model().setMIrrorTicket(q("On"));
    panel.restore();
    EXPECT_PAIR(panel, Mirror, "Off/Off");
}

TEST(SetUp, SetUp_09_RemembersThatMirrorCameFromAPreset)
{
    QualityPanel panel(p1());
    ASSERT_TRUE(panel.controller().mainView());
    panel.ppd.mark("Mirror", "On");
    panel.restore();
    EXPECT_TRUE(panel.controller().isMirrorSetDuringPreset());
    EXPECT_PAIR(panel, Mirror, "On/On");
    panel.ppd.mark("Mirror", "Off");
    panel.restore();
    EXPECT_FALSE(panel.controller().isMirrorSetDuringPreset());
    EXPECT_PAIR(panel, Mirror, "Off/Off");
}

TEST(SetUp, SetUp_10_ShowsAPrinterThatStartsInBlack)
{
    QualityPanel panel(p1());
    panel.ppd.mark("ColorOutput", "Black");
    panel.life();
    EXPECT_PAIR(panel, ColorOutput, "Black Only/Black");
    EXPECT_EQ(panel.controls().ibColorOutput->currentIndex(), 1);
    EXPECT_EQ(titles(panel.controls().ibInkToUse),
              QStringList({q("Automatic"), q("Black Only"), q("Black and Color")}));
    EXPECT_FALSE(panel.controls().ibUseICCTestChart->isChecked());
    EXPECT_FALSE(panel.controls().ibUseICCTestChart->isEnabled());
    EXPECT_PAIR(panel, ICCTestChartProcess, "Off/Off");
    EXPECT_FALSE(panel.controls().ibColorPreferences->isEnabled());
}

TEST(SetUp, SetUp_11_KeepsTheDefaultWhereNothingIsMarked)
{
    QualityPanel panel(p1(), {.marks = Marks::None});
    ASSERT_TRUE(panel.controller().mainView());
    panel.restore();
    EXPECT_PAIR(panel, MediaType, "Automatic detect/Automatic");
}

TEST(SetUp, SetUp_12_TakesTheThresholdFromItsField)
{
    QualityPanel panel(p1());
    ASSERT_TRUE(panel.controller().mainView());
    panel.controls().ibThresholdTextFeild->setText(q("5"));
    panel.restore();
    EXPECT_PAIR(panel, Threshold, "5/5");
}

TEST(SetUp, SetUp_13_TakesAnEmptyThresholdFieldAsEmptyNotAsNull)
{
    QualityPanel panel(p1());
    ASSERT_TRUE(panel.controller().mainView());
    panel.controls().ibThresholdTextFeild->clear();
    panel.restore();
    EXPECT_TEXT(panel.model().Threshold(), "");
    EXPECT_TEXT(panel.model().thresoldTicket(), "");
}

TEST(SetUp, SetUp_14_StartsTonerSaveInvertedUntilTheModelCorrectsIt)
{
    QualityPanel panel(p2(), {.year = {}});
    ASSERT_TRUE(panel.controller().mainView());
    panel.controller().initializeControls();
    EXPECT_TRUE(panel.controls().ibTonerSave->isChecked());
    panel.controller().updateControls();
    EXPECT_FALSE(panel.controls().ibTonerSave->isChecked());
}

TEST(SetUp, SetUp_15_StartsTonerSaveOffWhereThePrinterSavesByDefault)
{
    PpdText text = p2();
    QualityPanel panel(text.withDefault("TonerSave", "On"), {.year = {}});
    ASSERT_TRUE(panel.controller().mainView());
    panel.controls().ibTonerSave->setChecked(true);
    panel.controller().initializeControls();
    EXPECT_FALSE(panel.controls().ibTonerSave->isChecked());
}

TEST(SetUp, SetUp_16_SelectsTheDitheringHalftone)
{
    QualityPanel panel(p2(), {.year = {}});
    ASSERT_TRUE(panel.controller().mainView());
    panel.show();
    EXPECT_EQ(titles(panel.controls().ibHalftone), words("Detail Dither Smooth"));
    EXPECT_EQ(panel.controls().ibHalftone->currentIndex(), 1);
}

TEST(SetUp, SetUp_17_LooksForTheSharpeningDefaultsKeywordAmongTheTitles)
{
    QualityPanel panel(p1());
    ASSERT_TRUE(panel.controller().mainView());
    panel.controller().initializeControls();
    EXPECT_EQ(panel.controls().ibSharpen->currentIndex(), -1);
    panel.controller().updateControls();
    EXPECT_TEXT(panel.controls().ibSharpen->currentText(), "None");
}

TEST(SetUp, SetUp_18_ShowsPaperSourceOnlyWithTheSecondTray)
{
    PpdText lowerCase = p1();
    lowerCase.option("Tray2Option").choices = {{"true", "Installed"}};
    lowerCase.withDefault("Tray2Option", "true");

    QualityPanel installed(p1());
    installed.life();
    EXPECT_FALSE(installed.controls().ibPaperSource->isHidden());
    EXPECT_FALSE(installed.controls().ibPaperSourceLabel->isHidden());
    EXPECT_EQ(titles(installed.controls().ibPaperSource),
              QStringList({q("Upper Tray"), q("Lower Tray")}));

    PpdText without = p1();
    for (const PpdText &text : {without.withDefault("Tray2Option", "False"), lowerCase}) {
        QualityPanel panel(text);
        panel.life();
        EXPECT_TRUE(panel.controls().ibPaperSource->isHidden());
        EXPECT_TRUE(panel.controls().ibPaperSourceLabel->isHidden());
        EXPECT_THAT(titles(panel.controls().ibPaperSource), IsEmpty());
    }
}

TEST(SetUp, SetUp_19_ShowsMirrorUpTo105Only)
{
    QualityPanel older(p1(), {.version = 0x105F});
    older.life();
    EXPECT_FALSE(older.controls().ibMIrror->isHidden());
    EXPECT_FALSE(older.controls().ibMIrror->isChecked());
    QualityPanel newer(p1(), {.version = 0x1060});
    newer.life();
    EXPECT_TRUE(newer.controls().ibMIrror->isHidden());
}

TEST(SetUp, SetUp_20_TicksMirrorWithoutADefaultUntilTheModelCorrectsIt)
{
    PpdText text = p1();
    text.without("Mirror");
    QualityPanel first(text, {.version = 0x105F});
    ASSERT_TRUE(first.controller().mainView());
    first.controller().initializeControls();
    EXPECT_TRUE(first.controls().ibMIrror->isChecked());
    QualityPanel second(text, {.version = 0x105F});
    second.life();
    EXPECT_FALSE(second.controls().ibMIrror->isChecked());
}

TEST(SetUp, SetUp_21_FillsTheControlsOnce)
{
    QualityPanel panel(p1());
    ASSERT_TRUE(panel.controller().mainView());
    EXPECT_FALSE(panel.controller().isFinishedInited());
    panel.controller().initializeControls();
    panel.controls().ibPrintQuality->setCurrentIndex(2);
    panel.controller().initializeControls();
    EXPECT_EQ(panel.controls().ibPrintQuality->currentIndex(), 2);
    EXPECT_EQ(panel.controls().ibPrintQuality->count(), 4);
    EXPECT_EQ(panel.controls().ibPaperType->count(), 8);
    EXPECT_EQ(panel.controls().ibInkToUse->count(), 3);
    EXPECT_TRUE(panel.controller().isFinishedInited());
}

TEST(SetUp, SetUp_22_AsksTheHostFrom1050On)
{
    QualityPanel older(p1(), {.version = 0x104F});
    older.host.refuseAll();
    EXPECT_TRUE(older.controller().changePPDOptionKeyValue(q("A"), q("b")));
    EXPECT_THAT(older.host.offers, IsEmpty());

    QualityPanel newer(p1(), {.version = 0x1050});
    newer.host.refuseAll();
    EXPECT_FALSE(newer.controller().changePPDOptionKeyValue(q("A"), q("b")));
    EXPECT_THAT(newer.host.offers, ElementsAre(offer("A", "b")));
}

TEST(SetUp, SetUp_23_ResetsOneSettingToItsDefault)
{
    QualityPanel panel(p1());
    panel.life();
    panel.controller().setPDEModelItemToDefault(q("MediaType"));
    EXPECT_PAIR(panel, MediaType, "Automatic detect/Automatic");
    panel.controller().setPDEModelItemToDefault(q("Threshold"));
    EXPECT_PAIR(panel, Threshold, "3/3");

    QualityPanel other(withoutAutomaticQuality());
    other.controller().setPDEModelItemToDefault(q("ColorPreferences"));
    EXPECT_PAIR(other, ColorPreferences, "Automatic Color/Automatic");
    const QJsonObject before = quality::describeModel(other.model());
    other.controller().setPDEModelItemToDefault(q("Nope"));
    other.controller().setPDEModelItemToDefault(QString());
    EXPECT_EQ(quality::describeModel(other.model()), before);
}

TEST(SetUp, SetUp_24_ResetsADryTimeBoxWithoutATicket)
{
    QualityPanel panel(p1c());
    panel.life();
    panel.model().setDryTimeTicket(q("True"));
    panel.model().setDryTime(q("Longer drying"));
    panel.controller().setPDEModelItemToDefault(q("DupDryTime"));
    EXPECT_PAIR(panel, DupDryTime, "Normal drying/∅");
}

TEST(SetUp, SetUp_25_ReadsChoicesByIndex)
{
    QualityPanel panel(p1());
    KorPDEController2 &controller = panel.controller();
    const auto keyword = ChoiceString::Keyword;
    EXPECT_TEXT(controller.selectedItemFromIndex(2, "InkToUse", keyword), "BlackOnly");
    EXPECT_TEXT(controller.selectedItemFromIndex(2, "InkToUse", ChoiceString::Text), "Black Only");
    EXPECT_NULL(controller.selectedItemFromIndex(-1, "InkToUse", keyword));
    EXPECT_NULL(controller.selectedItemFromIndex(5, "InkToUse", keyword));
    EXPECT_NULL(controller.selectedItemFromIndex(0, "Nope", keyword));

    KorPDEController2 without(nullptr, platform::encoding::utf8, nullptr, nullptr, pluginBundle());
    EXPECT_NULL(without.selectedItemFromIndex(2, "InkToUse", keyword));
}

TEST(SetUp, SetUp_26_EveryLivingControllerFollowsAConflictsResolution)
{
    QualityPanel first(p1());
    QualityPanel second(p1());
    for (QualityPanel *panel : {&first, &second}) {
        panel->life();
        panel->model().setPrintQuality(q("Finest"));
    }
    DebugLog log;
    log.switchOn();
    platform::NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification,
                                                       first.controls().ibMIrror);
    EXPECT_TEXT(first.controls().ibPrintQuality->currentText(), "Finest");
    EXPECT_TEXT(second.controls().ibPrintQuality->currentText(), "Finest");
    EXPECT_EQ(log.traces().count(q("{ -[KorPDEController2 updateControls]")), 2);
}

TEST(SetUp, SetUp_27_PassesNoNullSessionOn)
{
    QualityPanel panel(p1());
    panel.create();
    DebugLog log;
    log.switchOn();
    panel.controller().setPrintSession(nullptr);
    EXPECT_EQ(log.traces(), QStringList({q("{ -[KorPDEController2 setPrintSession:]"),
                                         q("} -[KorPDEController2 setPrintSession:]")}));
}

// Printers that lack something ----------------------------------------------------------

TEST(SetUp, LivesWithoutAPpd)
{
    FakeHost host;
    KorPDEController2 controller(nullptr, platform::encoding::utf8, host.printSettings(),
                                 host.pageFormat(), pluginBundle());
    controller.setPDEPluginCallbackObject(&host);
    ASSERT_TRUE(controller.mainView());
    controller.processMarkedPPDChoices();
    controller.initializeControls();
    controller.localizeLabels();
    controller.updateControls();
    EXPECT_THAT(controller.supportedOptions(), IsEmpty());
    EXPECT_THAT(controller.infoForSummaryPanel(), IsEmpty());
    EXPECT_THAT(host.offers, IsEmpty());
}

TEST(SetUp, WritesNoErrorRecordForAnUsualPrinter)
{
    DebugLog log;
    log.switchOn();
    QualityPanel ink(p1());
    ink.life();
    QualityPanel toner(p2(), {.year = {}});
    toner.life();
    EXPECT_EQ(log.errorMessages(), QStringList());
}

TEST(SetUp, WritesOneErrorRecordForEachOptionThatTheRulesDoNotExpect)
{
    PpdText text = p3();
    text.without("PrintQuality").withoutChoice("InkToUse", "BlackOnly");
    text.option("Mirror").choices = {{"Off", "Aus"}, {"On", "An"}};
    text.option("TonerSave").choices = {{"False", "Off"}, {"True", "On"}};
    text.option("HalftoneLevel").choices[1].text = "Dots";
    text.option("ColorOutput").choices[0].text = "Vivid";
    DebugLog log;
    log.switchOn();
    QualityPanel panel(text);
    panel.life();
    EXPECT_EQ(log.errorMessages(),
              QStringList({
                  q("the printer lacks the option PrintQuality"),
                  q("option Mirror: the choice Off is not what the panel's rules assume"),
                  q("option TonerSave: the choice False is not what the panel's rules assume"),
                  q("option InkToUse: the choice ColorBlack is not what the panel's rules assume"),
                  q("option ColorOutput: the choice Gray is not what the panel's rules assume"),
                  q("option HalftoneLevel: the choice Dither is not what the panel's rules assume"),
              }));
}

TEST(SetUp, AnswersNoWithoutAHost)
{
    QualityPanel panel(p1());
    panel.controller().setPDEPluginCallbackObject(nullptr);
    EXPECT_FALSE(panel.controller().changePPDOptionKeyValue(q("A"), q("b")));
}

TEST(SetUp, KeepsWhatItsAccessorsAreGiven)
{
    QualityPanel panel(p1());
    KorPDEController2 &controller = panel.controller();
    controller.setOSVersion(0x1049);
    EXPECT_EQ(controller.osVersionOnUse(), 0x1049);
    controller.setProductYear(2011);
    EXPECT_EQ(controller.productYearOnUse(), 2011);
    controller.setIsMirrorManuallySet(true);
    EXPECT_TRUE(controller.isMirrorManuallySet());
    const auto model = std::make_shared<PDEModel2>();
    controller.setPDEModel(model);
    EXPECT_EQ(controller.pdeModel(), model.get());
}
