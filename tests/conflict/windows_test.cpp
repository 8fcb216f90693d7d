#include "conflict/dispatch.h"
#include "platform/controls/controls.h"
#include "platform/controls/modal_session.h"
#include "quality/kor_pde_controller.h"
#include "tests/conflict/conflict_fixture.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/plugin_bundle.h"

#include <QTest>
#include <QTimer>

using conflict::Window;
using test::ModalScript;
using test::q;

namespace {

class Windows : public test::ConflictFixture
{
protected:
    void load() { ASSERT_TRUE(ConflictTestAccess::load(*controller)); }

    void expectPaperType(const char *value, const char *ticket)
    {
        EXPECT_TEXT(model.paperType(), value);
        EXPECT_TEXT(model.paperTypeTicket(), ticket);
    }
    void expectPrintQuality(const char *value, const char *ticket)
    {
        EXPECT_TEXT(model.printQuality(), value);
        EXPECT_TEXT(model.printQualityTicket(), ticket);
    }
};

TEST_F(Windows, Windows_01_OkAtOnceMakesTheTransferNormal)
{
    make();
    setTickets("IronOn", "Draft");
    QString title;
    ModalScript person({[&](QDialog *window) {
        title = window->windowTitle();
        okAtOnce()(window);
    }});
    controller->processConflict();
    EXPECT_TEXT(title, "Conflicting settings");
    expectPrintQuality("Standard", "Normal");
    expectPaperType("Iron-On Transfer", "IronOn");
    EXPECT_EQ(notified, std::vector<QObject *>({outlets().ibOkButton_MsgOne}));
    EXPECT_EQ(person.opened(), QStringList({q("ibMsgOneWindow")}));
}

TEST_F(Windows, Windows_02_TheSecondChoiceKeepsTheDraftOnPlainPaper)
{
    make();
    setTickets("IronOn", "Draft");
    settings.setValue(q("mirror"), q("true"));
    ModalScript person({choiceThenOk("ibSecondButton_MsgOne")});
    controller->processConflict();
    expectPrintQuality("Quick", "Draft");
    expectPaperType("Plain Paper", "Plain");
    EXPECT_EQ(settings.value(q("mirror")), QVariant(q("true"))) << "print settings untouched";
    EXPECT_EQ(notified.size(), 1u);
}

TEST_F(Windows, Windows_03_OnNewSystemsTheSecondChoiceSwitchesMirrorOff)
{
    platform::setSystemVersion(0x1060);
    make();
    load();
    settings.setValue(q("mirror"), q("true"));
    controller->composeMsgOne();
    test::ConflictFixture::choiceThenOk("ibSecondButton_MsgOne")(outlets().ibMsgOneWindow);
    EXPECT_TRUE(settings.all().empty());
    expectPaperType("Plain Paper", "Plain");
}

TEST_F(Windows, Windows_04_ContinueSilencesTheConflictForTheProcess)
{
    make();
    setTickets("IronOn", "Draft");
    ModalScript person({choiceThenOk("ibThirdButton_MsgOne")});
    controller->processConflict();
    EXPECT_TRUE(IGNORE_IRONON_DRAFT_CONFLICT);
    expectPaperType("Iron-On Transfer", "IronOn");
    expectPrintQuality("Quick", "Draft");
    EXPECT_EQ(notified.size(), 1u);
    controller->processConflict();
    KorConflictController2 secondDialog(&settings, &format, ppd->get(), &model,
                                        test::pluginBundle());
    secondDialog.processConflict();
    EXPECT_EQ(person.opened().size(), 1);
}

TEST_F(Windows, Windows_05_OneAnswerAfterTheOtherUntilNothingIsLeft)
{
    make();
    setTickets("IronOn", "Draft");
    setPaper("EnvDL");
    ModalScript person({okAtOnce(), okAtOnce()});
    controller->processConflict();
    EXPECT_EQ(person.opened(), QStringList({q("ibMsgOneWindow"), q("ibMsgFiveWindow")}));
    expectPrintQuality("Standard", "Normal");
    expectPaperType("Envelope Paper", "Envelope");
    EXPECT_EQ(controller->validateConflict(), list({}));
}

TEST_F(Windows, Windows_06_ABannerOffersPlainPaperAndAppliesAutomatic)
{
    make();
    setTickets("IronOn", "Normal");
    setPaper("A4Banner");
    ModalScript person({[this](QDialog *window) {
        EXPECT_TEXT(text(outlets().ibLabelA_MsgFive), "Paper Type: Iron-On Transfer");
        EXPECT_TEXT(text(outlets().ibLabelB_MsgFive), "is not compatible with");
        EXPECT_TEXT(text(outlets().ibLabelC_MsgFive), "Paper Size: A4 Banner");
        EXPECT_TEXT(text(outlets().ibLabelD_MsgFive), "Choose an option to resolve the conflict:");
        EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgFive), "Paper Type: Plain Paper");
        EXPECT_TEXT(text(outlets().ibLabelB_FirstButton_MsgFive), "Paper Size: A4 Banner");
        EXPECT_TEXT(text(outlets().ibLabelA_SecondButton_MsgFive),
                    "Show instructions to resolve the conflict settings.");
        EXPECT_TEXT(controls::title(outlets().ibOkButton_MsgFive), "OK");
        okAtOnce()(window);
    }});
    controller->processConflict();
    expectPaperType("Automatic detect", "Automatic");
}

