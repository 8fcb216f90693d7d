#include "tests/quality/panel.h"

#include "platform/controls/controls.h"
#include "platform/help_viewer.h"
#include "platform/values.h"
#include "quality/settings_table.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/plugin_bundle.h"

#include <QAccessible>
#include <QDir>
#include <QJsonArray>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Collects what the panels ask the help viewer for.
class HelpRequests
{
public:
    HelpRequests()
        : former_(platform::setHelpOpener(
              [this](const platform::HelpRequest &request) { books.append(request.bookName); }))
    {
    }
    ~HelpRequests() { platform::setHelpOpener(former_); }

    QStringList books;

private:
    platform::HelpOpener former_;
};

QStringList lines(const SummaryInfo &info)
{
    QStringList lines;
    for (const auto &[title, text] : info)
        lines.append(title + u'=' + text);
    return lines;
}

bool areHidden(std::initializer_list<const QWidget *> widgets)
{
    return std::all_of(widgets.begin(), widgets.end(),
                       [](const QWidget *widget) { return widget->isHidden(); });
}

bool areShown(std::initializer_list<const QWidget *> widgets)
{
    return std::none_of(widgets.begin(), widgets.end(),
                        [](const QWidget *widget) { return widget->isHidden(); });
}

qsizetype openHandles()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries)
        .size();
}

const QString kHelpPath = QStringLiteral("/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle");

} // namespace

// Labels --------------------------------------------------------------------------------

TEST(Presentation, Presentation_01_NamesTheDisclosureInTheUsersLanguage)
{
    const std::pair<const char *, const char *> cases[] = {
        {"zh-Hans-CN", "高级选项"},
        {"pt-BR", "Opções avançadas"},
        {"de-AT", "Erweiterte Optionen"},
        {"en", "Advanced Options"},
        {"ja-JP", "追加オプション"},
        {"fr", "Options avancées"},
        {"es", "Opciones avanzadas"},
        {"it", "Opzioni avanzate"},
        {"zh_CN", "高级选项"},
        {"x-ja-de", "Erweiterte Optionen"},
    };
    for (const auto &[language, text] : cases) {
        platform::setPreferredLanguages({q(language)});
        QualityPanel panel(p1());
        panel.life();
        EXPECT_TEXT(controls::text(panel.controls().ibDisclosureLabel), text) << language;
    }
}

TEST(Presentation, Presentation_02_WritesTheLocaleAndThePortugueseLineForGerman)
{
    QualityPanel panel(p1());
    panel.life();
    platform::setPreferredLanguages({q("de-AT")});
    platform::setLocaleIdentifier(q("de_AT"));
    panel.console.clear();
    panel.controller().localizeLabels();
    EXPECT_EQ(panel.console.lines(),
              QStringList({q("Current locale: de_AT\n"), q("Inside the loop of the pt locale\n")}));
}

TEST(Presentation, WritesOneLineForEachLanguagePieceThatMatches)
{
    QualityPanel panel(p1());
    panel.life();
    platform::setPreferredLanguages({q("ja fr es zh-Hans zh_CN it pt de")});
    panel.console.clear();
    panel.controller().localizeLabels();
    QStringList expected{q("Current locale: en_US\n")};
    for (const char *language : {"ja", "fr", "es", "zh-Hans", "zh_CN", "it", "pt", "pt"})
        expected.append(q("Inside the loop of the ") + q(language) + q(" locale\n"));
    EXPECT_EQ(panel.console.lines(), expected);
}

TEST(Presentation, WritesNoLocaleWithoutALabel)
{
    QualityPanel panel(p1());
    panel.controller().localizeLabels();
    EXPECT_THAT(panel.console.lines(), IsEmpty());
}

TEST(Presentation, Presentation_03_TakesTitlesFromThePpd)
{
    QualityPanel panel(p1());
    QualityOutlets &outlets = panel.life().controls();
    EXPECT_TEXT(controls::text(outlets.ibPrintQualityLabel), "Print Quality:");
    EXPECT_TEXT(controls::text(outlets.ibPaperTypeLabel), "Paper Type:");
    EXPECT_TEXT(controls::text(outlets.ibColorOutputLabel), "Color Output:");
    EXPECT_TEXT(controls::text(outlets.ibPaperSourceLabel), "Paper Source:");
    EXPECT_TEXT(controls::text(outlets.ibColorPreferencesLabel), "Color Preferences:");
    EXPECT_TEXT(controls::text(outlets.ibInkToUseLabel), "Ink To Use:");
    EXPECT_TEXT(controls::text(outlets.ibSharpenlabel), "Sharpening:");
    EXPECT_TEXT(controls::title(outlets.ibUseICCTestChart), "Test Chart");
    EXPECT_TEXT(controls::title(outlets.ibMIrror), "Mirror Image");
}

