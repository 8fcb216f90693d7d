#include "platform/controls/controls.h"
#include "platform/controls/pop_up_button.h"
#include "platform/help_viewer.h"
#include "platform/notification_center.h"
#include "tests/plugin/life.h"
#include "tests/plugin/panel_test_access.h"
#include "tests/quality/quality_test_access.h"
#include "tests/support/console_capture.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/user.h"

#include <QJsonObject>

#include <gtest/gtest.h>

using namespace test;

namespace {

const QStringList kAllPairs{q("InkToUse=Automatic"),
                            q("MediaType=Plain"),
                            q("PrintQuality=Automatic"),
                            q("ColorOutput=Color"),
                            q("ColorPreferences=Automatic"),
                            q("PaperSource=Tray1"),
                            q("ColorOutput=Color"),
                            q("Mirror=Off"),
                            q("Sharpen=Off"),
                            q("InkToUse=Automatic"),
                            q("ICCTestChartProcess=Off"),
                            q("TonerSave=∅"),
                            q("HalftoneLevel=∅"),
                            q("DupDryTime=Automatic")};

QString mirrorSetting(const Life &life)
{
    return life.host.settings.value(q("mirror")).toString();
}

bool isMirrorSetByIronOn(const Life &life)
{
    return QualityTestAccess::isMirrorSetByIronOn(PanelTestAccess::controller(life.panel()));
}

/// Model and controls at one moment.
struct Snapshot
{
    explicit Snapshot(const Life &life)
        : model(life.panel().diagnostics()->model()),
          controls(controlStates(life.panel().panelView()))
    {
    }
    QJsonObject model;
    QStringList controls;
};

int choiceIndex(const QComboBox *popUp, const char *keyword)
{
    return popUp->findData(q(keyword));
}

void postDisclosure(QObject *sender)
{
    platform::NotificationCenter::defaultCenter().post(
        q("KorPDEController Disclosure control CHANGED"), sender);
}

} // namespace

TEST(QualityPanel, QualityPanel_01_TakesAFixedTitleFromTheLanguage)
{
    const Life life({}, Life::Until::Created);
    const std::pair<const char *, const char *> titles[] = {
        {"ja-JP", "印刷品質/用紙の種類"}, {"fr-CA", "Qualité et Papiers"},
        {"es-419", "Calidad y material"}, {"zh-Hans-CN", "质量与介质"},
        {"zh_CN", "质量与介质"},          {"it", "Qualità e Tipo di carta"},
        {"pt-BR", "Papel e Qualidade"},   {"de-AT", "Qualität/Medien"}};
    for (const auto &[language, title] : titles) {
        platform::setPreferredLanguages({q(language), q("en")});
        EXPECT_TEXT(life.panel().panelName(), title) << language;
    }
}

TEST(QualityPanel, QualityPanel_02_FallsBackToTheStringTable)
{
    const Life life({}, Life::Until::Created);
    for (const QStringList &languages :
         {QStringList{q("en")}, QStringList{q("zh-Hant-TW")}, QStringList{q("eu-ES")},
          QStringList{}, QStringList{q("en"), q("ja")}}) {
        platform::setPreferredLanguages(languages);
        EXPECT_TEXT(life.panel().panelName(), "Quality & Media");
    }
    platform::setPreferredLanguages({q("zh-CN")});
    const QString chinese = life.panel().panelName();
    EXPECT_SAME(chinese, pluginBundle()->localizedString(q("Quality & Media")));
    EXPECT_NE(chinese, q("Quality & Media")) << "the string table's own Chinese";
}

TEST(QualityPanel, TakesTheFirstTitleThatMatches)
{
    const Life life({}, Life::Until::Created);
    platform::setPreferredLanguages({q("de-fr")});
    EXPECT_TEXT(life.panel().panelName(), "Qualité et Papiers");
    platform::setPreferredLanguages({q("DE")});
    EXPECT_NE(life.panel().panelName(), q("Qualität/Medien")) << "case counts";
}

TEST(QualityPanel, QualityPanel_03_OffersNothingBeforeAPersonDoes)
{
    const Life life;
    EXPECT_EQ(lines(life.host.offers), QStringList());
    EXPECT_TRUE(life.host.settings.all().empty());
}

TEST(QualityPanel, QualityPanel_04_SavesFourteenPairsInOrder)
{
    Life life;
    EXPECT_EQ(lines(life.save()), kAllPairs);
}