TEST_F(Windows, Windows_07_EnvelopePaperOnLetterBecomesAutomatic)
{
    make();
    setTickets("Envelope");
    ModalScript person({[this](QDialog *window) {
        EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgFive), "Paper Type: Automatic");
        EXPECT_TEXT(text(outlets().ibLabelB_FirstButton_MsgFive), "Paper Size: US Letter");
        okAtOnce()(window);
    }});
    controller->processConflict();
    expectPaperType("Automatic detect", "Automatic");
}

TEST_F(Windows, Windows_08_PlainPaperOnAnEnvelopeBecomesEnvelope)
{
    make();
    setPaper("EnvDL");
    ModalScript person({[this](QDialog *window) {
        EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgFive), "Paper Type: Envelope");
        EXPECT_TEXT(text(outlets().ibLabelC_MsgFive), "Paper Size: DL Envelope");
        okAtOnce()(window);
    }});
    controller->processConflict();
    expectPaperType("Envelope Paper", "Envelope");
}

const char *const kPageSetupSteps =
    "1) If your application does not have File -> Page Setup, skip to step 7.\n"
    "2) Cancel the Print dialog.\n"
    "3) Select File -> Page Setup.\n"
    "4) From the Paper Size pop-up menu, select the desired paper size.\n"
    "5) Click OK.\n"
    "6) Open the Print dialog.\n"
    "7) From the Print dialog, select your desired settings.\n"
    "8) Click the close button in the upper left corner of this screen.";

TEST_F(Windows, Windows_09_InstructionsSilenceTheConflictForOnePass)
{
    make();
    setTickets("IronOn", "Normal");
    setPaper("EnvDL");
    {
        ModalScript person({choiceThenOk("ibSecondButton_MsgFive"), [this](QDialog *window) {
                                EXPECT_TEXT(window->windowTitle(), "Instructions");
                                EXPECT_TEXT(text(outlets().ibInstructionText), kPageSetupSteps);
                                window->close();
                            }});
        controller->processConflict();
        EXPECT_EQ(person.opened(), QStringList({q("ibMsgFiveWindow"), q("ibInstructionWindow")}));
    }
    EXPECT_TRUE(notified.empty());
    expectPaperType("Iron-On Transfer", "IronOn");
    ModalScript person({okAtOnce()});
    controller->processConflict();
    EXPECT_EQ(person.opened(), QStringList({q("ibMsgFiveWindow")}));
}

TEST_F(Windows, OkLooksAtThePaperWhateverIsChosen)
{
    make();
    setPaper("EnvDL");
    ASSERT_TRUE(ConflictTestAccess::load(*controller));
    const test::DebugLog log;
    log.switchOn(test::DebugLog::kInfo);
    controller->clickOkButton_MsgFive(outlets().ibOkButton_MsgFive);
    EXPECT_EQ(log.infoMessages(), QStringList({q("paperName: EnvelopeDL")}));
}

