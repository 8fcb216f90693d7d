// What each conflict window says.

#include "conflict/dispatch.h"
#include "conflict/kor_conflict_controller.h"
#include "diag/trace.h"
#include "model/pde_tools.h"
#include "platform/controls/controls.h"
#include "platform/strings.h"

using conflict::Window;

namespace {

struct LabelText
{
    QPointer<QLabel> ConflictOutlets::*label;
    const char *key;
};

constexpr const char *kTitle = "Conflicting settings";
constexpr const char *kInstructionsTitle = "Instructions";
constexpr const char *kOk = "OK";
constexpr const char *kJoint = "is not compatible with";
constexpr const char *kPrompt = "Choose an option to resolve the conflict:";
constexpr const char *kShowInstructions = "Show instructions to resolve the conflict settings.";
constexpr const char *kContinue = "Continue without resolving the conflict.";

// clang-format off
constexpr LabelText kMsgOneTexts[] = {
    {&ConflictOutlets::ibLabelA_MsgOne,              "Paper Type: Iron-On Transfer"},
    {&ConflictOutlets::ibLabelB_MsgOne,              kJoint},
    {&ConflictOutlets::ibLabelC_MsgOne,              "Print Quality: Draft"},
    {&ConflictOutlets::ibLabelD_MsgOne,              kPrompt},
    {&ConflictOutlets::ibLabelA_FirstButton_MsgOne,  "Paper Type: Iron-On Transfer"},
    {&ConflictOutlets::ibLabelB_FirstButton_MsgOne,  "Print Quality: Normal"},
    {&ConflictOutlets::ibLabelA_SecondButton_MsgOne, "Paper Type: Plain Paper"},
    {&ConflictOutlets::ibLabelB_SecondButton_MsgOne, "Print Quality: Draft"},
    {&ConflictOutlets::ibLabelA_ThirdButton_MsgOne,  kContinue},
};
constexpr LabelText kMsgTwoTexts[] = {
    {&ConflictOutlets::ibLabelB_MsgTwo,              kJoint},
    {&ConflictOutlets::ibLabelD_MsgTwo,              kPrompt},
    {&ConflictOutlets::ibLabelA_SecondButton_MsgTwo, kShowInstructions},
    {&ConflictOutlets::ibLabelA_ThirdButton_MsgTwo,  kContinue},
};
constexpr LabelText kMsgFiveTexts[] = {
    {&ConflictOutlets::ibLabelB_MsgFive,              kJoint},
    {&ConflictOutlets::ibLabelD_MsgFive,              kPrompt},
    {&ConflictOutlets::ibLabelA_SecondButton_MsgFive, kShowInstructions},
};
// clang-format on

struct Instruction
{
    const char *name;
    std::vector<const char *> lines;
};

/// Stands where the line with the printer's model name goes.
constexpr const char *kUtilityLine = "2) Launch the Korvane Utility";

// clang-format off
const Instruction kInstructions[] = {
    {"PageSetupInstruction",
     {"1) If your application does not have File -> Page Setup, skip to step 7.",
      "2) Cancel the Print dialog.",
      "3) Select File -> Page Setup.",
      "4) From the Paper Size pop-up menu, select the desired paper size.",
      "5) Click OK.",
      "6) Open the Print dialog.",
      "7) From the Print dialog, select your desired settings.",
      "8) Click the close button in the upper left corner of this screen."}},
    {"DocumentColorInstruction",
     {"1) From the pop-up menu, choose Quality & Media.",
      "2) Go to Advanced Options -> From the Color Output pop-up menu, choose Color.",
      "3) Click the close button in the upper left corner of this screen."}},
    {"PagesPerSheetInstruction",
     {"1) From the pop-up menu, choose Layout.",
      "2) From the Pages per Sheet popup menu, choose 1.",
      "3) Click the close button in the upper left corner of this screen."}},
    {"CartInstallInstruction",
     {"1) Cancel the Print dialog.",
      kUtilityLine,
      "3) Select the Install/ Change Cartridge... button.",
      "4) Install a black cartridge.",
      "5) Open the Print dialog, and then reselect your settings.",
      "6) Click the close button in the upper left corner of this screen."}},
    {"InkToUseInstruction",
     {"1) From the pop-up menu, choose Quality & Media.",
      "2) Go to Advanced Options -> From the Ink To Use pop-up menu, choose Automatic.",
      "3) Click the close button in the upper left corner of this screen."}},
};
// clang-format on

void setTitles(QDialog *window, QPushButton *okButton, const QString &title, const QString &ok)
{
    if (window)
        window->setWindowTitle(title);
    controls::setTitle(okButton, ok);
}

} // namespace

