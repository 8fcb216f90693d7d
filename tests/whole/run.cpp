#include "tests/whole/run.h"

#include "diag/debug_log.h"
#include "model/pop_up_filling.h"
#include "platform/controls/controls.h"
#include "platform/controls/radio_matrix.h"
#include "platform/notification_center.h"
#include "platform/values.h"
#include "quality/threshold_formatter.h"
#include "tests/conflict/conflict_fixture.h"
#include "tests/plugin/life.h"
#include "tests/plugin/panel_test_access.h"
#include "tests/support/stderr_capture.h"
#include "tests/support/user.h"
#include "tests/whole/damage.h"
#include "tests/whole/hands.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace test {
namespace {

std::vector<LifeOptions> printers()
{
    return {{.ppd = p1()},
            {.ppd = p1c()},
            {.ppd = p1(), .systemVersion = 0x1059},
            {.ppd = p2m(), .hasOtherPanel = true},
            {.ppd = everything(), .hasOtherPanel = true}};
}

void useEveryPanel(const Life &life)
{
    for (const auto &panel : *life.panels)
        useEveryControl(panel->panelView());
}

QString controlText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    return {};
}

} // namespace

SystemRun::SystemRun()
{
    log_.switchOn();
    clearProcessFlags();
    platform::NotificationCenter::defaultCenter().addObserver(
        &observer_, QString(),
        [this](const platform::Notification &posted) { note(Channel::Notification, posted.name); });
}

SystemRun::~SystemRun()
{
    clearProcessFlags();
}

void SystemRun::play()
{
    scene("factory", [this] { playFactory(); });
    scene("lives", [this] { playLives(); });
    scene("languages", [this] { playLanguages(); });
    scene("elsewhere", [this] { playElsewhere(); });
    scene("help", [this] { playHelp(); });
    scene("conflicts", [this] { playConflicts(); });
    scene("window texts", [this] { playConflictTexts(); });
    scene("old host", [this] { playOldHost(); });
    scene("model", [this] { playModel(); });
    scene("queries", [this] { playQueries(); });
    scene("accessors", [this] { playAccessors(); });
    scene("formatter", [this] { playFormatter(); });
    scene("log", [this] { playLog(); });
}

void SystemRun::scene(const char *name, const std::function<void()> &play)
{
    scene_ = q(name);
    play();
    takeRecords();
    for (const QString &line : console_.lines())
        note(Channel::Console, line);
    console_.clear();
}

/// The records that came since the last time.
void SystemRun::takeRecords()
{
    const QList<LogRecord> records = log_.ownRecords();
    for (qsizetype i = recordsTaken_; i < records.size(); ++i) {
        const LogRecord &record = records.at(i);
        if (record.message == q("{") || record.message == q("}")) {
            traces_.append(record.message + u' ' + record.operation);
            traced_.insert(record.operation);
            if (!sceneOf_.contains(record.operation))
                sceneOf_.insert(record.operation, scene_);
        } else if (record.operation.startsWith(q("-["))) {
            note(record.kind == 'I' ? Channel::Info : Channel::Error, record.message);
        }
    }
    recordsTaken_ = records.size();
}

void SystemRun::note(Channel channel, const QString &text)
{
    if (!text.isEmpty() && !texts_[channel].contains(text))
        texts_[channel].append(text);
}

void SystemRun::noteWindow(const QDialog *window)
{
    note(Channel::Title, window->windowTitle());
    for (const QWidget *widget : window->findChildren<QWidget *>())
        note(Channel::Window, controlText(widget));
}

void SystemRun::noteLabel(const QWidget *view, const char *outlet)
{
    if (const auto *label = view->findChild<QLabel *>(q(outlet)))
        note(Channel::Label, label->text());
}

void SystemRun::did(const char *selector)
{
    if (!sceneOf_.contains(q(selector)))
        sceneOf_.insert(q(selector), scene_);
}