TEST_F(Windows, Windows_10_PhotoPaperTakesTheInkBackToAutomatic)
{
    make();
    setTickets("PremiumGlossy");
    setInk("BlackOnly");
    ModalScript person({[this](QDialog *window) {
        EXPECT_TEXT(text(outlets().ibLabelA_MsgFive), "Paper Type: Premium Photo");
        EXPECT_TEXT(text(outlets().ibLabelC_MsgFive), "Ink To Use: Black Only");
        EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgFive), "Paper Type: Premium Photo");
        EXPECT_TEXT(text(outlets().ibLabelB_FirstButton_MsgFive), "Ink To Use: Automatic");
        okAtOnce()(window);
    }});
    controller->processConflict();
    EXPECT_TEXT(model.inkToUse(), "Automatic");
    EXPECT_TEXT(model.inkToUseTicket(), "Automatic");
}

TEST_F(Windows, Windows_11_AMissingBlackCartridgeTakesTheOutputBackToColor)
{
    struct Case
    {
        const char *cart2;
        const char *label;
    };
    for (const Case &c : {Case{"Not installed", "Cartridge(s) installed: Only Color"},
                          Case{"Photo Standard", "Cartridge(s) installed: Photo"}}) {
        root.writeCartridges(q("Color Standard"), q(c.cart2));
        make();
        setColorOutput("Black");
        ModalScript person({[&](QDialog *window) {
            EXPECT_TEXT(text(outlets().ibLabelA_MsgFive), c.label);
            EXPECT_TEXT(text(outlets().ibLabelC_MsgFive), "Document Color: Black Only");
            EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgFive), c.label);
            EXPECT_TEXT(text(outlets().ibLabelB_FirstButton_MsgFive), "Document Color: Color");
            okAtOnce()(window);
        }});
        controller->processConflict();
        EXPECT_TEXT(model.colorOutput(), "Color");
        EXPECT_TEXT(model.colorOutputTicket(), "Color");
    }
}

TEST_F(Windows, Windows_12_WithoutEitherCartridgeTheFormerLabelsStay)
{
    make();
    load();
    controller->composeMsgFive(conflict::five::inkToUse);
    const QString labelA = text(outlets().ibLabelA_MsgFive);
    controller->composeMsgFive(conflict::five::cartridge);
    EXPECT_SAME(text(outlets().ibLabelA_MsgFive), labelA);
    EXPECT_SAME(text(outlets().ibLabelA_FirstButton_MsgFive), labelA);
    EXPECT_TEXT(text(outlets().ibLabelC_MsgFive), "Document Color: Black Only");
}

TEST_F(Windows, Windows_13_SwitchingMirrorOffSaysFalse)
{
    make();
    load();
    controller->composeMsgTwo(conflict::two::mirror);
    EXPECT_TEXT(text(outlets().ibLabelA_MsgTwo), "Advanced Options: Mirror (ON)");
    EXPECT_TEXT(text(outlets().ibLabelC_MsgTwo), "Paper Size: US Letter");
    EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgTwo), "Advanced Options: Mirror (OFF)");
    EXPECT_TEXT(text(outlets().ibLabelB_FirstButton_MsgTwo), "Paper Size: US Letter");
    HAS_MIRROR_CONFLICT = true;
    ModalScript person({okAtOnce()});
    platform::runModalForWindow(outlets().ibMsgTwoWindow);
    EXPECT_TEXT(model.mirror(), "Off");
    EXPECT_TEXT(model.mirrorTicket(), "False");
    EXPECT_FALSE(HAS_MIRROR_CONFLICT);
    EXPECT_EQ(notified, std::vector<QObject *>({outlets().ibOkButton_MsgTwo}));
}