TEST(Presentation, TitlesAreLiteral)
{
    PpdText text = p3();
    for (const char *option : {"PrintQuality", "Mirror", "TonerSave"})
        text.option(option).text = "A & B &amp; %1 %s";
    QualityPanel panel(text);
    QualityOutlets &outlets = panel.life().controls();
    EXPECT_TEXT(controls::text(outlets.ibPrintQualityLabel), "A & B &amp; %1 %s:");
    EXPECT_TEXT(controls::title(outlets.ibMIrror), "A & B &amp; %1 %s");
    EXPECT_TEXT(controls::title(outlets.ibTonerSave), "A & B &amp; %1 %s");
}

TEST(Presentation, Presentation_04_ShowsTheFirstOfEachPair)
{
    QualityPanel panel(p3());
    QualityOutlets &c = panel.life().controls();
    EXPECT_TRUE(areShown({c.ibThresholdLabel, c.ibThresholdTextFeild, c.ibThresholdStepper}));
    EXPECT_TRUE(areHidden({c.ibColorPreferencesLabel, c.ibColorPreferences}));
    EXPECT_TRUE(areShown({c.ibHalftoneLabel, c.ibHalftone}));
    EXPECT_TRUE(areHidden({c.ibUseICCTestChart}));
    EXPECT_TRUE(areShown({c.ibTonerSave}));
    EXPECT_TRUE(areHidden({c.ibInkToUseLabel, c.ibInkToUse}));
    EXPECT_EQ(c.ibColorPreferences->count(), 2);
    EXPECT_EQ(c.ibInkToUse->count(), 3);
    EXPECT_TEXT(controls::text(c.ibThresholdLabel), "Threshold:");
    EXPECT_TEXT(controls::text(c.ibHalftoneLabel), "Halftone:");
    EXPECT_TEXT(controls::title(c.ibTonerSave), "Toner Saver");
}

TEST(Presentation, ShowsTheSecondOfEachPairWithoutTheFirst)
{
    QualityPanel panel(p1());
    QualityOutlets &c = panel.life().controls();
    EXPECT_TRUE(areHidden({c.ibThresholdLabel, c.ibThresholdTextFeild, c.ibThresholdStepper,
                           c.ibHalftoneLabel, c.ibHalftone, c.ibTonerSave, c.ibBlackAndWhite}));
    EXPECT_TRUE(areShown({c.ibColorPreferencesLabel, c.ibColorPreferences, c.ibUseICCTestChart,
                          c.ibInkToUseLabel, c.ibInkToUse}));
}

TEST(Presentation, Presentation_05_HidesBothRowsOfAPairThatIsMissing)
{
    PpdText text = p1();
    text.without("ColorPreferences").without("InkToUse").without("ICCTestChartProcess");
    QualityPanel panel(text);
    QualityOutlets &c = panel.life().controls();
    EXPECT_TRUE(areHidden({c.ibThresholdLabel, c.ibThresholdTextFeild, c.ibThresholdStepper,
                           c.ibColorPreferencesLabel, c.ibColorPreferences}));
    EXPECT_TRUE(areHidden({c.ibHalftoneLabel, c.ibHalftone, c.ibUseICCTestChart}));
    EXPECT_TRUE(areHidden({c.ibTonerSave, c.ibInkToUseLabel, c.ibInkToUse}));
}

TEST(Presentation, Presentation_12_HidesARequiredRowThatIsMissing)
{
    struct
    {
        const char *option;
        QPointer<QLabel> QualityOutlets::*label;
        QPointer<PopUpButton> QualityOutlets::*popUp;
    } cases[] = {
        {"PrintQuality", &QualityOutlets::ibPrintQualityLabel, &QualityOutlets::ibPrintQuality},
        {"MediaType", &QualityOutlets::ibPaperTypeLabel, &QualityOutlets::ibPaperType},
        {"ColorOutput", &QualityOutlets::ibColorOutputLabel, &QualityOutlets::ibColorOutput},
    };
    for (const auto &[option, label, popUp] : cases) {
        DebugLog log;
        log.switchOn();
        PpdText text = p1();
        QualityPanel panel(text.without(option));
        QualityOutlets &c = panel.life().controls();
        panel.controller().localizeLabels();
        EXPECT_TRUE(areHidden({c.*label, c.*popUp})) << option;
        EXPECT_EQ(log.errorMessages(),
                  QStringList({q("the printer lacks the option ") + q(option)}));
        EXPECT_EQ(c.ibInkToUse->isEnabled(), option != std::string_view("ColorOutput"));
    }
}