void SystemRun::playFactory()
{
    DriverRoot root;
    const OpenPpd ppd(everything());
    root.writeOtherPanelSupport(true, q("Korvane S300"));
    FakeHost host(ppd.get());
    std::weak_ptr<PDEPanelList> list;
    {
        KorPDEPlugin2 plugIn;
        EXPECT_TRUE(plugIn.initWithBundle(pluginBundle()));
        did("-[KorPDEPlugin2 initWithBundle:]");
        list = plugIn.PDEPanelsForType(kPDEPrintDialogType.toString(), &host);
        EXPECT_EQ(list.lock()->size(), 2U);
        did("-[KorPDEPlugin2 PDEPanelsForType:withHostInfo:]");
        EXPECT_TRUE(plugIn.supportOthersPDE(ppd.get()));
        did("-[KorPDEPlugin2 supportOthersPDE:]");
    }
    EXPECT_TRUE(list.expired()) << "the plug-in's list goes with it";
    did("-[KorPDEPlugin2 dealloc]");
}

/// Every fixture printer, used with a host that accepts and with one that refuses, then saved.
void SystemRun::playLives()
{
    for (const LifeOptions &options : printers()) {
        Life life(options);
        useEveryPanel(life);
        life.host.refuseAll();
        useEveryPanel(life);
        for (const auto &panel : *life.panels) {
            note(Channel::Kind, panel->panelKind());
            (void)panel->supportedPPDOptionKeys();
            (void)panel->summaryInfo();
            panel->willShow();
            EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
            EXPECT_TRUE(panel->shouldHide());
        }
    }
}

/// Titles and the disclosure label in each language that has its own, and in one that has none.
void SystemRun::playLanguages()
{
    for (const char *language : {"ja", "fr", "es", "zh-Hans", "zh_CN", "it", "pt", "de", "en"}) {
        const Life life({.ppd = p2(),
                         .hasOtherPanel = true,
                         .languages = {q(language)},
                         .locale = q(language)});
        for (const auto &panel : *life.panels) {
            note(Channel::Title, panel->panelName());
            noteLabel(panel->panelView(), "ibDisclosureLabel");
        }
    }
    platform::setPreferredLanguages({q("en")});
}

void SystemRun::playElsewhere()
{
    for (const LifeOptions &options : printers()) {
        Life life(options);
        if (auto *paper = life.control<QComboBox>("ibPaperType"); paper->count() > 2)
            pick(paper, 2); // iron-on, whose mirror the other panel undoes
        for (const PpdOption &option : options.ppd.options())
            life.externalChange(option.keyword.constData(),
                                option.choices.back().keyword.constData());
    }
}

void SystemRun::playHelp()
{
    const LifeOptions options{.hasOtherPanel = true};
    const auto askForHelp = [&](bool hasFolder, bool hasInformation) {
        Life life(options);
        const QString path = q("/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle");
        if (hasFolder)
            life.root.makeDirectory(path);
        if (hasInformation)
            life.root.writeList(path + q("/Contents/Info.plist"),
                                QVariantMap{{q("CFBundleHelpBookName"), q("Korvane Help")}});
        for (const auto &panel : *life.panels)
            (void)panel->shouldShowHelp();
    };
    askForHelp(false, false);
    askForHelp(true, false);
    askForHelp(true, true);
}