TEST_F(Windows, Windows_14_AMirrorConflictIsExplainedByThePageSetupSteps)
{
    make();
    load();
    controller->composeMsgTwo(conflict::two::mirror);
    HAS_MIRROR_CONFLICT = true;
    ModalScript person({choiceThenOk("ibSecondButton_MsgTwo"), closeIt()});
    platform::runModalForWindow(outlets().ibMsgTwoWindow);
    EXPECT_TEXT(text(outlets().ibInstructionText), kPageSetupSteps);
    EXPECT_TRUE(HAS_MIRROR_INSTRUCTION);
    EXPECT_FALSE(HAS_MIRROR_CONFLICT);
    EXPECT_TRUE(notified.empty());
}

TEST_F(Windows, Windows_15_ContinuingWithSeveralPagesPerSheetIsRememberedPerPaper)
{
    struct Case
    {
        const char *paperType;
        bool ironOn;
        bool transparency;
    };
    for (const Case &c : {Case{"IronOn", true, false}, Case{"Transparency", false, true},
                          Case{"Plain", false, false}}) {
        test::clearProcessFlags();
        make();
        load();
        setTickets(c.paperType);
        controller->composeMsgTwo(conflict::two::pagesPerSheet);
        HAS_PAGESPERSHEET_CONFLICT = true;
        ModalScript person({choiceThenOk("ibThirdButton_MsgTwo")});
        platform::runModalForWindow(outlets().ibMsgTwoWindow);
        EXPECT_EQ(IGNORE_IRONON_PAGESPERSHEET_CONFLICT, c.ironOn) << c.paperType;
        EXPECT_EQ(IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT, c.transparency) << c.paperType;
        EXPECT_FALSE(HAS_PAGESPERSHEET_CONFLICT);
        EXPECT_TRUE(notified.empty());
    }
}

TEST_F(Windows, PagesPerSheetFallBackToPlainPaper)
{
    make();
    load();
    setTickets("IronOn");
    controller->composeMsgTwo(conflict::two::pagesPerSheet);
    EXPECT_TEXT(text(outlets().ibLabelA_MsgTwo), "Layout: Pages per Sheet (>1)");
    EXPECT_TEXT(text(outlets().ibLabelC_MsgTwo), "Paper Type: Iron-On Transfer");
    EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgTwo), "Layout: Pages per Sheet (>1)");
    EXPECT_TEXT(text(outlets().ibLabelB_FirstButton_MsgTwo), "Paper Type: Plain Paper");
    HAS_PAGESPERSHEET_CONFLICT = true;
    ModalScript person({okAtOnce()});
    platform::runModalForWindow(outlets().ibMsgTwoWindow);
    expectPaperType("Plain Paper", "Plain");
    EXPECT_EQ(notified.size(), 1u);
}

TEST_F(Windows, PagesPerSheetHaveInstructionsOfTheirOwn)
{
    make();
    load();
    controller->composeMsgTwo(conflict::two::pagesPerSheet);
    HAS_PAGESPERSHEET_CONFLICT = true;
    ModalScript person({choiceThenOk("ibSecondButton_MsgTwo"), closeIt()});
    platform::runModalForWindow(outlets().ibMsgTwoWindow);
    EXPECT_TEXT(text(outlets().ibInstructionText),
                "1) From the pop-up menu, choose Layout.\n"
                "2) From the Pages per Sheet popup menu, choose 1.\n"
                "3) Click the close button in the upper left corner of this screen.");
    EXPECT_TRUE(HAS_PAGESPERSHEET_INSTRUCTION);
}

TEST_F(Windows, ContinuingWithMirrorOnAnEnvelopeIsRemembered)
{
    make();
    load();
    controller->composeMsgTwo(conflict::two::mirror);
    HAS_MIRROR_CONFLICT = true;
    ModalScript person({choiceThenOk("ibThirdButton_MsgTwo")});
    platform::runModalForWindow(outlets().ibMsgTwoWindow);
    EXPECT_TRUE(IGNORE_MIRROR_ENVELOPE_CONFLICT);
    EXPECT_FALSE(HAS_MIRROR_CONFLICT);
}

