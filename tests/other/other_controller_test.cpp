#include "other/kor_pde_controller3.h"
#include "platform/controls/radio_matrix.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/fake_host.h"
#include "tests/support/plugin_bundle.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"
#include "tests/support/user.h"

#include "platform/controls/controls.h"

#include <QCheckBox>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A controller with a host of its own, and its view's controls.
struct Other
{
    explicit Other(const PpdText &text = p2())
        : ppd(text), host(ppd.get()),
          controller(ppd.get(), platform::encoding::utf8, host.printSettings(), host.pageFormat(),
                     pluginBundle())
    {
        controller.setPrintSession(host.printSession());
        controller.setPDEPluginCallbackObject(&host);
    }

    void show()
    {
        ASSERT_TRUE(controller.mainView());
        controller.initializeControls();
        controller.localizeLabels();
        controller.updateControls();
    }

    [[nodiscard]] PDEModel2 &model() { return *controller.pdeModel(); }
    [[nodiscard]] QCheckBox *box(const char *name)
    {
        return controller.mainView()->findChild<QCheckBox *>(q(name));
    }
    [[nodiscard]] QCheckBox *improvement() { return box("ibImprovementSettings"); }
    [[nodiscard]] QCheckBox *ghosting() { return box("ibReduceGhosting"); }
    [[nodiscard]] QCheckBox *density() { return box("ibImprovePrintDensity"); }
    [[nodiscard]] RadioMatrix *matrix()
    {
        return controller.mainView()->findChild<RadioMatrix *>(q("ibImprovePrintQuality"));
    }

    OpenPpd ppd;
    FakeHost host;
    KorPDEController3 controller;
};

/// P2 with another default in its two on/off settings that start from the PPD's default.
PpdText withDefaults(const QByteArray &choice)
{
    return p2()
        .withDefault("ImprovementSettings", choice)
        .withDefault("PrintDensity", choice)
        .withDefault("ReduceGhosting", choice);
}

constexpr std::array kOtherOptions{"ImprovementSettings", "ImprovePrintQuality", "ReduceGhosting",
                                   "PrintDensity"};

} // namespace

TEST(OtherController, OtherController_01_StartsFromFixedDefaults)
{
    Other other;
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "Off");
    EXPECT_TEXT(other.model().printDensityTicket(), "Off");
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "Off");
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "ReducePaperCurl");
    EXPECT_TEXT(other.model().reduceGhosting(), "Off");
    EXPECT_TEXT(other.model().printDensity(), "Off");
    EXPECT_TEXT(other.model().improvementSettings(), "Off");
    EXPECT_TEXT(other.model().improvePrintQuality(), "Reduce Curl");
}

TEST(OtherController, KeepsItsFixedDefaultsWhateverThePpdsAre)
{
    PpdText text = withDefaults("On");
    Other other(text.withDefault("ImprovePrintQuality", "ImproveTonerFixing"));
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "Off");
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "ReducePaperCurl");
}

TEST(OtherController, OtherController_02_ShowsGhostingInvertedUntilTheTicketsCorrectIt)
{
    Other other;
    ASSERT_TRUE(other.controller.mainView());
    other.controller.initializeControls();
    EXPECT_FALSE(other.improvement()->isChecked());
    EXPECT_FALSE(other.density()->isChecked());
    EXPECT_TRUE(other.ghosting()->isChecked());

    other.controller.updateControls();
    EXPECT_FALSE(other.ghosting()->isChecked());
    EXPECT_FALSE(other.matrix()->isEnabled());
    EXPECT_EQ(other.matrix()->selectedRow(), 0);
}

TEST(OtherController, ShowsDefaultsThatAreOnBeforeTheTicketsDo)
{
    Other other(withDefaults("On"));
    ASSERT_TRUE(other.controller.mainView());
    other.ghosting()->setChecked(true);
    other.controller.initializeControls();
    EXPECT_TRUE(other.improvement()->isChecked());
    EXPECT_TRUE(other.density()->isChecked());
    EXPECT_FALSE(other.ghosting()->isChecked());
}

TEST(OtherController, TakesADefaultThatThePpdDoesNotNameForOn)
{
    Other other(withDefaults(""));
    ASSERT_TRUE(other.controller.mainView());
    other.controller.initializeControls();
    EXPECT_TRUE(other.improvement()->isChecked());
    EXPECT_TRUE(other.density()->isChecked());
    EXPECT_FALSE(other.ghosting()->isChecked());
}

