// What OK does in each conflict window.

#include "conflict/dispatch.h"
#include "conflict/kor_conflict_controller.h"
#include "diag/trace.h"
#include "model/pde_tools.h"
#include "model/setting_slots.h"
#include "platform/controls/modal_session.h"
#include "platform/notification_center.h"

#include <utility>

using conflict::Window;

namespace conflict {

/// A kind of conflict for which a person asked for instructions.
struct Instructed
{
    bool *conflictFlag;
    bool *instructionFlag;
    quint8 instructions; ///< for composeInstructionMsg()
};

} // namespace conflict

namespace {

constexpr int kMirrorInPrintSettings = 0x1060;

// In the order in which they are looked at; the text of a later one replaces that of an earlier
// one.
// clang-format off
constexpr conflict::Instructed kMsgTwoInstructions[] = {
    {&HAS_MIRROR_CONFLICT,        &HAS_MIRROR_INSTRUCTION,        0}, // page set-up, by design
    {&HAS_PAGESPERSHEET_CONFLICT, &HAS_PAGESPERSHEET_INSTRUCTION, 2},
};
constexpr conflict::Instructed kMsgFiveInstructions[] = {
    {&HAS_PRINTINBLACK_CONFLICT,  &HAS_PRINTINBLACK_INSTRUCTION,  1},
    {&HAS_CARTINSTALLED_CONFLICT, &HAS_CARTINSTALLED_INSTRUCTION, 3},
    {&HAS_PAPERSIZE_CONFLICT,     &HAS_PAPERSIZE_INSTRUCTION,     0},
    {&HAS_INKTOUSE_CONFLICT,      &HAS_INKTOUSE_INSTRUCTION,      4},
};
// clang-format on

/// True once when the flag is set, which clears it.
bool take(bool &flag)
{
    return std::exchange(flag, false);
}

} // namespace

void KorConflictController2::endWindow(Window window)
{
    platform::stopModal();
    platform::closeWindow(windowOf(window));
}

/// The ticket becomes the keyword even where the printer has no such choice; the value is then
/// null.
void KorConflictController2::setChoice(const SettingSlots &slots, const char *keyword)
{
    const QString choice = QString::fromLatin1(keyword);
    const PDETools2 tools;
    (model->*slots.setValue)(
        tools.getOptionsChoice(choice, (model->*slots.option)(), ChoiceString::Text));
    (model->*slots.setTicket)(choice);
}

void KorConflictController2::postChange(QPushButton *button)
{
    platform::NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification,
                                                       button);
}

void KorConflictController2::runInstructions()
{
    if (!ibInstructionWindow)
        return;
    platform::centerWindow(ibInstructionWindow);
    platform::runModalForWindow(ibInstructionWindow);
}

void KorConflictController2::composeInstructionsFor(std::span<const conflict::Instructed> kinds)
{
    for (const conflict::Instructed &kind : kinds) {
        if (!take(*kind.conflictFlag))
            continue;
        composeInstructionMsg(kind.instructions);
        *kind.instructionFlag = true;
    }
}

void KorConflictController2::clickOkButton_MsgOne(QPushButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickOkButton_MsgOne:]");
    endWindow(Window::MsgOne);
    if (isFirstButton_MsgOneClicked) {
        setChoice(settings::printQuality, "Normal");
        setChoice(settings::paperType, "IronOn");
    }
    if (isSecondButton_MsgOneClicked) {
        setChoice(settings::printQuality, "Draft");
        setChoice(settings::paperType, "Plain");
        const PDETools2 tools;
        if (tools.OSVersion() >= kMirrorInPrintSettings)
            tools.setMirrorValueFromPrintSettings(mPrintSetting, false);
    }
    if (isThirdButton_MsgOneClicked)
        IGNORE_IRONON_DRAFT_CONFLICT = true;
    resetChoiceFlags(Window::MsgOne);
    postChange(sender);
}

void KorConflictController2::clickOkButton_MsgTwo(QPushButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickOkButton_MsgTwo:]");
    const QPointer<KorConflictController2> self(this);
    endWindow(Window::MsgTwo);
    if (isFirstButton_MsgTwoClicked) {
        applyFirstChoice_MsgTwo();
        postChange(sender);
    } else if (isSecondButton_MsgTwoClicked) {
        composeInstructionsFor(kMsgTwoInstructions);
        runInstructions();
    } else if (isThirdButton_MsgTwoClicked) {
        applyThirdChoice_MsgTwo();
    }
    if (self)
        resetChoiceFlags(Window::MsgTwo);
}

void KorConflictController2::applyFirstChoice_MsgTwo()
{
    if (take(HAS_PAGESPERSHEET_CONFLICT))
        setChoice(settings::paperType, "Plain");
    if (take(HAS_MIRROR_CONFLICT)) {
        model->setMirror(QStringLiteral("Off"));
        // "False", though the panel's own words are On and Off.
        model->setMIrrorTicket(QStringLiteral("False"));
    }
}

void KorConflictController2::applyThirdChoice_MsgTwo()
{
    if (take(HAS_PAGESPERSHEET_CONFLICT)) {
        if (model->paperTypeTicket() == QLatin1String("IronOn"))
            IGNORE_IRONON_PAGESPERSHEET_CONFLICT = true;
        else if (model->paperTypeTicket() == QLatin1String("Transparency"))
            IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT = true;
    }
    if (take(HAS_MIRROR_CONFLICT))
        IGNORE_MIRROR_ENVELOPE_CONFLICT = true;
}

void KorConflictController2::clickOkButton_MsgFive(QPushButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickOkButton_MsgFive:]");
    const QPointer<KorConflictController2> self(this);
    endWindow(Window::MsgFive);
    const QString paperSize = currentPaperSize(); // looked at, and logged, whatever is chosen
    if (isFirstButton_MsgFiveClicked) {
        applyFirstChoice_MsgFive(paperSize);
        postChange(sender);
    } else if (isSecondButton_MsgFiveClicked) {
        composeInstructionsFor(kMsgFiveInstructions);
        runInstructions();
    }
    if (self)
        resetChoiceFlags(Window::MsgFive);
}

void KorConflictController2::applyFirstChoice_MsgFive(const QString &paperSize)
{
    if (take(HAS_PAPERSIZE_CONFLICT))
        setChoice(settings::paperType, appliedPaperType(paperSize));
    const bool isBlack = take(HAS_PRINTINBLACK_CONFLICT);
    if (take(HAS_CARTINSTALLED_CONFLICT) || isBlack)
        setChoice(settings::colorOutput, "Color");
    if (take(HAS_INKTOUSE_CONFLICT))
        setChoice(settings::inkToUse, "Automatic");
}

/// Never "Plain", though the window of a banner size offers plain paper.
const char *KorConflictController2::appliedPaperType(const QString &paperSize)
{
    const bool isEnvelopeSize = isPaperSizeEnvelope(paperSize);
    return isMediaTypeEnvelope(model->paperTypeTicket()) || !isEnvelopeSize ? "Automatic"
                                                                            : "Envelope";
}