TEST_F(Windows, PrintInBlackOffersColor)
{
    make();
    load();
    setTickets("PremiumGlossy");
    controller->composeMsgFive(conflict::five::printInBlack);
    EXPECT_TEXT(text(outlets().ibLabelA_MsgFive), "Paper Type: Premium Photo");
    EXPECT_TEXT(text(outlets().ibLabelC_MsgFive), "Document Color: Black Only");
    EXPECT_TEXT(text(outlets().ibLabelA_FirstButton_MsgFive), "Paper Type: Premium Photo");
    EXPECT_TEXT(text(outlets().ibLabelB_FirstButton_MsgFive), "Document Color: Color");
    model.setColorOutputTicket(q("Black"));
    HAS_PRINTINBLACK_CONFLICT = true;
    ModalScript person({okAtOnce()});
    platform::runModalForWindow(outlets().ibMsgFiveWindow);
    EXPECT_TEXT(model.colorOutputTicket(), "Color");
    EXPECT_FALSE(HAS_PRINTINBLACK_CONFLICT);
}

TEST_F(Windows, EachKindOfInstructionsHasItsTextAndItsName)
{
    make();
    load();
    struct Case
    {
        quint8 kind;
        const char *name;
        int lines;
        const char *last;
    };
    constexpr Case cases[] = {{0, "PageSetupInstruction", 8, "8) "},
                              {1, "DocumentColorInstruction", 3, "3) "},
                              {2, "PagesPerSheetInstruction", 3, "3) "},
                              {3, "CartInstallInstruction", 6, "6) "},
                              {4, "InkToUseInstruction", 3, "3) "}};
    const test::DebugLog log;
    log.switchOn(test::DebugLog::kInfo);
    for (const Case &c : cases) {
        controller->composeInstructionMsg(c.kind);
        const QStringList lines = text(outlets().ibInstructionText).split(u'\n');
        EXPECT_EQ(lines.size(), c.lines);
        EXPECT_TRUE(lines.last().startsWith(q(c.last)));
        EXPECT_TRUE(log.infoMessages().contains(q(c.name))) << c.name;
    }
}

TEST_F(Windows, TheUtilityLineNamesThePrinterWhereTheTranslationSaysSo)
{
    make();
    load();
    controller->composeInstructionMsg(3);
    EXPECT_TEXT(text(outlets().ibInstructionText).section(u'\n', 1, 1),
                "2) Launch the Korvane Utility");
    platform::setPreferredLanguages({q("de")});
    controller->composeInstructionMsg(3);
    EXPECT_TRUE(text(outlets().ibInstructionText).contains(q("Korvane S300")));
    EXPECT_FALSE(text(outlets().ibInstructionText).contains(q("%@")));
}

TEST_F(Windows, Windows_16_AnUnknownKindChangesOnlyTheCommonTexts)
{
    make();
    load();
    const auto texts = [this] {
        QStringList list;
        for (const QPointer<QLabel> &label :
             {outlets().ibLabelA_MsgTwo, outlets().ibLabelC_MsgTwo,
              outlets().ibLabelA_FirstButton_MsgTwo, outlets().ibLabelB_FirstButton_MsgTwo,
              outlets().ibLabelA_MsgFive, outlets().ibLabelC_MsgFive,
              outlets().ibLabelA_FirstButton_MsgFive, outlets().ibLabelB_FirstButton_MsgFive,
              outlets().ibInstructionText})
            list.append(text(label));
        return list;
    };
    controller->composeMsgTwo(0);
    controller->composeMsgFive(0);
    controller->composeInstructionMsg(0);
    const QStringList before = texts();
    controls::setText(outlets().ibLabelB_MsgTwo, q("x"));
    controls::setText(outlets().ibLabelD_MsgFive, q("x"));
    outlets().ibInstructionWindow->setWindowTitle(q("x"));
    controller->composeMsgTwo(7);
    controller->composeMsgFive(9);
    controller->composeInstructionMsg(5);
    EXPECT_EQ(texts(), before);
    EXPECT_TEXT(text(outlets().ibLabelB_MsgTwo), "is not compatible with");
    EXPECT_TEXT(text(outlets().ibLabelD_MsgFive), "Choose an option to resolve the conflict:");
    EXPECT_TEXT(outlets().ibInstructionWindow->windowTitle(), "Instructions");
}