/// A person in front of the conflict windows of an old system.
void SystemRun::playConflicts()
{
    const auto press = [this](std::vector<const char *> buttons) {
        return [this, buttons](QDialog *window) {
            noteWindow(window);
            for (const char *button : buttons)
                user::click(window->findChild<QAbstractButton *>(q(button)));
        };
    };
    const auto close = [this](QDialog *window) {
        noteWindow(window);
        window->close();
    };
    Life life({.systemVersion = 0x1049});
    life.host.format.setPaperName(q("Letter"));
    auto *paperType = life.control<QComboBox>("ibPaperType");
    {
        ModalScript person({close, press({"ibSecondButton_MsgOne", "ibThirdButton_MsgOne",
                                          "ibFirstButton_MsgOne", "ibOkButton_MsgOne"})});
        pick(life.control<QComboBox>("ibPrintQuality"), 1);
        pick(paperType, 2);
    }
    EXPECT_TEXT(life.model().printQualityTicket(), "Normal");
    life.host.format.setPaperName(q("A4Banner"));
    {
        ModalScript person({press({"ibSecondButton_MsgFive", "ibOkButton_MsgFive"}), close});
        pick(paperType, 3);
    }
    life.host.format.setPaperName(q("Letter"));
    life.root.writeCartridges(q("Color Standard"), q("Not installed"));
    openAdvanced(life.panel().panelView());
    {
        ModalScript person(
            {press({"ibSecondButton_MsgFive", "ibFirstButton_MsgFive", "ibOkButton_MsgFive"})});
        pick(life.control<QComboBox>("ibColorOutput"), 1);
    }
    EXPECT_TEXT(life.model().colorOutputTicket(), "Color");
}

/// Every text that the windows can show, kind by kind, whether a conflict of that kind is ever
/// found or not; and the window that none opens.
void SystemRun::playConflictTexts()
{
    const DriverRoot root;
    const OpenPpd ppd(p1());
    platform::setSystemVersion(0x1049);
    platform::PrintSettings settings;
    platform::PageFormat format;
    format.setPaperName(q("EnvDL"));
    PDEModel2 model;
    model.setPaperType(q("Clear Film"));
    model.setPaperTypeTicket(q("Transparency"));
    model.setInkToUse(q("Black Only"));
    KorConflictController2 controller(&settings, &format, ppd.get(), &model, pluginBundle());
    ASSERT_TRUE(ConflictTestAccess::load(controller));
    const ConflictOutlets &outlets = ConflictTestAccess::outlets(controller);
    for (const quint8 kind : {0, 1}) {
        controller.composeMsgTwo(kind);
        noteWindow(outlets.ibMsgTwoWindow);
    }
    for (const char *ticket : {"Transparency", "Envelope", "Automatic"}) {
        model.setPaperTypeTicket(q(ticket));
        for (const char *paper : {"EnvDL", "Letter", "Odd Size"}) {
            format.setPaperName(q(paper));
            controller.composeMsgFive(0);
            noteWindow(outlets.ibMsgFiveWindow);
        }
    }
    for (const quint8 kind : {1, 2, 3}) {
        controller.composeMsgFive(kind);
        noteWindow(outlets.ibMsgFiveWindow);
    }
    root.writeCartridges(q("Color Standard"), q("Photo Standard"));
    controller.composeMsgFive(2);
    noteWindow(outlets.ibMsgFiveWindow);
    for (const quint8 kind : {0, 1, 2, 3, 4}) {
        controller.composeInstructionMsg(kind);
        noteWindow(outlets.ibInstructionWindow);
    }
    pressEverythingInMsgTwo(controller);
    ConflictTestAccess::setRunning1050OrLater(controller, false);
    (void)controller.validateConflict();
    platform::setSystemVersion(0x1060);
}

void SystemRun::pressEverythingInMsgTwo(KorConflictController2 &controller)
{
    const ConflictOutlets &outlets = ConflictTestAccess::outlets(controller);
    controller.composeMsgTwo(0);
    for (QAbstractButton *button : std::initializer_list<QAbstractButton *>{
             outlets.ibThirdButton_MsgTwo, outlets.ibSecondButton_MsgTwo,
             outlets.ibFirstButton_MsgTwo, outlets.ibOkButton_MsgTwo})
        user::click(button);
}