TEST(OtherController, SetsTheBoxesUpOnce)
{
    DebugLog log;
    log.switchOn();
    Other other;
    ASSERT_TRUE(other.controller.mainView());
    EXPECT_FALSE(other.controller.isFinishedInited());
    other.controller.initializeControls();
    EXPECT_TRUE(other.controller.isFinishedInited());
    other.controller.updateControls();
    other.controller.initializeControls();
    EXPECT_TRUE(other.controller.isFinishedInited());
    EXPECT_FALSE(other.ghosting()->isChecked()) << "the second call changes no box";
    EXPECT_EQ(log.infoMessages().count(
                  q("KorPDEController3 - initializeControls - Others PDE is already Initialized")),
              1);
}

TEST(OtherController, OtherController_03_EnablesTheMatrixWhenTickedAndOffersNothing)
{
    Other other;
    other.show();
    user::click(other.improvement());
    EXPECT_TRUE(other.matrix()->isEnabled());
    EXPECT_TEXT(other.model().improvementSettings(), "On");
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "On");
    EXPECT_THAT(other.host.offers, IsEmpty());
}

TEST(OtherController, OtherController_04_KeepsTheImprovementsTicketWhenTheBoxGoesOff)
{
    Other other;
    other.show();
    user::click(other.improvement());
    user::clickRow(other.matrix(), 2);
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "ImproveWrinklesorCreases");

    user::click(other.improvement());
    EXPECT_FALSE(other.matrix()->isEnabled());
    EXPECT_EQ(other.matrix()->selectedRow(), 0);
    EXPECT_TEXT(other.model().improvePrintQuality(), "Reduce Curl");
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "ImproveWrinklesorCreases");
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "Off");

    user::click(other.improvement());
    EXPECT_EQ(other.matrix()->selectedRow(), 0) << "the ticket comes back with updateControls";
    other.controller.updateControls();
    EXPECT_EQ(other.matrix()->selectedRow(), 2);
}

TEST(OtherController, OtherController_05_ShowsAnUnknownImprovementAsTheLastRow)
{
    Other other;
    other.show();
    other.model().setImprovementSettingsTicket(q("On"));
    const std::pair<QString, int> rows[] = {{QString(), 2},
                                            {q("X"), 2},
                                            {q("ImproveTonerFixing"), 1},
                                            {q("ReducePaperCurl"), 0},
                                            {q("reducepapercurl"), 2},
                                            {q(""), 2},
                                            {q("ImproveWrinklesorCreases"), 2}};
    for (const auto &[ticket, row] : rows) {
        other.model().setImprovePrintQualityTicket(ticket);
        other.controller.updateControls();
        EXPECT_EQ(other.matrix()->selectedRow(), row) << testing::PrintToString(ticket);
        EXPECT_TRUE(other.matrix()->isEnabled());
    }
}

TEST(OtherController, OtherController_06_KeepsTheModelWhenNoRowIsSelected)
{
    Other other;
    other.show();
    other.matrix()->selectRow(-1);
    other.model().setImprovePrintQuality(q("kept"));
    other.model().setImprovePrintQualityTicket(q("Kept"));
    other.controller.improvePrintQualityAction(other.matrix());
    EXPECT_TEXT(other.model().improvePrintQuality(), "kept");
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "Kept");
    EXPECT_THAT(other.host.offers, IsEmpty());
}

TEST(OtherController, TakesEachRowOfTheMatrix)
{
    Other other;
    other.show();
    user::click(other.improvement());
    const std::array<std::pair<const char *, const char *>, 3> rows{
        {{"ReducePaperCurl", "Reduce Curl"},
         {"ImproveTonerFixing", "Better Fixing"},
         {"ImproveWrinklesorCreases", "Fewer Wrinkles"}}};
    for (const int row : {2, 1, 0}) {
        user::clickRow(other.matrix(), row);
        EXPECT_TEXT(other.model().improvePrintQualityTicket(), rows[std::size_t(row)].first);
        EXPECT_TEXT(other.model().improvePrintQuality(), rows[std::size_t(row)].second);
    }
    EXPECT_THAT(other.host.offers, IsEmpty());
}

