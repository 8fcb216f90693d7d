#include "tests/quality/panel.h"

#include "quality/settings_table.h"
#include "tests/support/debug_log_fixture.h"

#include <gtest/gtest.h>

#include <set>

using namespace test;

namespace {

using C = KorPDEController2;

/// Every operation of the controller, by the selector under which it traces.
constexpr const char *kOperations[] = {
    "initWithPPD:encoding:printSetting:andPageFormat:",
    "dealloc",
    "initializeControls",
    "supportedOptions",
    "setSupportedPPDOptionsToPDEModel:",
    "setDefaultsToPDEModel",
    "processMarkedPPDChoices",
    "findMarkedChoicesinPPD",
    "updatePDEModelwithMarkedChoices:",
    "setPDEModelItemToDefault:",
    "changePPDOptionKeyValue:ppdChoice:",
    "selectedItemFromIndex:withKey:andFlag:",
    "customConstraintOSControl",
    "setPrintSession:",
    "setPDEPluginCallbackObject:",
    "pdeModel",
    "setPDEModel:",
    "isFinishedInited",
    "isMirrorManuallySet",
    "setIsMirrorManuallySet:",
    "isMirrorSetDuringPreset",
    "setIsMirrorSetDuringPreset:",
    "osVersionOnUse",
    "setOSVersion:",
    "productYearOnUse",
    "setProductYear:",
    "printQualityAction:",
    "paperTypeAction:",
    "paperSourceAction:",
    "colorOutputAction:",
    "colorPreferencesAction:",
    "inkToUseAction:",
    "mirrorAction:",
    "sharpenAction:",
    "dryTimePopUpAction:",
    "dryTimeCheckBoxAction:",
    "ICCTestChartAction:",
    "tonerSaveAction:",
    "halftoneAction:",
    "thresholdStepperAction:",
    "disclosureAction:",
    "controlTextDidBeginEditing:",
    "controlTextDidChange:",
    "updateControls",
    "updateControl:",
    "updateMirrorValue",
    "displayAdvancedOptions:",
    "mainView",
    "localizeLabels",
    "infoForSummaryPanel",
    "shouldShowDefaultHelp:",
};

/// Every operation but those that a life runs through by itself.
void callEverything(C &controller)
{
    (void)controller.supportedOptions();
    controller.setPDEModelItemToDefault(q("Nope"));
    (void)controller.selectedItemFromIndex(0, "PrintQuality", ChoiceString::Text);
    controller.customConstraintOSControl();
    (void)controller.isFinishedInited();
    controller.setIsMirrorManuallySet(controller.isMirrorManuallySet());
    controller.setIsMirrorSetDuringPreset(controller.isMirrorSetDuringPreset());
    controller.setOSVersion(controller.osVersionOnUse());
    controller.setProductYear(controller.productYearOnUse());
    for (const auto action :
         {&C::printQualityAction, &C::paperTypeAction, &C::paperSourceAction, &C::colorOutputAction,
          &C::colorPreferencesAction, &C::inkToUseAction, &C::mirrorAction, &C::sharpenAction,
          &C::dryTimePopUpAction, &C::dryTimeCheckBoxAction, &C::ICCTestChartAction,
          &C::tonerSaveAction, &C::halftoneAction, &C::thresholdStepperAction,
          &C::disclosureAction})
        (controller.*action)(nullptr);
    controller.controlTextDidBeginEditing(nullptr);
    controller.controlTextDidChange(nullptr);
    controller.updateControl(q("Mirror"));
    controller.updateMirrorValue();
    (void)controller.infoForSummaryPanel();
    (void)controller.shouldShowDefaultHelp(q("/no/such/path"));
    controller.setPDEModel(std::make_shared<PDEModel2>(*controller.pdeModel()));
}

QStringList tracesOfEverything()
{
    DebugLog log;
    log.switchOn();
    {
        QualityPanel panel(p3());
        callEverything(panel.life().controller());
    }
    return log.traces();
}

} // namespace

TEST(Trace, EveryOperationOfTheControllerTracesUnderItsSelector)
{
    std::set<QString> expected;
    for (const char *operation : kOperations)
        expected.insert(q("{ -[KorPDEController2 ") + q(operation) + q("]"));
    std::set<QString> seen;
    for (const QString &trace : tracesOfEverything())
        if (trace.startsWith(q("{ -[KorPDEController2 ")))
            seen.insert(trace);
    EXPECT_EQ(seen, expected);
}

TEST(Trace, OperationsNest)
{
    QStringList open;
    for (const QString &trace : tracesOfEverything()) {
        const QString operation = trace.mid(2);
        if (trace.startsWith(u'{')) {
            open.append(operation);
            continue;
        }
        ASSERT_FALSE(open.isEmpty()) << trace.toStdString();
        EXPECT_EQ(open.takeLast(), operation);
    }
    EXPECT_EQ(open, QStringList());
}

TEST(Trace, ShowingThePanelRunsInTheStatedOrder)
{
    QualityPanel panel(p1());
    ASSERT_TRUE(panel.controller().mainView());
    DebugLog log;
    log.switchOn();
    panel.restore();
    panel.show();
    QStringList operations;
    for (const QString &trace : log.traces())
        if (trace.startsWith(q("{ -[KorPDEController2 ")))
            operations.append(trace.mid(q("{ -[KorPDEController2 ").size()).chopped(1));
    EXPECT_EQ(operations,
              QStringList({q("processMarkedPPDChoices"), q("findMarkedChoicesinPPD"),
                           q("updatePDEModelwithMarkedChoices:"), q("updateControls"),
                           q("updateMirrorValue"), q("initializeControls"), q("localizeLabels"),
                           q("updateControls"), q("updateMirrorValue")}));
}