TEST(Presentation, ShowsTheDryTimeControlThatThePrinterHas)
{
    QualityPanel popUp(p1());
    popUp.ppd.mark("DupDryTime", "Long");
    QualityOutlets &first = popUp.life().controls();
    EXPECT_TRUE(areShown({first.ibDryTimeLabel, first.ibDryTimePopUp}));
    EXPECT_TRUE(areHidden({first.ibDryTimeCheckBox}));
    EXPECT_TEXT(controls::text(first.ibDryTimeLabel), "Dry Time:");
    EXPECT_EQ(titles(first.ibDryTimePopUp), QStringList({q("Auto Time"), q("Long Time")}));
    EXPECT_EQ(first.ibDryTimePopUp->currentIndex(), 1);

    QualityPanel box(p1c());
    box.ppd.mark("DupDryTime", "True");
    QualityOutlets &second = box.life().controls();
    EXPECT_TRUE(areHidden({second.ibDryTimeLabel, second.ibDryTimePopUp}));
    EXPECT_TRUE(areShown({second.ibDryTimeCheckBox}));
    EXPECT_TEXT(controls::title(second.ibDryTimeCheckBox), "Dry Time");
    EXPECT_TRUE(second.ibDryTimeCheckBox->isChecked());

    QualityPanel neither(p1(), {.year = 2010});
    QualityOutlets &third = neither.life().controls();
    EXPECT_TRUE(areHidden({third.ibDryTimeLabel, third.ibDryTimePopUp, third.ibDryTimeCheckBox}));
}

TEST(Presentation, EveryControlHasANameAndSaysWhatItDoes)
{
    for (const PpdText &text : {p1(), p3()}) {
        QualityPanel panel(text, {.version = 0x105F});
        panel.life();
        panel.openAdvanced();
        for (QWidget *control : panel.controls().ibPDEView->findChildren<QWidget *>()) {
            if (!control->objectName().startsWith(u"ib") || !control->isVisible() ||
                control->focusPolicy() == Qt::NoFocus)
                continue;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            ASSERT_TRUE(accessible);
            const std::string name = control->objectName().toStdString();
            EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << name;
            EXPECT_FALSE(control->toolTip().isEmpty()) << name;
        }
    }
}

// Summary -------------------------------------------------------------------------------

TEST(Presentation, Presentation_06_SummarisesAnInkPrinter)
{
    QualityPanel panel(p1());
    EXPECT_EQ(lines(panel.life().controller().infoForSummaryPanel()),
              QStringList({q("Print Quality=Automatic"), q("Color Output=Color"),
                           q("Paper Type=Plain Paper"), q("Mirror Image=Off"), q("Sharpening=None"),
                           q("Dry Time=Auto Time"), q("Color Preferences=Automatic Color"),
                           q("Ink To Use=Automatic"), q("Test Chart=Off")}));
}

TEST(Presentation, SummarisesATonerPrinter)
{
    QualityPanel panel(p2(), {.year = {}});
    EXPECT_EQ(lines(panel.life().controller().infoForSummaryPanel()),
              QStringList({q("Print Quality=Automatic"), q("Color Output=Color"),
                           q("Paper Type=Automatic"), q("Toner Saver=Off"), q("Halftone=Dither")}));
}

TEST(Presentation, Presentation_07_SummarisesNoDryTimeFrom2010On)
{
    QualityPanel panel(p1(), {.year = 2010});
    for (const auto &[title, text] : panel.life().controller().infoForSummaryPanel())
        EXPECT_NE(title, q("Dry Time"));
}

TEST(Presentation, Presentation_08_KeepsOneEntryForEqualTitles)
{
    PpdText text = p1();
    text.option("MediaType").text = "Print Quality";
    QualityPanel panel(text);
    const QStringList summary = lines(panel.life().controller().infoForSummaryPanel());
    EXPECT_EQ(summary.filter(q("Print Quality")), QStringList({q("Print Quality=Plain Paper")}));
}

TEST(Presentation, Presentation_09_LeavesAnUnknownMirrorOut)
{
    QualityPanel panel(p1());
    panel.life().model().setMIrrorTicket(q("Nope"));
    EXPECT_EQ(lines(panel.controller().infoForSummaryPanel()).filter(q("Mirror")), QStringList());
}

// Help ----------------------------------------------------------------------------------

TEST(Presentation, Presentation_10_OpensTheDriversBook)
{
    QualityPanel panel(p1());
    panel.root.writeList(kHelpPath + q("/Info.plist"),
                         QVariantMap{{q("CFBundleHelpBookName"), q("Book")}});
    panel.create();
    HelpRequests help;
    DebugLog log;
    log.switchOn();
    EXPECT_FALSE(panel.controller().shouldShowDefaultHelp(kHelpPath));
    EXPECT_EQ(help.books, QStringList({q("Book")}));
    EXPECT_EQ(log.infoMessages(), QStringList({q("helpPath: ") + kHelpPath}));
    EXPECT_EQ(log.errorMessages(), QStringList());
}