TEST_F(Windows, Windows_17_OnlyTurningAChoiceOnCounts)
{
    make();
    load();
    controller->composeMsgOne();
    outlets().ibMsgOneWindow->show();
    QTest::mouseClick(outlets().ibSecondButton_MsgOne, Qt::LeftButton, {}, QPoint(8, 8));
    const std::vector<bool> second{false, true, false};
    EXPECT_EQ(ConflictTestAccess::flags_MsgOne(*controller), second);
    EXPECT_FALSE(outlets().ibFirstButton_MsgOne->isChecked());
    EXPECT_FALSE(outlets().ibThirdButton_MsgOne->isChecked());
    // A button that says it is off: nothing changes.
    controller->clickThirdButton_MsgOne(outlets().ibThirdButton_MsgOne);
    outlets().ibSecondButton_MsgOne->setAutoExclusive(false);
    outlets().ibSecondButton_MsgOne->setChecked(false);
    controller->clickSecondButton_MsgOne(outlets().ibSecondButton_MsgOne);
    EXPECT_EQ(ConflictTestAccess::flags_MsgOne(*controller), second);
    EXPECT_FALSE(outlets().ibFirstButton_MsgOne->isChecked());
}

TEST_F(Windows, EveryChoiceOfEveryWindowIsARadioButtonForMouseKeysAndLabel)
{
    make();
    load();
    struct Case
    {
        QPointer<QRadioButton> button;
        QPointer<QLabel> label;
        std::vector<bool> (*flags)(const KorConflictController2 &);
        std::size_t index;
    };
    const ConflictOutlets &o = outlets();
    const Case cases[] = {
        {o.ibSecondButton_MsgOne, o.ibLabelB_SecondButton_MsgOne, ConflictTestAccess::flags_MsgOne,
         1},
        {o.ibThirdButton_MsgOne, o.ibLabelA_ThirdButton_MsgOne, ConflictTestAccess::flags_MsgOne,
         2},
        {o.ibFirstButton_MsgOne, o.ibLabelA_FirstButton_MsgOne, ConflictTestAccess::flags_MsgOne,
         0},
        {o.ibSecondButton_MsgTwo, o.ibLabelA_SecondButton_MsgTwo, ConflictTestAccess::flags_MsgTwo,
         1},
        {o.ibThirdButton_MsgTwo, o.ibLabelA_ThirdButton_MsgTwo, ConflictTestAccess::flags_MsgTwo,
         2},
        {o.ibFirstButton_MsgTwo, o.ibLabelB_FirstButton_MsgTwo, ConflictTestAccess::flags_MsgTwo,
         0},
        {o.ibSecondButton_MsgFive, o.ibLabelA_SecondButton_MsgFive,
         ConflictTestAccess::flags_MsgFive, 1},
        {o.ibFirstButton_MsgFive, o.ibLabelA_FirstButton_MsgFive, ConflictTestAccess::flags_MsgFive,
         0},
    };
    controller->composeMsgOne();
    controller->composeMsgTwo(0);
    controller->composeMsgFive(0);
    for (const Case &c : cases) {
        c.button->window()->show();
        QTest::mouseClick(c.label, Qt::LeftButton);
        const std::vector<bool> flags = c.flags(*controller);
        for (std::size_t i = 0; i < flags.size(); ++i)
            EXPECT_EQ(flags[i], i == c.index) << c.button->objectName().toStdString();
        EXPECT_TRUE(c.button->isChecked());
        EXPECT_FALSE(c.button->accessibleName().isEmpty());
    }
    o.ibMsgFiveWindow->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(o.ibMsgFiveWindow));
    o.ibFirstButton_MsgFive->setFocus();
    QTest::keyClick(o.ibFirstButton_MsgFive, Qt::Key_Down);
    EXPECT_EQ(ConflictTestAccess::flags_MsgFive(*controller), std::vector<bool>({false, true}));
}

