#include "platform/controls/radio_matrix.h"
#include "platform/notification_center.h"
#include "tests/plugin/life.h"
#include "tests/plugin/panel_test_access.h"
#include "tests/support/console_capture.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/user.h"

#include <QCheckBox>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace test;

namespace {

/// A second panel made directly, with a host of its own.
struct Panel
{
    explicit Panel(const PpdText &text = p2()) : ppd(text), host(ppd.get())
    {
        panel = MainPDE3::initWithCallback(&host, pluginBundle());
        EXPECT_TRUE(panel->panelView());
        EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
        panel->willShow();
    }

    [[nodiscard]] QStringList save()
    {
        host.offers.clear();
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
        return lines(host.offers);
    }
    [[nodiscard]] PDEModel2 &model() const
    {
        return *PanelTestAccess::controller(*panel).pdeModel();
    }
    [[nodiscard]] QCheckBox *box(const char *outlet) const
    {
        return panel->panelView()->findChild<QCheckBox *>(q(outlet));
    }
    [[nodiscard]] RadioMatrix *matrix() const
    {
        return panel->panelView()->findChild<RadioMatrix *>(q("ibImprovePrintQuality"));
    }

    DriverRoot root;
    OpenPpd ppd;
    FakeHost host;
    std::shared_ptr<MainPDE3> panel;
};

} // namespace

TEST(OtherPanel, OtherPanel_01_TakesItsTitleFromTheLanguage)
{
    const Panel panel;
    const std::pair<const char *, const char *> titles[] = {
        {"it", "Apri"},     {"pt-PT", "Outro"},  {"zh_CN", "其他"},      {"ja", "その他"},
        {"fr-CA", "Autre"}, {"es-419", "Otro"},  {"zh-Hans-CN", "其他"}, {"en", "Other"},
        {"eu-ES", "Other"}, {"zh-Hant", "Other"}};
    for (const auto &[language, title] : titles) {
        platform::setPreferredLanguages({q(language)});
        EXPECT_TEXT(panel.panel->panelName(), title) << language;
    }
    platform::setPreferredLanguages({q("de")});
    EXPECT_SAME(panel.panel->panelName(), pluginBundle()->localizedString(q("Other")));
    EXPECT_NE(panel.panel->panelName(), q("Other")) << "the string table's own German";
}

TEST(OtherPanel, HasNoTitleOfItsOwnWithoutABundle)
{
    const OpenPpd ppd(p2());
    FakeHost host(ppd.get());
    const auto panel = MainPDE3::initWithCallback(&host, nullptr);
    ASSERT_TRUE(panel);
    EXPECT_NULL(panel->panelName());
    EXPECT_FALSE(panel->panelView());
    panel->willShow();
}

TEST(OtherPanel, OtherPanel_02_SavesThreePairs)
{
    Panel panel;
    EXPECT_EQ(panel.save(), (QStringList{q("ImprovementSettings=Off"), q("ReduceGhosting=Off"),
                                         q("PrintDensity=Off")}));
}

TEST(OtherPanel, OtherPanel_03_SavesTheImprovementWhereItIsOn)
{
    Panel panel;
    user::click(panel.box("ibImprovementSettings"));
    EXPECT_TRUE(panel.host.offers.empty());
    EXPECT_EQ(panel.save(),
              (QStringList{q("ImprovementSettings=On"), q("ReduceGhosting=Off"),
                           q("PrintDensity=Off"), q("ImprovePrintQuality=ReducePaperCurl")}));
}

TEST(OtherPanel, SavesTheImprovementForTheExactWordOnOnly)
{
    Panel panel;
    for (const QString &word : {q("on"), q("ON"), q("On "), q(""), QString(), q("True")}) {
        panel.model().setImprovementSettingsTicket(word);
        EXPECT_EQ(panel.save().size(), 3) << testing::PrintToString(word);
    }
}

TEST(OtherPanel, OtherPanel_04_SavesNullChoicesForAPrinterWithoutTheOptions)
{
    Panel panel(p1());
    EXPECT_EQ(panel.save(), (QStringList{q("ImprovementSettings=∅"), q("ReduceGhosting=∅"),
                                         q("PrintDensity=∅")}));
}

TEST(OtherPanel, OtherPanel_05_TicksTheBoxForAChangeElsewhereAndLeavesTheMatrix)
{
    Panel panel;
    panel.panel->PPDOptionKeyValueDidChange(q("ImprovementSettings"), q("On"));
    EXPECT_TRUE(panel.box("ibImprovementSettings")->isChecked());
    EXPECT_FALSE(panel.matrix()->isEnabled());
    EXPECT_TEXT(panel.model().improvementSettings(), "On");
    EXPECT_TEXT(panel.model().improvementSettingsTicket(), "On");
    EXPECT_TRUE(panel.host.offers.empty());
}