TEST(QualityPanel, QualityPanel_05_LeavesOutPaperSourceAndDryTimeWhereTheyAreNot)
{
    Life life({.ppd = p1().without("PaperSource"), .productYear = 2010});
    QStringList pairs = kAllPairs;
    pairs.removeAll(q("PaperSource=Tray1"));
    pairs.removeAll(q("DupDryTime=Automatic"));
    EXPECT_EQ(pairs.size(), 12);
    EXPECT_EQ(lines(life.save()), pairs);
}

TEST(QualityPanel, SavesDryTimeBefore2010AndWhereThePrinterHasItOnly)
{
    const auto savesDryTime = [](const PpdText &ppd, const QVariant &year) {
        Life life({.ppd = ppd, .productYear = year});
        const QStringList pairs = lines(life.save());
        return pairs.last().startsWith(q("DupDryTime="));
    };
    EXPECT_TRUE(savesDryTime(p1(), 2009));
    EXPECT_TRUE(savesDryTime(p1(), 0));
    EXPECT_TRUE(savesDryTime(p1c(), 2009));
    EXPECT_FALSE(savesDryTime(p1(), 2010));
    EXPECT_FALSE(savesDryTime(p1(), {}));
    EXPECT_FALSE(savesDryTime(p1().without("DupDryTime"), 2009));
}

TEST(QualityPanel, QualityPanel_06_PassesTwoLocalisedWordsAhead)
{
    Life life({.languages = {q("de")}});
    life.host.answer = [&life](const Offer &offer) {
        ppd_option_t *option = ppdFindOption(life.ppd.get(), offer.first.toUtf8().constData());
        return option && ppdFindChoice(option, offer.second.toUtf8().constData());
    };
    const Offers offers = life.save();
    QStringList pairs = kAllPairs;
    pairs[0] = q("InkToUse=Automatisch");
    pairs[3] = q("ColorOutput=Farbe");
    EXPECT_EQ(lines(offers), pairs);
    EXPECT_FALSE(life.host.answer(offers[0]));
    EXPECT_FALSE(life.host.answer(offers[3]));
    EXPECT_TRUE(life.host.answer(offers[6]));
    EXPECT_TRUE(life.host.answer(offers[9]));
}

TEST(QualityPanel, QualityPanel_07_OffersEveryPairWhateverTheAnswers)
{
    Life life;
    life.host.refuseAll();
    const QJsonObject before = life.panel().diagnostics()->model();
    EXPECT_EQ(lines(life.save()), kAllPairs);
    EXPECT_EQ(life.panel().diagnostics()->model(), before);
}

TEST(QualityPanel, QualityPanel_08_WritesTheLocaleBeforeTheFirstPair)
{
    Life life({.locale = q("de_DE")});
    const ConsoleCapture console;
    QStringList atFirstPair;
    life.host.answer = [&](const Offer &) {
        if (life.host.offers.size() == 1)
            atFirstPair = console.lines();
        return true;
    };
    (void)life.save();
    EXPECT_EQ(atFirstPair, (QStringList{q("NSLocaleLanguageCode is de"),
                                        q("NSLocaleLanguageIdentifier is de_DE")}));
}

TEST(QualityPanel, QualityPanel_09_ShowsAnIronOnPaperChosenElsewhereWithoutMirroring)
{
    Life life;
    life.externalChange("MediaType", "IronOn");
    EXPECT_TEXT(life.model().paperTypeTicket(), "IronOn");
    EXPECT_TEXT(life.model().paperType(), "Iron-On Transfer");
    EXPECT_SAME(controls::titleOfSelectedItem(life.control<QComboBox>("ibPaperType")),
                q("Iron-On Transfer"));
    EXPECT_FALSE(life.host.settings.value(q("mirror")).isValid());
    EXPECT_FALSE(isMirrorSetByIronOn(life));
    EXPECT_EQ(lines(life.host.offers), QStringList());
    life.externalChange("MediaType", "Plain");
    EXPECT_EQ(lines(life.host.offers), QStringList()) << "nothing was switched on by iron-on paper";
}

TEST(QualityPanel, QualityPanel_10_SwitchesMirrorOffAgainWhenThePaperChangesElsewhere)
{
    Life life;
    auto *paperType = life.control<QComboBox>("ibPaperType");
    user::choose(paperType, choiceIndex(paperType, "IronOn"));
    ASSERT_EQ(mirrorSetting(life), q("true"));
    ASSERT_TRUE(isMirrorSetByIronOn(life));
    life.host.offers.clear();
    life.externalChange("MediaType", "Plain");
    EXPECT_FALSE(life.host.settings.value(q("mirror")).isValid());
    EXPECT_FALSE(isMirrorSetByIronOn(life));
    EXPECT_EQ(lines(life.host.offers), QStringList{q("Mirror=Off")});
    life.externalChange("MediaType", "Plain");
    EXPECT_EQ(lines(life.host.offers), QStringList{q("Mirror=Off")}) << "the flag is cleared";
}