QString KorConflictController2::localized(const char *key) const
{
    return platform::localizedString(bundle_, QString::fromLatin1(key));
}

void KorConflictController2::compose(Window window, quint8 kind)
{
    switch (window) {
    case Window::MsgOne:
        return composeMsgOne();
    case Window::MsgTwo:
        return composeMsgTwo(kind);
    case Window::MsgFive:
        return composeMsgFive(kind);
    case Window::Instruction:
        return composeInstructionMsg(kind);
    }
}

void KorConflictController2::composeMsgOne()
{
    KV_TRACE("-[KorConflictController2 composeMsgOne]");
    setTitles(ibMsgOneWindow, ibOkButton_MsgOne, localized(kTitle), localized(kOk));
    for (const LabelText &text : kMsgOneTexts)
        controls::setText(this->*text.label, localized(text.key));
    resetChoices(Window::MsgOne);
    nameChoices(Window::MsgOne);
}

void KorConflictController2::composeMsgTwo(quint8 kind)
{
    KV_TRACE("-[KorConflictController2 composeMsgTwo:]");
    setTitles(ibMsgTwoWindow, ibOkButton_MsgTwo, localized(kTitle), localized(kOk));
    for (const LabelText &text : kMsgTwoTexts)
        controls::setText(this->*text.label, localized(text.key));
    if (kind == conflict::two::mirror) {
        const QString paperSize = localized("Paper Size: ") + shownPaperSize();
        controls::setText(ibLabelA_MsgTwo, localized("Advanced Options: Mirror (ON)"));
        controls::setText(ibLabelC_MsgTwo, paperSize);
        controls::setText(ibLabelA_FirstButton_MsgTwo, localized("Advanced Options: Mirror (OFF)"));
        controls::setText(ibLabelB_FirstButton_MsgTwo, paperSize);
    } else if (kind == conflict::two::pagesPerSheet) {
        controls::setText(ibLabelA_MsgTwo, localized("Layout: Pages per Sheet (>1)"));
        controls::setText(ibLabelC_MsgTwo, shownPaperType());
        controls::setText(ibLabelA_FirstButton_MsgTwo, localized("Layout: Pages per Sheet (>1)"));
        controls::setText(ibLabelB_FirstButton_MsgTwo, localized("Paper Type: Plain Paper"));
    }
    resetChoices(Window::MsgTwo);
    nameChoices(Window::MsgTwo);
}

void KorConflictController2::composeMsgFive(quint8 kind)
{
    KV_TRACE("-[KorConflictController2 composeMsgFive:]");
    setTitles(ibMsgFiveWindow, ibOkButton_MsgFive, localized(kTitle), localized(kOk));
    for (const LabelText &text : kMsgFiveTexts)
        controls::setText(this->*text.label, localized(text.key));
    switch (kind) {
    case conflict::five::paperSize:
        composePaperSizeConflict();
        break;
    case conflict::five::printInBlack:
        composePrintInBlackConflict();
        break;
    case conflict::five::cartridge:
        composeCartridgeConflict();
        break;
    case conflict::five::inkToUse:
        composeInkToUseConflict();
        break;
    default:
        break;
    }
    resetChoices(Window::MsgFive);
    nameChoices(Window::MsgFive);
}