TEST_F(Windows, ComposingPutsButtonsAndFlagsBackToTheFirstChoice)
{
    make();
    load();
    controller->composeMsgFive(0);
    outlets().ibMsgFiveWindow->show();
    QTest::mouseClick(outlets().ibSecondButton_MsgFive, Qt::LeftButton, {}, QPoint(8, 8));
    ASSERT_EQ(ConflictTestAccess::flags_MsgFive(*controller), std::vector<bool>({false, true}));
    controller->composeMsgFive(3);
    EXPECT_EQ(ConflictTestAccess::flags_MsgFive(*controller), std::vector<bool>({true, false}));
    EXPECT_TRUE(outlets().ibFirstButton_MsgFive->isChecked());
}

TEST_F(Windows, Windows_18_AClosedWindowComesBackUntilItIsAnswered)
{
    make();
    setTickets("Envelope");
    ModalScript person({closeIt(), closeIt(), okAtOnce()});
    controller->processConflict();
    EXPECT_EQ(person.opened().size(), 3);
    EXPECT_EQ(notified.size(), 1u) << "the model changed once";
    expectPaperType("Automatic detect", "Automatic");
    EXPECT_FALSE(HAS_PAPERSIZE_CONFLICT);
}

TEST_F(Windows, EscapeClosesAndReturnPressesOk)
{
    make();
    setTickets("Envelope");
    ModalScript person({[](QDialog *window) { QTest::keyClick(window, Qt::Key_Escape); },
                        [](QDialog *window) { QTest::keyClick(window, Qt::Key_Return); }});
    controller->processConflict();
    EXPECT_EQ(person.opened().size(), 2);
    EXPECT_EQ(notified.size(), 1u);
}

TEST_F(Windows, Windows_19_InstructionsRunInsideTheOkHandlerAndLeaveNothingModal)
{
    make();
    setTickets("IronOn", "Normal");
    setPaper("EnvDL");
    QDialog outer;
    outer.setObjectName(q("outer"));
    int depthOfInstructions = 0;
    bool outerRunsOn = false;
    ModalScript person({[&](QDialog *) {
                            controller->processConflict();
                            EXPECT_EQ(platform::modalDepth(), 1) << "only the outer dialog is left";
                            outerRunsOn = outer.isVisible();
                            platform::stopModal();
                        },
                        choiceThenOk("ibSecondButton_MsgFive"),
                        [&](QDialog *window) {
                            depthOfInstructions = platform::modalDepth();
                            window->close();
                        }});
    platform::runModalForWindow(&outer);
    EXPECT_EQ(depthOfInstructions, 3) << "outer dialog, conflict window, instructions";
    EXPECT_TRUE(outerRunsOn);
    EXPECT_FALSE(outlets().ibMsgFiveWindow->isVisible());
    EXPECT_FALSE(outlets().ibInstructionWindow->isVisible());
}

TEST_F(Windows, Windows_20_AChoiceThatThePrinterLacksLeavesItsValueNull)
{
    make(test::p1().withoutChoice("MediaType", "Plain").withDefault("MediaType", "Automatic"));
    setTickets("IronOn", "Draft");
    ModalScript person({choiceThenOk("ibSecondButton_MsgOne")});
    controller->processConflict();
    EXPECT_NULL(model.paperType());
    EXPECT_TEXT(model.paperTypeTicket(), "Plain");
}

TEST_F(Windows, EveryCaseNumberHasItsWindow)
{
    struct Case
    {
        int number;
        Window window;
        bool *flag;
    };
    const Case cases[] = {{0, Window::MsgOne, nullptr},
                          {3, Window::MsgTwo, &HAS_PAGESPERSHEET_CONFLICT},
                          {6, Window::MsgTwo, &HAS_PAGESPERSHEET_CONFLICT},
                          {8, Window::MsgFive, &HAS_PRINTINBLACK_CONFLICT},
                          {10, Window::MsgTwo, &HAS_MIRROR_CONFLICT},
                          {13, Window::MsgFive, &HAS_PAPERSIZE_CONFLICT},
                          {14, Window::MsgFive, &HAS_INKTOUSE_CONFLICT}};
    for (const Case &c : cases) {
        EXPECT_EQ(conflict::dispatchOf(c.number).window, c.window) << c.number;
        EXPECT_EQ(conflict::dispatchOf(c.number).conflictFlag, c.flag) << c.number;
    }
}