TEST(QualityPanel, QualityPanel_11_KeepsTheColorPreferencesTicketForAChangeElsewhere)
{
    Life life;
    life.externalChange("ColorPreferences", "Vivid");
    EXPECT_TEXT(life.model().colorPreferences(), "Vivid Color");
    EXPECT_TEXT(life.model().colorPreferencesTicket(), "Automatic");
    EXPECT_SAME(controls::titleOfSelectedItem(life.control<QComboBox>("ibColorPreferences")),
                q("Vivid Color"));
}

TEST(QualityPanel, QualityPanel_12_ShowsNoColorPreferencesForAnUnknownChoice)
{
    Life life;
    life.externalChange("ColorPreferences", "Nope");
    EXPECT_NULL(life.model().colorPreferences());
    EXPECT_TEXT(life.model().colorPreferencesTicket(), "Automatic");
    EXPECT_EQ(controls::indexOfSelectedItem(life.control<QComboBox>("ibColorPreferences")), -1);
}

TEST(QualityPanel, QualityPanel_13_KeepsAnUnknownChoiceAsTicketAndShowsNothing)
{
    Life life;
    life.externalChange("MediaType", "Nope");
    EXPECT_TEXT(life.model().paperTypeTicket(), "Nope");
    EXPECT_NULL(life.model().paperType());
    EXPECT_EQ(controls::indexOfSelectedItem(life.control<QComboBox>("ibPaperType")), -1);
}

TEST(QualityPanel, QualityPanel_14_IgnoresOptionsThatItDoesNotFollow)
{
    Life life({.ppd = p3()});
    const Snapshot before(life);
    life.externalChange("mediatype", "IronOn");
    life.externalChange("Threshold", "5");
    life.externalChange("Tray2Option", "False");
    life.externalChange("ReduceGhosting", "On");
    life.externalChange("", "On");
    life.panel().PPDOptionKeyValueDidChange(QString(), QString());
    const Snapshot after(life);
    EXPECT_EQ(after.model, before.model);
    EXPECT_EQ(after.controls, before.controls);
    EXPECT_EQ(lines(life.host.offers), QStringList());
}

TEST(QualityPanel, QualityPanel_15_FollowsDryTimeBefore2010Only)
{
    Life before2010({.productYear = 2009});
    const QStringList controls = controlStates(before2010.panel().panelView());
    before2010.externalChange("DupDryTime", "Long");
    EXPECT_TEXT(before2010.model().dryTimeTicket(), "Long");
    EXPECT_TEXT(before2010.model().dryTime(), "Long Time");
    EXPECT_EQ(controlStates(before2010.panel().panelView()), controls);

    Life from2010({.productYear = 2010});
    const Snapshot snapshot(from2010);
    from2010.externalChange("DupDryTime", "Long");
    EXPECT_EQ(Snapshot(from2010).model, snapshot.model);
    EXPECT_EQ(Snapshot(from2010).controls, snapshot.controls);
}

TEST(QualityPanel, QualityPanel_16_FollowsDryTimeAsACheckBox)
{
    Life life({.ppd = p1c()});
    life.externalChange("DupDryTime", "True");
    EXPECT_TEXT(life.model().dryTimeTicket(), "True");
    EXPECT_TEXT(life.model().dryTime(), "Longer drying");
}

TEST(QualityPanel, SetsNoDryTimeForAPrinterWithoutIt)
{
    Life life({.ppd = p1().without("DupDryTime")});
    const QJsonObject before = life.panel().diagnostics()->model();
    life.externalChange("DupDryTime", "Long");
    EXPECT_EQ(life.panel().diagnostics()->model(), before);
}