TEST(OtherController, TakesTheOtherBoxes)
{
    Other other;
    other.show();
    user::click(other.ghosting());
    user::click(other.density());
    EXPECT_TEXT(other.model().reduceGhosting(), "On");
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "On");
    EXPECT_TEXT(other.model().printDensity(), "On");
    EXPECT_TEXT(other.model().printDensityTicket(), "On");
    user::click(other.ghosting());
    user::click(other.density());
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "Off");
    EXPECT_TEXT(other.model().printDensityTicket(), "Off");
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "Off");
    EXPECT_THAT(other.host.offers, IsEmpty());
}

TEST(OtherController, StoresNothingWhereThePrinterHasNoOnOrOff)
{
    Other other(p2().withoutChoice("PrintDensity", "On"));
    other.show();
    user::click(other.density());
    EXPECT_NULL(other.model().printDensity());
    EXPECT_NULL(other.model().printDensityTicket());
    other.controller.updateControls();
    EXPECT_FALSE(other.density()->isChecked()) << "no ticket shows as an unticked box";
}

TEST(OtherController, OtherController_07_SupportsOnlyWhatThePrinterHas)
{
    PpdText text = p2();
    for (const char *option : {"ImprovementSettings", "ImprovePrintQuality", "ReduceGhosting"})
        text.without(option);
    Other other(text);
    EXPECT_EQ(other.controller.supportedOptions(), QStringList{q("PrintDensity")});
}

TEST(OtherController, OtherController_08_SupportsAllFourInItsOrder)
{
    Other other;
    EXPECT_EQ(other.controller.supportedOptions(),
              (QStringList{q("ReduceGhosting"), q("ImprovementSettings"), q("PrintDensity"),
                           q("ImprovePrintQuality")}));
}

TEST(OtherController, OtherController_09_SumsUpTheBoxesAndNotTheImprovement)
{
    Other other;
    other.show();
    EXPECT_THAT(other.controller.infoForSummaryPanel(),
                ElementsAre(std::pair(q("Improve Output"), q("Off")),
                            std::pair(q("Density"), q("Off")),
                            std::pair(q("Reduce Ghosting"), q("Off"))));
}

TEST(OtherController, SumsUpNothingWithoutAValueAndOnceWhereTitlesAreTheSame)
{
    PpdText text = p2();
    text.option("PrintDensity").text = "Improve Output";
    Other other(text);
    other.model().setReduceGhosting(QString());
    other.model().setPrintDensity(q("later"));
    EXPECT_THAT(other.controller.infoForSummaryPanel(),
                ElementsAre(std::pair(q("Improve Output"), q("later"))));
    other.model().setReduceGhostingOption(nullptr);
    other.model().setReduceGhosting(q("without an option"));
    EXPECT_EQ(other.controller.infoForSummaryPanel().size(), 1U);
}

TEST(OtherController, OtherController_10_ResetsTheOnOffSettingsOnly)
{
    Other other;
    const auto setAll = [&other](const QString &word) {
        other.model().setReduceGhosting(word);
        other.model().setReduceGhostingTicket(word);
        other.model().setPrintDensity(word);
        other.model().setPrintDensityTicket(word);
        other.model().setImprovementSettings(word);
        other.model().setImprovementSettingsTicket(word);
        other.model().setImprovePrintQuality(word);
        other.model().setImprovePrintQualityTicket(word);
    };
    setAll(q("On"));
    for (const QString &keyword : {q("ImprovePrintQuality"), q("reduceghosting"), QString(), q("")})
        other.controller.setPDEModelItemToDefault(keyword);
    EXPECT_TEXT(other.model().improvePrintQuality(), "On");
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "On");
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "On");

    other.controller.setPDEModelItemToDefault(q("ReduceGhosting"));
    EXPECT_TEXT(other.model().reduceGhosting(), "Off");
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "Off");
    EXPECT_TEXT(other.model().printDensityTicket(), "On");
    other.controller.setPDEModelItemToDefault(q("PrintDensity"));
    EXPECT_TEXT(other.model().printDensityTicket(), "Off");
    other.controller.setPDEModelItemToDefault(q("ImprovementSettings"));
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "Off");
}