TEST(OtherPanel, FollowsEachOfItsOptionsWhenTheyChangeElsewhere)
{
    Panel panel;
    panel.panel->PPDOptionKeyValueDidChange(q("ReduceGhosting"), q("On"));
    EXPECT_TRUE(panel.box("ibReduceGhosting")->isChecked());
    EXPECT_TEXT(panel.model().reduceGhostingTicket(), "On");
    panel.panel->PPDOptionKeyValueDidChange(q("PrintDensity"), q("Nope"));
    EXPECT_FALSE(panel.box("ibImprovePrintDensity")->isChecked());
    EXPECT_TEXT(panel.model().printDensityTicket(), "Nope");
    EXPECT_NULL(panel.model().printDensity());
    panel.panel->PPDOptionKeyValueDidChange(q("ImprovePrintQuality"), q("ImproveTonerFixing"));
    EXPECT_TEXT(panel.model().improvePrintQualityTicket(), "ImproveTonerFixing");
    EXPECT_TEXT(panel.model().improvePrintQuality(), "Better Fixing");
    EXPECT_EQ(panel.matrix()->selectedRow(), 0) << "the matrix follows the boxes only";
}

TEST(OtherPanel, OtherPanel_06_HearsNoNotificationAndTellsOfAResizeWhenAsked)
{
    const Panel panel;
    platform::NotificationCenter::defaultCenter().post(
        PDEControllerDisclosureButtonChangedNotification, nullptr);
    EXPECT_EQ(panel.host.resizes, 0);
    panel.panel->panelViewIsResized();
    EXPECT_EQ(panel.host.resizes, 1);
}

TEST(OtherPanel, OtherPanel_07_IgnoresOptionsOfTheFirstPanel)
{
    Panel panel;
    const QJsonObject before = panel.panel->diagnostics()->model();
    const QStringList controls = controlStates(panel.panel->panelView());
    for (const char *option : {"MediaType", "improvementsettings", "", "DupDryTime"})
        panel.panel->PPDOptionKeyValueDidChange(q(option), q("Plain"));
    panel.panel->PPDOptionKeyValueDidChange(QString(), QString());
    EXPECT_EQ(panel.panel->diagnostics()->model(), before);
    EXPECT_EQ(controlStates(panel.panel->panelView()), controls);
    EXPECT_TRUE(panel.host.offers.empty());
}

TEST(OtherPanel, TellsItsModelAndWritesNothingMeanwhile)
{
    const Panel panel;
    const ConsoleCapture console;
    const QJsonObject expected = QJsonDocument::fromJson(R"({
            "reduceGhosting": {"option": true, "value": "Off", "ticket": "Off"},
            "printDensity": {"option": true, "value": "Off", "ticket": "Off"},
            "improvementSettings": {"option": true, "value": "Off", "ticket": "Off"},
            "improvePrintQuality":
                {"option": true, "value": "Reduce Curl", "ticket": "ReducePaperCurl"}})")
                                     .object();
    EXPECT_EQ(panel.panel->diagnostics()->model(), expected)
        << QJsonDocument(panel.panel->diagnostics()->model()).toJson().toStdString();
    EXPECT_EQ(panel.panel->diagnostics()->frames(), QJsonObject());
    EXPECT_EQ(console.lines(), QStringList());
    (void)panel.model().reduceGhostingTicket();
    EXPECT_EQ(console.lines().size(), 1) << "the console is back";
}

TEST(OtherPanel, TellsNullForWhatAPrinterLacks)
{
    const Panel panel(p1());
    const QJsonObject density = panel.panel->diagnostics()->model()[q("printDensity")].toObject();
    EXPECT_EQ(density, (QJsonObject{{q("option"), false},
                                    {q("value"), QJsonValue::Null},
                                    {q("ticket"), QJsonValue::Null}}));
}

TEST(OtherPanel, ForwardsTheDialogsQuestions)
{
    Panel panel;
    EXPECT_TRUE(panel.panel->shouldShowHelp());
    EXPECT_TRUE(panel.panel->shouldHide());
    EXPECT_EQ(panel.panel->supportedPPDOptionKeys().size(), 4);
    EXPECT_EQ(panel.panel->summaryInfo().size(), 3U);
    EXPECT_SAME(panel.panel->panelKind(), q("com.Others.print.pde.BramoPDEKind"));
}

TEST(OtherPanel, NeitherRestoresNorSavesOnOlderHosts)
{
    DebugLog log;
    log.switchOn(DebugLog::kInfo);
    Panel panel;
    PanelTestAccess::makeOlderThan1050(*panel.panel);
    panel.ppd.mark("PrintDensity", "On");
    EXPECT_TRUE(panel.panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TEXT(panel.model().printDensityTicket(), "Off");
    EXPECT_EQ(panel.save(), QStringList());
    panel.panel->willShow();
    EXPECT_TRUE(panel.panel->shouldHide());
    PanelTestAccess::ppd(*panel.panel) = nullptr;
    panel.host.session.ppd = panel.ppd.get();
    panel.panel->ppdDOnTiger();
    EXPECT_EQ(PanelTestAccess::ppd(*panel.panel), panel.ppd.get());
    for (const char *operation :
         {"setPrintSettingsToUI", "setprintSettingsToTicket", "ppdDOnTiger"})
        EXPECT_EQ(log.traces().count(q("{ -[MainPDE3 ") + q(operation) + q("]")), 1) << operation;
}