TEST(Presentation, Presentation_11_SaysWhatTheHelpPathLacks)
{
    QualityPanel panel(p1());
    panel.root.makeDirectory(kHelpPath);
    panel.create();
    HelpRequests help;
    DebugLog log;
    log.switchOn();
    EXPECT_FALSE(panel.controller().shouldShowDefaultHelp(kHelpPath));
    ASSERT_EQ(help.books.size(), 1);
    EXPECT_NULL(help.books.first());
    EXPECT_EQ(log.errorMessages(), QStringList({q("Error: No Dictionary for help path")}));

    EXPECT_TRUE(panel.controller().shouldShowDefaultHelp(q("/no/such/path")));
    EXPECT_EQ(help.books.size(), 1);
    EXPECT_EQ(log.errorMessages(), QStringList({q("Error: No Dictionary for help path"),
                                                q("Error: No Dictionary for help path"),
                                                q("Error: No Help Path in directory")}));
}

TEST(Presentation, ANullHelpPathIsWrittenAsSuch)
{
    QualityPanel panel(p1());
    panel.create();
    DebugLog log;
    log.switchOn();
    EXPECT_TRUE(panel.controller().shouldShowDefaultHelp(QString()));
    EXPECT_EQ(log.infoMessages(), QStringList({q("helpPath: (null)")}));
}

TEST(Presentation, Presentation_13_LeavesNoHandleOpenBehindTheController)
{
    const qsizetype before = openHandles();
    {
        KorPDEController2 controller(nullptr, platform::encoding::utf8, nullptr, nullptr,
                                     pluginBundle());
        const QString path = QDir::tempPath();
        for (int i = 0; i < 100; ++i)
            EXPECT_FALSE(controller.shouldShowDefaultHelp(path));
        EXPECT_EQ(openHandles(), before + 1);
    }
    EXPECT_EQ(openHandles(), before);
}

// Diagnostics ---------------------------------------------------------------------------

TEST(Presentation, DescribesItsFramesAndItsModel)
{
    QualityPanel panel(p1());
    panel.life();
    const QJsonObject frames = panel.controller().frames();
    EXPECT_EQ(frames.value(q("ibPDEView")), QJsonValue(QJsonArray({0, 0, 440, 160})));
    EXPECT_EQ(frames.value(q("ibHeaderView")), QJsonValue(QJsonArray({0, 123, 440, 160})));
    EXPECT_EQ(frames.value(q("ibAdvancedView")), QJsonValue(QJsonArray({0, 0, 440, 123})));

    const QJsonObject model = quality::describeModel(panel.model());
    EXPECT_EQ(model.size(), 13);
    EXPECT_EQ(model.value(q("tonerSave")), QJsonValue(QJsonObject({{q("option"), false},
                                                                   {q("value"), QJsonValue()},
                                                                   {q("ticket"), QJsonValue()}})));
    EXPECT_EQ(model.value(q("dryTime")), QJsonValue(QJsonObject({{q("popUpOption"), true},
                                                                 {q("checkBoxOption"), false},
                                                                 {q("value"), q("Auto Time")},
                                                                 {q("ticket"), q("Automatic")}})));
}

TEST(Presentation, LoadsItsViewOnce)
{
    QualityPanel panel(p1());
    QWidget *view = panel.controller().mainView();
    ASSERT_TRUE(view);
    QObject *popUp = panel.controls().ibPaperType;
    EXPECT_EQ(panel.controller().mainView(), view);
    EXPECT_EQ(panel.controls().ibPaperType.data(), popUp);
}

TEST(Presentation, HasNoViewWithoutABundle)
{
    KorPDEController2 controller(nullptr, platform::encoding::utf8, nullptr, nullptr, nullptr);
    EXPECT_FALSE(controller.mainView());
    controller.displayAdvancedOptions(true);
    controller.localizeLabels();
}

TEST(Presentation, AnOlderSystemOpensThePanelForGood)
{
    QualityPanel panel(p1());
    QualityTestAccess::isRunning1050OrLater(panel.controller()) = false;
    ASSERT_TRUE(panel.controller().mainView());
    EXPECT_FALSE(panel.controls().ibAdvancedView->isHidden());
    EXPECT_TRUE(panel.controls().ibDisclosure->isChecked());
    EXPECT_FALSE(panel.controls().ibDisclosure->isEnabled());
    EXPECT_EQ(panel.controls().ibPDEView->frameRecord().height(), 283);
}