TEST(OtherController, OtherController_11_TakesOverWhatThePpdHasMarked)
{
    Other other;
    for (const char *option : {"ImprovementSettings", "ReduceGhosting", "PrintDensity"})
        other.ppd.mark(option, "On");
    other.ppd.mark("ImprovePrintQuality", "ImproveTonerFixing");
    ASSERT_TRUE(other.controller.mainView());
    other.controller.processMarkedPPDChoices();
    EXPECT_TEXT(other.model().improvementSettings(), "On");
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "On");
    EXPECT_TEXT(other.model().reduceGhosting(), "On");
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "On");
    EXPECT_TEXT(other.model().printDensity(), "On");
    EXPECT_TEXT(other.model().printDensityTicket(), "On");
    EXPECT_TEXT(other.model().improvePrintQuality(), "Better Fixing");
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "ImproveTonerFixing");
    EXPECT_TRUE(other.improvement()->isChecked());
    EXPECT_TRUE(other.ghosting()->isChecked());
    EXPECT_TRUE(other.density()->isChecked());
    EXPECT_TRUE(other.matrix()->isEnabled());
    EXPECT_EQ(other.matrix()->selectedRow(), 1);
}

TEST(OtherController, CopiesMarkedChoicesWithATicketOnly)
{
    Other other;
    PDEModel2 marked;
    marked.setPrintDensity(q("text without ticket"));
    marked.setReduceGhostingTicket(q("On"));
    other.controller.updatePDEModelwithMarkedChoices(marked);
    EXPECT_TEXT(other.model().printDensity(), "Off");
    EXPECT_NULL(other.model().reduceGhosting());
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "On");
}

TEST(OtherController, FindsNoMarkedChoicesWhereNothingIsMarked)
{
    OpenPpd ppd(p2(), Marks::None);
    FakeHost host(ppd.get());
    KorPDEController3 controller(ppd.get(), platform::encoding::utf8, host.printSettings(),
                                 host.pageFormat(), pluginBundle());
    const PDEModel2 marked = controller.findMarkedChoicesinPPD();
    EXPECT_NULL(marked.improvementSettings());
    EXPECT_NULL(marked.improvementSettingsTicket());
    controller.processMarkedPPDChoices();
    EXPECT_TEXT(controller.pdeModel()->improvementSettingsTicket(), "Off");
}

TEST(OtherController, OtherController_12_AlwaysLeavesHelpToTheDialog)
{
    Other other;
    EXPECT_TRUE(other.controller.shouldShowDefaultHelp(q("/Library/Printers/Korvane")));
    EXPECT_TRUE(other.controller.shouldShowDefaultHelp(QString()));
}

TEST(OtherController, UpdatesSingleBoxesAndNeverTheMatrix)
{
    Other other;
    other.show();
    other.model().setImprovementSettingsTicket(q("On"));
    other.model().setReduceGhostingTicket(q("On"));
    other.model().setPrintDensityTicket(q("On"));
    for (const QString &keyword :
         {QString(), q(""), q("ImprovePrintQuality"), q("MediaType"), q("printdensity")})
        other.controller.updateControl(keyword);
    EXPECT_FALSE(other.improvement()->isChecked());
    EXPECT_FALSE(other.ghosting()->isChecked());
    EXPECT_FALSE(other.density()->isChecked());

    other.controller.updateControl(q("ImprovementSettings"));
    EXPECT_TRUE(other.improvement()->isChecked());
    EXPECT_FALSE(other.matrix()->isEnabled());
    other.controller.updateControl(q("ReduceGhosting"));
    EXPECT_TRUE(other.ghosting()->isChecked());
    other.controller.updateControl(q("PrintDensity"));
    EXPECT_TRUE(other.density()->isChecked());
    other.model().setPrintDensityTicket(q("on"));
    other.controller.updateControl(q("PrintDensity"));
    EXPECT_FALSE(other.density()->isChecked());
}

TEST(OtherController, NeverAsksTheHost)
{
    Other other;
    other.host.refuseAll();
    EXPECT_TRUE(other.controller.changePPDOptionKeyValue(q("PrintDensity"), q("On")));
    EXPECT_TRUE(other.controller.changePPDOptionKeyValue(QString(), QString()));
    EXPECT_THAT(other.host.offers, IsEmpty());
}

TEST(OtherController, TitlesComeFromThePpd)
{
    PpdText text = p2();
    text.option("PrintDensity").text = "Dark && bold & even";
    Other other(text);
    other.show();
    EXPECT_EQ(controls::title(other.improvement()), q("Improve Output"));
    EXPECT_EQ(controls::title(other.ghosting()), q("Reduce Ghosting"));
    EXPECT_EQ(controls::title(other.density()), q("Dark && bold & even"));
    EXPECT_EQ(other.matrix()->titles(),
              (QStringList{q("Reduce Curl"), q("Better Fixing"), q("Fewer Wrinkles")}));
}