/// A dialog older than 10.5, for panels that were made on a newer one.
void SystemRun::playOldHost()
{
    Life life({.ppd = everything(), .hasOtherPanel = true});
    const auto useOldRoads = [&life](auto &panel) {
        PanelTestAccess::makeOlderThan1050(panel);
        panel.ppdDOnTiger();
        EXPECT_EQ(PanelTestAccess::ppd(panel), life.ppd.get());
        EXPECT_TRUE(panel.restoreValuesAndReturnError(nullptr));
        EXPECT_TRUE(panel.saveValuesAndReturnError(nullptr));
        panel.setHelpPathForTiger(q("/path"));
        panel.willShow();         // calls helpOnTiger()
        (void)panel.shouldHide(); // calls removeHelpEventHandler()
        panel.panelViewIsResized();
    };
    useOldRoads(life.panel());
    useOldRoads(life.otherPanel());
    EXPECT_TRUE(life.host.offers.empty());
    for (const char *selector :
         {"-[MainPDE2 setHelpPathForTiger:]", "-[MainPDE2 helpOnTiger:]",
          "-[MainPDE2 removeHelpEventHandler]", "-[MainPDE3 setHelpPathForTiger:]",
          "-[MainPDE3 helpOnTiger:]", "-[MainPDE3 removeHelpEventHandler]"})
        did(selector);
}