TEST_F(Windows, WithoutTheInterfaceFileTheCheckEndsQuietly)
{
    make();
    setTickets("IronOn", "Draft");
    KorConflictController2 windowless(&settings, &format, ppd->get(), &model, nullptr);
    windowless.processConflict();
    expectPrintQuality("Quick", "Draft");
}

TEST_F(Windows, ClosingEverythingEndsTheCheckWithoutAnotherWindow)
{
    make();
    setTickets("Envelope");
    ModalScript person({[](QDialog *) { platform::stopAllModalSessions(); }});
    controller->processConflict();
    EXPECT_EQ(person.opened().size(), 1);
    expectPaperType("Envelope Paper", "Envelope");
}

TEST_F(Windows, QuittingTheProgramEndsTheCheck)
{
    make();
    setTickets("Envelope");
    ModalScript person({[](QDialog *) { QCoreApplication::quit(); }});
    QTimer::singleShot(0, controller.get(), [this] { controller->processConflict(); });
    QCoreApplication::exec();
    EXPECT_EQ(person.opened().size(), 1);
    EXPECT_EQ(platform::modalDepth(), 0);
}

TEST_F(Windows, Whole_02_DestroyingTheControllerInsideItsWindowEndsTheCheck)
{
    make();
    setTickets("Envelope");
    ModalScript person({[this](QDialog *) { controller.reset(); }});
    controller->processConflict();
    EXPECT_EQ(person.opened().size(), 1);
}

TEST_F(Windows, DestroyingTheControllerInsideItsInstructionsEndsTheCheck)
{
    make();
    setTickets("Envelope");
    ModalScript person(
        {choiceThenOk("ibSecondButton_MsgFive"), [this](QDialog *) { controller.reset(); }});
    controller->processConflict();
    EXPECT_EQ(person.opened().size(), 2);
}

TEST_F(Windows, APassWithAConstantAnswerEndsUnlessItCloses)
{
    // Every situation of the ink printer, every constant choice: at most 20 windows.
    root.writeCartridges(q("Color Standard"), q("Not installed"));
    const char *const media[] = {"Automatic", "Plain",         "IronOn",  "Transparency",
                                 "Greeting",  "PremiumGlossy", "Envelope"};
    const char *const papers[] = {"Letter", "A4Banner", "EnvDL"};
    int most = 0;
    make();
    load();
    for (const char *paperType : media)
        for (const char *paper : papers)
            for (const char *quality : {"Automatic", "Draft"})
                for (const char *ink : {"Automatic", "BlackOnly"})
                    for (const char *color : {"Color", "Black"})
                        for (const char *choice :
                             {"ibFirstButton_", "ibSecondButton_", "ibThirdButton_"}) {
                            test::clearProcessFlags();
                            setTickets(paperType, quality);
                            setInk(ink);
                            setColorOutput(color);
                            setPaper(paper);
                            int windows = 0;
                            QObject scope;
                            QObject::connect(
                                &platform::ModalSessions::shared(),
                                &platform::ModalSessions::opened, &scope, [&](QDialog *window) {
                                    if (++windows > 20)
                                        platform::stopAllModalSessions();
                                    QTimer::singleShot(0, window, [this, window, choice] {
                                        if (window == outlets().ibInstructionWindow) {
                                            window->close();
                                            return;
                                        }
                                        for (QRadioButton *button :
                                             window->findChildren<QRadioButton *>()) {
                                            if (button->objectName().startsWith(q(choice)))
                                                button->click();
                                        }
                                        window->findChild<QPushButton *>()->click();
                                    });
                                });
                            controller->processConflict();
                            EXPECT_LE(windows, 20) << paperType << ' ' << paper << ' ' << quality
                                                   << ' ' << ink << ' ' << color << ' ' << choice;
                            most = std::max(most, windows);
                        }
    EXPECT_GE(most, 3) << "some pass needs several windows";
}

} // namespace
