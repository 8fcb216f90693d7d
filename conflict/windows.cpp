// The conflict windows: loading, texts, choices.

#include "conflict/dispatch.h"
#include "conflict/kor_conflict_controller.h"
#include "diag/trace.h"
#include "model/pde_tools.h"
#include "platform/controls/controls.h"
#include "platform/controls/modal_session.h"
#include "platform/strings.h"

#include <QEvent>

#include <algorithm>
#include <utility>

using conflict::Choice;
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

/// A click on a choice's label is a click on its button.
class LabelClicks : public QObject
{
public:
    LabelClicks(QLabel *label, QRadioButton *button) : QObject(label), button_(button)
    {
        label->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::MouseButtonRelease || !button_)
            return false;
        button_->click();
        return true;
    }

private:
    QPointer<QRadioButton> button_;
};

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

QDialog *KorConflictController2::windowOf(Window window) const
{
    switch (window) {
    case Window::MsgOne:
        return ibMsgOneWindow;
    case Window::MsgTwo:
        return ibMsgTwoWindow;
    case Window::MsgFive:
        return ibMsgFiveWindow;
    case Window::Instruction:
        return ibInstructionWindow;
    }
    return nullptr;
}

bool KorConflictController2::loadWindows()
{
    const auto isLoaded = [this](Window window) { return windowOf(window) != nullptr; };
    const auto all = [&isLoaded] {
        return std::all_of(conflict::kAllWindows.begin(), conflict::kAllWindows.end(), isLoaded);
    };
    if (all())
        return true;
    for (const Window window : conflict::kAllWindows)
        platform::discardWindow(windowOf(window));
    const std::vector<QWidget *> loaded =
        platform::loadInterfaceFile(bundle_, QStringLiteral("Conflicts"), table());
    if (!all()) {
        qDeleteAll(loaded);
        return false;
    }
    connectWindows();
    return true;
}

void KorConflictController2::connectWindows()
{
    connectChoices();
    connectOkButtons();
    for (const Window window : conflict::kAllWindows)
        platform::setWindowDelegate(windowOf(window), this,
                                    [this](QDialog *closing) { windowWillClose(closing); });
}

/// A click hands the button itself to its handler.
template <class Button>
void KorConflictController2::connectClick(Button *button,
                                          void (KorConflictController2::*handler)(Button *))
{
    connect(button, &Button::clicked, this, [=, this] { (this->*handler)(button); });
}

void KorConflictController2::connectChoices()
{
    using Self = KorConflictController2;
    const std::pair<QRadioButton *, void (Self::*)(QRadioButton *)> handlers[] = {
        {ibFirstButton_MsgOne, &Self::clickFirstButton_MsgOne},
        {ibSecondButton_MsgOne, &Self::clickSecondButton_MsgOne},
        {ibThirdButton_MsgOne, &Self::clickThirdButton_MsgOne},
        {ibFirstButton_MsgTwo, &Self::clickFirstButton_MsgTwo},
        {ibSecondButton_MsgTwo, &Self::clickSecondButton_MsgTwo},
        {ibThirdButton_MsgTwo, &Self::clickThirdButton_MsgTwo},
        {ibFirstButton_MsgFive, &Self::clickFirstButton_MsgFive},
        {ibSecondButton_MsgFive, &Self::clickSecondButton_MsgFive},
    };
    for (const auto &[button, handler] : handlers)
        connectClick(button, handler);
    for (const Window window : conflict::kConflictWindows)
        for (const Choice &choice : choicesOf(window))
            for (QLabel *label : choice.labels)
                new LabelClicks(label, choice.button); // owned by the label
}

void KorConflictController2::connectOkButtons()
{
    using Self = KorConflictController2;
    const std::pair<QPushButton *, void (Self::*)(QPushButton *)> handlers[] = {
        {ibOkButton_MsgOne, &Self::clickOkButton_MsgOne},
        {ibOkButton_MsgTwo, &Self::clickOkButton_MsgTwo},
        {ibOkButton_MsgFive, &Self::clickOkButton_MsgFive},
    };
    for (const auto &[button, handler] : handlers)
        connectClick(button, handler);
}