/// Every accessor: what a setter takes, its getter gives back, and a new model has none.
void SystemRun::playModel()
{
    PDEModel2 model;
    ppd_option_t option{};
#define KV_OPTION(field, getter, setter)                                                           \
    EXPECT_EQ(model.getter(), nullptr);                                                            \
    model.setter(&option);                                                                         \
    EXPECT_EQ(model.getter(), &option);                                                            \
    did("-[PDEModel2 " #getter "]");                                                               \
    did("-[PDEModel2 " #setter ":]");
#define KV_STRING(field, getter, setter)                                                           \
    EXPECT_NULL(model.getter());                                                                   \
    model.setter(q(#field));                                                                       \
    EXPECT_TEXT(model.getter(), #field);                                                           \
    did("-[PDEModel2 " #getter "]");                                                               \
    did("-[PDEModel2 " #setter ":]");
#include "model/pde_model_fields.h"
#undef KV_OPTION
#undef KV_STRING
}

void SystemRun::playQueries()
{
    const OpenPpd ppd(p1());
    const PDETools2 tools;
    EXPECT_TEXT(tools.getNickName(ppd.get()), "Korvane S300");
    EXPECT_TEXT(tools.getModelYear(ppd.get()), "2009");
    EXPECT_TEXT(tools.getComponentPath(q("NickName"), ppd.get(), platform::encoding::utf8),
                "Korvane S300");
    QComboBox popUp;
    addItemsFromPPD(&popUp, ppd.get(), "InkToUse", platform::encoding::utf8);
    EXPECT_EQ(popUp.count(), 5);
}

/// What no panel object calls.
void SystemRun::playAccessors()
{
    const Life life({.ppd = everything(), .hasOtherPanel = true});
    KorPDEController2 &quality = PanelTestAccess::controller(life.panel());
    EXPECT_TRUE(quality.isFinishedInited());
    quality.setIsMirrorManuallySet(true);
    EXPECT_TRUE(quality.isMirrorManuallySet());
    quality.setIsMirrorSetDuringPreset(true);
    EXPECT_TRUE(quality.isMirrorSetDuringPreset());
    quality.setOSVersion(0x1058);
    EXPECT_EQ(quality.osVersionOnUse(), 0x1058);
    quality.setProductYear(2011);
    EXPECT_EQ(quality.productYearOnUse(), 2011);
    const auto model = std::make_shared<PDEModel2>();
    quality.setPDEModel(model);
    EXPECT_EQ(quality.pdeModel(), model.get());
    quality.setPDEModelItemToDefault(q("Threshold"));
    EXPECT_TEXT(model->thresoldTicket(), "3");
    quality.updateControl(q("Threshold"));
    KorPDEController3 &other = PanelTestAccess::controller(life.otherPanel());
    EXPECT_TRUE(other.isFinishedInited());
    other.setPDEModelItemToDefault(q("PrintDensity"));
    EXPECT_TEXT(other.pdeModel()->printDensityTicket(), "Off");
    other.initializeControls(); // says that it is done already
}

void SystemRun::playFormatter()
{
    const auto set = CharacterSet::charactersInString(q("12345"));
    ThresholdFormatter plain;
    did("-[ThresholdFormatter init]");
    EXPECT_FALSE(plain.minimum() || plain.maximum() || plain.length() || plain.characterSet());
    plain.setMinimum(1);
    plain.setMaximum(5);
    plain.setLength(1);
    plain.setAllowedCharacters(set);
    EXPECT_EQ(plain.minimum(), 1);
    EXPECT_EQ(plain.maximum(), 5);
    EXPECT_EQ(plain.length(), 1);
    EXPECT_TRUE(plain.characterSet()->contains(u'5'));
    for (const char *accessor : {"minimum", "maximum", "length", "characterSet", "setMinimum:",
                                 "setMaximum:", "setLength:", "setAllowedCharacters:"})
        did(q("-[ThresholdFormatter %1]").arg(q(accessor)).toUtf8().constData());
    {
        ThresholdFormatter formatter(1, 5, 1, set, q("3"));
        did("-[ThresholdFormatter initWithMinimum:maximum:length:characterSet:emptyValue:]");
        EXPECT_TEXT(formatter.stringForObjectValue(q("4")), "4");
        did("-[ThresholdFormatter stringForObjectValue:]");
        EXPECT_TEXT(formatter.attributedStringForObjectValue(q("4"), {}).text, "4");
        did("-[ThresholdFormatter attributedStringForObjectValue:withDefaultAttributes:]");
        QVariant object;
        EXPECT_TRUE(formatter.getObjectValue(&object, q("4"), nullptr));
        did("-[ThresholdFormatter getObjectValue:forString:errorDescription:]");
        QString text;
        EXPECT_FALSE(formatter.isPartialStringValid(q("7"), &text, nullptr));
        EXPECT_TEXT(text, "1");
        did("-[ThresholdFormatter isPartialStringValid:newEditingString:errorDescription:]");
    }
    did("-[ThresholdFormatter dealloc]");
}

/// The entry points, each by the record that it leaves.
void SystemRun::playLog()
{
    const auto leaves = [this](const char *entryPoint, const char *brief) {
        EXPECT_TEXT(log_.records().last().brief().section(u'\n', 0, 0), brief);
        did(entryPoint);
    };
    EXPECT_TEXT(log_.records().first().brief(), "A logger L0 DEBUG GO");
    did("setupDebug()");
    LogInfoBody("run", 1, "info");
    leaves("LogInfoBody()", "I run L1 info");
    LogErrorBody("run", 2, "error");
    leaves("LogErrorBody()", "E run L2 error");
    logNote("note");
    leaves("logNote()", "N logger L0 note");
    LogFormatAndSend("run", 3, 'I', "record");
    leaves("LogFormatAndSend()", "I run L3 record");
    sendToDebugApp("AI000001\t[00:00:00.000]\trun\tL4\tbytes\n", 0);
    leaves("sendToDebugApp()", "I run L4 bytes");
    LogFileAccessBody("run", 5, "/nowhere");
    leaves("LogFileAccessBody()", "E LogFileAccessBody L165 /nowhere");
    logDebugLevel |= DebugLog::kDump;
    dumpBytesBody("run", 6, "bytes", "A", 1);
    leaves("dumpBytesBody()", "D run L6 run L6: bytes 1b");
    dumpDataBody("run", 7, "data", "A");
    leaves("dumpDataBody()", "D run L7 run L7: data 1b");
    dumpDictBody("run", 8, "list", QVariantMap());
    leaves("dumpDictBody()", "D run L8 run L8: list");
    const QByteArray path = (log_.directory() + q("/trace.log")).toUtf8();
    traceOpenLog(path.constData());
    EXPECT_TRUE(gFileStream);
    did("traceOpenLog()");
    TraceLogBody("a", "b", "run", 0, 9, path.constData(), "line");
    EXPECT_GT(std::ftell(gFileStream), 0);
    did("TraceLogBody()");
    diag::closeTraceStream();
    closeDebugSession();
    leaves("closeDebugSession()", "Z logger L0 DEBUG END file");
}

} // namespace test