TEST(QualityPanel, FollowsEachOfItsOptionsWhenTheyChangeElsewhere)
{
    struct Change
    {
        const char *option;
        const char *choice;
        const char *text;
        SettingSlots::StringGetter value;
        SettingSlots::StringGetter ticket;
    };
    const Change changes[] = {
        {"MediaType", "Greeting", "Greeting Card", &PDEModel2::paperType,
         &PDEModel2::paperTypeTicket},
        {"PrintQuality", "Best", "Finest", &PDEModel2::printQuality,
         &PDEModel2::printQualityTicket},
        {"PaperSource", "Tray2", "Lower Tray", &PDEModel2::paperSource,
         &PDEModel2::paperSourceTicket},
        {"ColorOutput", "Black", "Black Only", &PDEModel2::colorOutput,
         &PDEModel2::colorOutputTicket},
        {"Mirror", "On", "On", &PDEModel2::mirror, &PDEModel2::mirrorTicket},
        {"ICCTestChartProcess", "On", "On", &PDEModel2::ICCTestChart,
         &PDEModel2::ICCTestChartTicket},
        {"TonerSave", "On", "On", &PDEModel2::tonerSave, &PDEModel2::tonerSaveTicket},
        {"HalftoneLevel", "Smooth", "Smooth", &PDEModel2::halftone, &PDEModel2::halftoneTicket},
        {"Sharpen", "High", "High", &PDEModel2::imageSharpening, &PDEModel2::imageSharpeningTicket},
        {"InkToUse", "ColorOnly", "Color Only", &PDEModel2::inkToUse, &PDEModel2::inkToUseTicket},
    };
    for (const Change &change : changes) {
        Life life({.ppd = p3()});
        life.externalChange(change.option, change.choice);
        EXPECT_TEXT((life.model().*change.ticket)(), change.choice) << change.option;
        EXPECT_TEXT((life.model().*change.value)(), change.text) << change.option;
    }
}

TEST(QualityPanel, QualityPanel_17_TellsEachDialogOfADisclosure)
{
    const Life first;
    const Life second;
    postDisclosure(&second.panel());
    EXPECT_EQ(first.host.resizes, 1);
    EXPECT_EQ(second.host.resizes, 1);
    postDisclosure(nullptr);
    EXPECT_EQ(first.host.resizes, 2);
}

TEST(QualityPanel, QualityPanel_18_HearsNothingAfterItsEnd)
{
    auto &center = platform::NotificationCenter::defaultCenter();
    const int observers = center.observerCount();
    const DriverRoot root;
    const OpenPpd ppd(p1());
    FakeHost host(ppd.get());
    auto panel = MainPDE2::initWithCallback(&host, pluginBundle());
    ASSERT_TRUE(panel);
    EXPECT_GT(center.observerCount(), observers);
    panel.reset();
    EXPECT_EQ(center.observerCount(), observers);
    postDisclosure(nullptr);
    center.post(q("ConflictController calling a UI CHANGE"), nullptr);
    EXPECT_EQ(host.resizes, 0);
}

TEST(QualityPanel, QualityPanel_19_SetsUpLabelsAndUpdatesInOrder)
{
    DebugLog log;
    log.switchOn(DebugLog::kInfo);
    const Life life({}, Life::Until::Created);
    ASSERT_TRUE(life.panel().panelView());
    const qsizetype before = log.traces().size();
    life.panel().willShow();
    QStringList steps;
    int depth = 0;
    for (const QString &trace : log.traces().mid(before)) {
        depth -= trace.startsWith(u'}') ? 1 : 0;
        if (depth <= 1)
            steps.append(trace);
        depth += trace.startsWith(u'{') ? 1 : 0;
    }
    EXPECT_EQ(
        steps,
        (QStringList{q("{ -[MainPDE2 willShow]"), q("{ -[KorPDEController2 initializeControls]"),
                     q("} -[KorPDEController2 initializeControls]"),
                     q("{ -[KorPDEController2 localizeLabels]"),
                     q("} -[KorPDEController2 localizeLabels]"),
                     q("{ -[KorPDEController2 updateControls]"),
                     q("} -[KorPDEController2 updateControls]"), q("} -[MainPDE2 willShow]")}));
}

TEST(QualityPanel, QualityPanel_20_GivesTheControllerTheHostItself)
{
    Life life;
    user::choose(life.control<QComboBox>("ibPrintQuality"), 1);
    EXPECT_EQ(lines(life.host.offers), QStringList{q("PrintQuality=Draft")});
}