std::vector<Choice> KorConflictController2::choicesOf(Window window)
{
    switch (window) {
    case Window::MsgOne:
        return {
            {ibFirstButton_MsgOne,
             &isFirstButton_MsgOneClicked,
             {ibLabelA_FirstButton_MsgOne, ibLabelB_FirstButton_MsgOne}},
            {ibSecondButton_MsgOne,
             &isSecondButton_MsgOneClicked,
             {ibLabelA_SecondButton_MsgOne, ibLabelB_SecondButton_MsgOne}},
            {ibThirdButton_MsgOne, &isThirdButton_MsgOneClicked, {ibLabelA_ThirdButton_MsgOne}}};
    case Window::MsgTwo:
        return {
            {ibFirstButton_MsgTwo,
             &isFirstButton_MsgTwoClicked,
             {ibLabelA_FirstButton_MsgTwo, ibLabelB_FirstButton_MsgTwo}},
            {ibSecondButton_MsgTwo, &isSecondButton_MsgTwoClicked, {ibLabelA_SecondButton_MsgTwo}},
            {ibThirdButton_MsgTwo, &isThirdButton_MsgTwoClicked, {ibLabelA_ThirdButton_MsgTwo}}};
    case Window::MsgFive:
        return {{ibFirstButton_MsgFive,
                 &isFirstButton_MsgFiveClicked,
                 {ibLabelA_FirstButton_MsgFive, ibLabelB_FirstButton_MsgFive}},
                {ibSecondButton_MsgFive,
                 &isSecondButton_MsgFiveClicked,
                 {ibLabelA_SecondButton_MsgFive}}};
    case Window::Instruction:
        break;
    }
    return {};
}

void KorConflictController2::choose(Window window, std::size_t index, const QRadioButton *sender)
{
    if (controls::state(sender) != 1)
        return;
    const std::vector<Choice> choices = choicesOf(window);
    for (std::size_t i = 0; i < choices.size(); ++i) {
        *choices[i].flag = i == index;
        if (i != index)
            controls::setState(choices[i].button, 0);
    }
}

void KorConflictController2::resetChoiceFlags(Window window)
{
    const std::vector<Choice> choices = choicesOf(window);
    for (std::size_t i = 0; i < choices.size(); ++i)
        *choices[i].flag = i == 0;
}

void KorConflictController2::resetChoices(Window window)
{
    resetChoiceFlags(window);
    for (const Choice &choice : choicesOf(window))
        controls::setState(choice.button, *choice.flag ? 1 : 0);
}

/// A choice's button has no text of its own; a screen reader reads its labels.
void KorConflictController2::nameChoices(Window window)
{
    for (const Choice &choice : choicesOf(window)) {
        QStringList texts;
        for (const QLabel *label : choice.labels)
            texts.append(controls::text(label));
        if (choice.button)
            choice.button->setAccessibleName(texts.join(QStringLiteral(", ")));
    }
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

void KorConflictController2::clickFirstButton_MsgOne(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickFirstButton_MsgOne:]");
    choose(Window::MsgOne, 0, sender);
}

void KorConflictController2::clickSecondButton_MsgOne(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickSecondButton_MsgOne:]");
    choose(Window::MsgOne, 1, sender);
}

void KorConflictController2::clickThirdButton_MsgOne(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickThirdButton_MsgOne:]");
    choose(Window::MsgOne, 2, sender);
}

void KorConflictController2::clickFirstButton_MsgTwo(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickFirstButton_MsgTwo:]");
    choose(Window::MsgTwo, 0, sender);
}

void KorConflictController2::clickSecondButton_MsgTwo(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickSecondButton_MsgTwo:]");
    choose(Window::MsgTwo, 1, sender);
}

void KorConflictController2::clickThirdButton_MsgTwo(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickThirdButton_MsgTwo:]");
    choose(Window::MsgTwo, 2, sender);
}

void KorConflictController2::clickFirstButton_MsgFive(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickFirstButton_MsgFive:]");
    choose(Window::MsgFive, 0, sender);
}

void KorConflictController2::clickSecondButton_MsgFive(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickSecondButton_MsgFive:]");
    choose(Window::MsgFive, 1, sender);
}

void KorConflictController2::windowWillClose(QDialog *)
{
    KV_TRACE("-[KorConflictController2 windowWillClose:]");
    platform::stopModal();
    platform::closeWindow(ibMsgTwoWindow);
}