void KorConflictController2::composePaperSizeConflict()
{
    const QString paperSize = localized("Paper Size: ") + shownPaperSize();
    controls::setText(ibLabelA_MsgFive, shownPaperType());
    controls::setText(ibLabelC_MsgFive, paperSize);
    controls::setText(ibLabelA_FirstButton_MsgFive, offeredPaperTypeText());
    controls::setText(ibLabelB_FirstButton_MsgFive, paperSize);
}

void KorConflictController2::composePrintInBlackConflict()
{
    controls::setText(ibLabelA_MsgFive, shownPaperType());
    controls::setText(ibLabelC_MsgFive, localized("Document Color: Black Only"));
    controls::setText(ibLabelA_FirstButton_MsgFive, shownPaperType());
    controls::setText(ibLabelB_FirstButton_MsgFive, localized("Document Color: Color"));
}

/// With neither cartridge, the texts that name it stay those of the kind before.
void KorConflictController2::composeCartridgeConflict()
{
    const char *installed = isPhotoCartInstalled() ? "Cartridge(s) installed: Photo"
                            : isColorCartOnly()    ? "Cartridge(s) installed: Only Color"
                                                   : nullptr;
    if (installed) {
        controls::setText(ibLabelA_MsgFive, localized(installed));
        controls::setText(ibLabelA_FirstButton_MsgFive, localized(installed));
    }
    controls::setText(ibLabelC_MsgFive, localized("Document Color: Black Only"));
    controls::setText(ibLabelB_FirstButton_MsgFive, localized("Document Color: Color"));
}

void KorConflictController2::composeInkToUseConflict()
{
    const QString ink = localized("Ink To Use") + QStringLiteral(": ");
    controls::setText(ibLabelA_MsgFive, shownPaperType());
    controls::setText(ibLabelC_MsgFive, ink + model->inkToUse());
    controls::setText(ibLabelA_FirstButton_MsgFive, shownPaperType());
    controls::setText(ibLabelB_FirstButton_MsgFive, ink + localized("Automatic"));
}

QString KorConflictController2::shownPaperType() const
{
    return localized("Paper Type: ") + model->paperType();
}

QString KorConflictController2::shownPaperSize()
{
    const QString name = currentPaperSize();
    const PDETools2 tools;
    QString shown = tools.getLocalizedPaperSize(name, mLocalPPD);
    if (shown.isNull())
        shown = directSelectedPaperSize();
    return shown.isNull() ? name : shown;
}

/// What the paper-size window promises; OK may set another (see appliedPaperType()).
QString KorConflictController2::offeredPaperTypeText()
{
    const bool isEnvelopeMedia = isMediaTypeEnvelope(model->paperTypeTicket());
    const bool isEnvelopeSize = isPaperSizeEnvelope(currentPaperSize());
    if (isEnvelopeMedia && !isEnvelopeSize)
        return localized("Paper Type: Automatic");
    if (!isEnvelopeMedia && isEnvelopeSize)
        return localized("Paper Type: Envelope");
    return localized("Paper Type: Plain Paper");
}

void KorConflictController2::composeInstructionMsg(quint8 kind)
{
    KV_TRACE("-[KorConflictController2 composeInstructionMsg:]");
    if (ibInstructionWindow)
        ibInstructionWindow->setWindowTitle(localized(kInstructionsTitle));
    if (kind >= std::size(kInstructions))
        return;
    const Instruction &instruction = kInstructions[kind];
    LogInfoBody("-[KorConflictController2 composeInstructionMsg:]", __LINE__, "%s",
                instruction.name);
    QStringList lines;
    for (const char *line : instruction.lines)
        lines.append(line == kUtilityLine ? utilityLine() : localized(line));
    controls::setText(ibInstructionText, lines.join(u'\n'));
}

/// A translation of this line may name the printer where it says "%@"; the English one does not.
QString KorConflictController2::utilityLine() const
{
    const QString name = mLocalPPD ? PDETools2().getModelName(mLocalPPD) : QString();
    return localized(kUtilityLine).replace(QStringLiteral("%@"), name);
}