TEST(OtherController, LogsTheNamesOfTheThreeImprovements)
{
    DebugLog log;
    log.switchOn();
    Other other(p2().withoutChoice("ImprovePrintQuality", "ImproveTonerFixing"));
    other.show();
    const QStringList messages = log.infoMessages();
    EXPECT_TRUE(messages.contains(q("kNSReducePaperCurlChoice is Reduce Curl")));
    EXPECT_TRUE(messages.contains(q("kNSImproveTonerFixingChoice is (null)")));
    EXPECT_TRUE(messages.contains(q("kNSImproveWrinklesorCreasesChoice is Fewer Wrinkles")));
}

TEST(OtherController, LeavesTheInterfaceFilesTextsWhereThePrinterLacksAnOption)
{
    PpdText text = p2();
    for (const char *option : kOtherOptions)
        text.without(option);
    Other other(text);
    other.show();
    EXPECT_EQ(controls::title(other.improvement()), q("Improvement Settings"));
    EXPECT_EQ(controls::title(other.ghosting()), q("Reduce Ghosting"));
    EXPECT_EQ(controls::title(other.density()), q("Print Density"));
    EXPECT_EQ(other.matrix()->titles(),
              (QStringList{q("Reduce paper curl"), q("Improve toner fixing"),
                           q("Reduce wrinkles or creases")}));
    for (QCheckBox *box : {other.improvement(), other.ghosting(), other.density()})
        EXPECT_FALSE(box->isEnabled()) << box->objectName().toStdString();
    EXPECT_THAT(other.controller.supportedOptions(), IsEmpty());
    EXPECT_THAT(other.controller.infoForSummaryPanel(), IsEmpty());
}

TEST(OtherController, DoesNothingInActionsOfMissingOptions)
{
    PpdText text = p2();
    for (const char *option : kOtherOptions)
        text.without(option);
    Other other(text);
    other.show();
    other.improvement()->setChecked(true);
    other.controller.improvementSettingAction(other.improvement());
    other.controller.improvePrintQualityAction(other.matrix());
    other.controller.reduceGhostingAction(other.ghosting());
    other.controller.ImprovePrintDensityAction(other.density());
    EXPECT_FALSE(other.matrix()->isEnabled());
    EXPECT_NULL(other.model().improvementSettingsTicket());
    EXPECT_NULL(other.model().improvePrintQualityTicket());
}

TEST(OtherController, LivesWithoutAPpd)
{
    KorPDEController3 controller(nullptr, platform::encoding::utf8, nullptr, nullptr,
                                 pluginBundle());
    ASSERT_TRUE(controller.mainView());
    controller.initializeControls();
    controller.localizeLabels();
    controller.processMarkedPPDChoices();
    EXPECT_THAT(controller.supportedOptions(), IsEmpty());
}

TEST(OtherController, ChangesNothingWhenOnlyTheProgramMovesControls)
{
    Other other;
    other.show();
    other.improvement()->setChecked(true);
    other.matrix()->selectRow(2);
    other.ghosting()->setChecked(true);
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "Off");
    EXPECT_TEXT(other.model().improvePrintQualityTicket(), "ReducePaperCurl");
    EXPECT_TEXT(other.model().reduceGhostingTicket(), "Off");
}

TEST(OtherController, WorksOnWithoutItsViewAndLoadsANewOne)
{
    Other other;
    other.show();
    delete other.controller.mainView();
    other.controller.initializeControls();
    other.controller.localizeLabels();
    other.controller.updateControls();
    other.controller.updateControl(q("PrintDensity"));
    other.controller.improvementSettingAction(nullptr);
    other.controller.improvePrintQualityAction(nullptr);
    EXPECT_TEXT(other.model().improvementSettingsTicket(), "Off");
    other.show();
    user::click(other.density());
    EXPECT_TEXT(other.model().printDensityTicket(), "On");
}

TEST(OtherController, HasNoViewWithoutItsInterfaceFile)
{
    OpenPpd ppd(p2());
    KorPDEController3 controller(ppd.get(), platform::encoding::utf8, nullptr, nullptr,
                                 Bundle::mainBundle());
    EXPECT_FALSE(controller.mainView());
    controller.updateControls();
}