TEST(QualityPanel, QualityPanel_21_NeitherRestoresNorSavesOnOlderHosts)
{
    DebugLog log;
    log.switchOn(DebugLog::kInfo);
    Life life;
    const QJsonObject before = life.panel().diagnostics()->model();
    PanelTestAccess::makeOlderThan1050(life.panel());
    life.ppd.mark("PrintQuality", "Best");
    EXPECT_TRUE(life.panel().restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(life.panel().saveValuesAndReturnError(nullptr));
    life.panel().willShow();
    EXPECT_TRUE(life.panel().shouldHide());
    EXPECT_EQ(lines(life.host.offers), QStringList());
    EXPECT_EQ(life.panel().diagnostics()->model(), before);
    PanelTestAccess::ppd(life.panel()) = nullptr;
    life.host.session.ppd = nullptr;
    life.panel().ppdDOnTiger();
    EXPECT_EQ(PanelTestAccess::ppd(life.panel()), nullptr);
    life.host.session.ppd = life.ppd.get();
    life.panel().ppdDOnTiger();
    EXPECT_EQ(PanelTestAccess::ppd(life.panel()), life.ppd.get());
    for (const char *operation : {"setPrintSettingsToUI", "setprintSettingsToTicket"})
        EXPECT_EQ(log.traces().count(q("{ -[MainPDE2 ") + q(operation) + q("]")), 1) << operation;
}

TEST(QualityPanel, QualityPanel_22_BuildsItsViewOnce)
{
    const Life life;
    QWidget *view = life.panel().panelView();
    const QWidgetList controls = view->findChildren<QWidget *>();
    EXPECT_EQ(life.panel().panelView(), view);
    EXPECT_EQ(view->findChildren<QWidget *>(), controls);
    EXPECT_GT(controls.size(), 20);
}

TEST(QualityPanel, QualityPanel_23_SavesThePrintQualityForRestoredColorPreferences)
{
    Life life({.marks = {{"PrintQuality", "Draft"}, {"ColorPreferences", "Vivid"}}});
    EXPECT_SAME(controls::titleOfSelectedItem(life.control<QComboBox>("ibColorPreferences")),
                q("Vivid Color"));
    EXPECT_EQ(lines(life.save()).at(4), q("ColorPreferences=Draft"));
}

TEST(QualityPanel, QualityPanel_24_TakesAnUnknownYearForALateOne)
{
    Life life({.productYear = {}});
    const Snapshot before(life);
    life.externalChange("DupDryTime", "Long");
    EXPECT_EQ(Snapshot(life).model, before.model);
    EXPECT_EQ(Snapshot(life).controls, before.controls);
}

TEST(QualityPanel, RegistersTheHelpBookThatItFinds)
{
    Life life({}, Life::Until::Created);
    platform::HelpRequest opened;
    const auto former = platform::setHelpOpener(
        [&opened](const platform::HelpRequest &request) { opened = request; });
    EXPECT_TRUE(life.panel().shouldShowHelp()) << "there is no book at the help path";

    const QString book = q("/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle");
    life.root.writeList(book + q("/Contents/Info.plist"),
                        QVariantMap{{q("CFBundleHelpBookName"), q("Korvane Help")}});
    const auto again = MainPDE2::initWithCallback(&life.host, pluginBundle());
    EXPECT_FALSE(again->shouldShowHelp());
    EXPECT_TEXT(opened.bookName, "Korvane Help");
    EXPECT_SAME(opened.bookPath, life.root.realPath(book));
    platform::setHelpOpener(former);
}

TEST(QualityPanel, RegistersNoHelpBookOutsideTheDriversFolder)
{
    Life life({.ppd = p1().withAttribute("Manufacturer", "../../elsewhere")}, Life::Until::Created);
    life.root.makeDirectory(q("/Library/Printers"));
    life.root.writeList(q("/elsewhere/PDEs/QualityAndMedia.bundle/Contents/Info.plist"),
                        QVariantMap{{q("CFBundleHelpBookName"), q("Foreign Help")}});
    platform::HelpRequest opened;
    const auto former = platform::setHelpOpener(
        [&opened](const platform::HelpRequest &request) { opened = request; });
    const auto panel = MainPDE2::initWithCallback(&life.host, pluginBundle());
    EXPECT_FALSE(panel->shouldShowHelp()) << "the folder is there";
    EXPECT_TEXT(opened.bookName, "Foreign Help");
    EXPECT_NULL(opened.bookPath);
    platform::setHelpOpener(former);
}

TEST(QualityPanel, TellsItsModelAndFrames)
{
    const Life life;
    const QJsonObject model = life.panel().diagnostics()->model();
    EXPECT_EQ(model.size(), 13);
    EXPECT_EQ(model[q("paperType")].toObject(),
              (QJsonObject{
                  {q("option"), true}, {q("value"), q("Plain Paper")}, {q("ticket"), q("Plain")}}));
    EXPECT_EQ(model[q("tonerSave")].toObject(), (QJsonObject{{q("option"), false},
                                                             {q("value"), QJsonValue::Null},
                                                             {q("ticket"), QJsonValue::Null}}));
    EXPECT_EQ(model[q("dryTime")].toObject(), (QJsonObject{{q("popUpOption"), true},
                                                           {q("checkBoxOption"), false},
                                                           {q("value"), q("Auto Time")},
                                                           {q("ticket"), q("Automatic")}}));
    const QJsonObject frames = life.panel().diagnostics()->frames();
    EXPECT_EQ(frames.keys(), (QStringList{q("ibAdvancedView"), q("ibHeaderView"), q("ibPDEView")}));
}
