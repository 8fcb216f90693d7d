// KorPDEController2: what a person's use of each control does.

#include "diag/debug_log.h"
#include "diag/trace.h"
#include "platform/console.h"
#include "platform/controls/controls.h"
#include "platform/notification_center.h"
#include "platform/strings.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"
#include "quality/text_field_editing.h"

using namespace quality;
using platform::writeConsole;

namespace {

/// Settings whose tickets colour output offers again at its end, as they are held then.
constexpr Setting kOfferedAgain[] = {Setting::ICCTestChartProcess, Setting::Threshold,
                                     Setting::TonerSave, Setting::HalftoneLevel};

/// The formatter of the threshold field.
std::unique_ptr<ThresholdFormatter> makeThresholdFormatter()
{
    return std::make_unique<ThresholdFormatter>(
        1, 5, 1, CharacterSet::charactersInString(QStringLiteral("12345")), QStringLiteral("3"));
}

QString wordOf(BoxWords words, int state)
{
    return QString::fromLatin1(state == 1 ? words.on : words.off);
}

} // namespace

// Regular actions, by the table's kind --------------------------------------------------

void KorPDEController2::printQualityAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 printQualityAction:]");
    perform(Setting::PrintQuality);
}

void KorPDEController2::paperSourceAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 paperSourceAction:]");
    perform(Setting::PaperSource);
}

void KorPDEController2::colorPreferencesAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 colorPreferencesAction:]");
    perform(Setting::ColorPreferences);
}

void KorPDEController2::sharpenAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 sharpenAction:]");
    perform(Setting::Sharpen);
}

void KorPDEController2::halftoneAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 halftoneAction:]");
    perform(Setting::HalftoneLevel);
}

void KorPDEController2::ICCTestChartAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 ICCTestChartAction:]");
    perform(Setting::ICCTestChartProcess);
}

void KorPDEController2::tonerSaveAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 tonerSaveAction:]");
    perform(Setting::TonerSave);
}

void KorPDEController2::dryTimePopUpAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 dryTimePopUpAction:]");
    perform(Setting::DupDryTime);
}

void KorPDEController2::dryTimeCheckBoxAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 dryTimeCheckBoxAction:]");
    if (pdeModel_->dryTimeCheckBoxOption())
        takeBox(Setting::DupDryTime, kDryTimeBoxSlots);
}

void KorPDEController2::perform(Setting setting)
{
    if (!hasOption(setting))
        return;
    switch (row(setting).action) {
    case ActionKind::TakeThenOffer:
        return takeThenOffer(setting);
    case ActionKind::OfferThenTake:
        return offerThenTake(setting);
    case ActionKind::AskFirst:
        return askFirst(setting);
    case ActionKind::Box:
        return takeBox(setting, row(setting).slots);
    case ActionKind::OwnAction:
        return;
    }
}

KorPDEController2::PickedChoice KorPDEController2::choiceAtIndex(Setting setting, int index)
{
    const char *key = row(setting).keyword;
    const QString text = selectedItemFromIndex(index, key, ChoiceString::Text);
    return {text, selectedItemFromIndex(index, key, ChoiceString::Keyword)};
}

KorPDEController2::PickedChoice KorPDEController2::pickedChoice(Setting setting)
{
    return choiceAtIndex(setting, controls::indexOfSelectedItem(popUpOf(setting)));
}

void KorPDEController2::takeThenOffer(Setting setting)
{
    const PickedChoice picked = pickedChoice(setting);
    storeStrings(setting, picked.text, picked.keyword);
    offerTicket(setting);
}

void KorPDEController2::offerThenTake(Setting setting)
{
    const PickedChoice picked = pickedChoice(setting);
    changePPDOptionKeyValue(keyword(setting), picked.keyword);
    storeStrings(setting, picked.text, picked.keyword);
}

void KorPDEController2::askFirst(Setting setting)
{
    const PickedChoice picked = pickedChoice(setting);
    if (changePPDOptionKeyValue(keyword(setting), picked.keyword))
        storeStrings(setting, picked.text, picked.keyword);
    else
        selectValue(setting);
    customConstraintOSControl();
}

void KorPDEController2::takeBox(Setting setting, const SettingSlots &slots)
{
    const QString word = wordOf(row(setting).words, controls::state(boxOf(setting)));
    storeChoice(*pdeModel_, slots, *pdeTools, word);
    offerTicket(setting);
}

bool KorPDEController2::offerTicket(Setting setting)
{
    return changePPDOptionKeyValue(keyword(setting), ticketOf(setting));
}

// Ink -----------------------------------------------------------------------------------

void KorPDEController2::inkToUseAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 inkToUseAction:]");
    if (!hasOption(Setting::InkToUse))
        return;
    const int index = controls::indexOfSelectedItem(ibInkToUse);
    writeConsole(QStringLiteral("inkToUseAction indexb4Mapping=") + QString::number(index) + u'\n');
    const int mapped = mappedInkIndex(index, pdeModel_->colorOutputTicket());
    writeConsole(QStringLiteral("inkToUseAction indexB4changePPDOptionKeyValue=") +
                 QString::number(mapped) + u'\n');
    const std::optional<PickedChoice> ink = inkAt(mapped);
    if (!ink)
        return selectValue(Setting::InkToUse);
    writeConsole(QStringLiteral("inkToUseAction curChoiceName=") +
                 platform::described(ink->keyword) + u'\n');
    writeConsole(QStringLiteral("inkToUseAction curChoiceText=") + platform::described(ink->text) +
                 u'\n');
    storeStrings(Setting::InkToUse, ink->text, ink->keyword);
    offerTicket(Setting::InkToUse);
}

/// The choice at the mapped index; where the printer has fewer inks than the mapping assumes, the
/// one that the selected item itself carries; nothing, and an error record, when that fails too.
std::optional<KorPDEController2::PickedChoice> KorPDEController2::inkAt(int mappedIndex)
{
    PickedChoice ink = choiceAtIndex(Setting::InkToUse, mappedIndex);
    if (ink.keyword.isNull()) {
        ink.keyword = controls::keywordOfSelectedItem(ibInkToUse);
        ink.text = pdeTools->getOptionsChoice(ink.keyword, optionOf(Setting::InkToUse),
                                              ChoiceString::Text);
    }
    if (!ink.keyword.isNull() && !ink.text.isNull())
        return ink;
    LogErrorBody("-[KorPDEController2 inkToUseAction:]", __LINE__,
                 "the printer has no InkToUse choice at index %d", mappedIndex);
    return std::nullopt;
}

// Colour output -------------------------------------------------------------------------

void KorPDEController2::colorOutputAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 colorOutputAction:]");
    writeConsole(QStringLiteral("Entered colorOutputAction method"));
    if (!hasOption(Setting::ColorOutput))
        return;
    writeConsole(QStringLiteral("Entered colorOutputAction [pdeModel colorOutputOption] LOOP"));
    applyColorOutputPlan(Occasion::Action);
    takeInkFromPopUp();
    takeColorOutput();
    storeColorPreferencesDefault();
    offerTicket(Setting::ColorPreferences);
    const QPointer<KorPDEController2> self(this);
    customConstraintOSControl();
    if (!self) // the panel went while a conflict window was open
        return;
    for (const Setting setting : kOfferedAgain)
        offerTicket(setting);
}

/// The text is the pop-up's, the keyword the PPD's at the same index, without any mapping.
void KorPDEController2::takeInkFromPopUp()
{
    if (!hasOption(Setting::InkToUse))
        return;
    const int index = controls::indexOfSelectedItem(ibInkToUse);
    storeStrings(
        Setting::InkToUse, controls::titleOfSelectedItem(ibInkToUse),
        selectedItemFromIndex(index, row(Setting::InkToUse).keyword, ChoiceString::Keyword));
    offerTicket(Setting::InkToUse);
}

void KorPDEController2::takeColorOutput()
{
    const PickedChoice picked = pickedChoice(Setting::ColorOutput);
    writeConsole(QStringLiteral("colorOutput Understanding ") + platform::described(picked.text));
    writeConsole(QStringLiteral("colorOutput Understanding setColorOutputTicket=") +
                 platform::described(picked.keyword));
    storeStrings(Setting::ColorOutput, picked.text, picked.keyword);
    offerTicket(Setting::ColorOutput);
}

// Paper type and mirror -----------------------------------------------------------------

void KorPDEController2::paperTypeAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 paperTypeAction:]");
    if (!hasOption(Setting::MediaType))
        return;
    const PickedChoice before{pdeModel_->paperType(), pdeModel_->paperTypeTicket()};
    const PickedChoice picked = pickedChoice(Setting::MediaType);
    storeStrings(Setting::MediaType, picked.text, picked.keyword);
    followPaperTypeWithMirror();
    if (!offerTicket(Setting::MediaType))
        restorePaperType(before);
    else if (isMirrorSetByIronOn)
        offerTicket(Setting::Mirror);
    customConstraintOSControl();
}

void KorPDEController2::followPaperTypeWithMirror()
{
    MirrorSituation situation = mirrorSituation();
    situation.isMirrorInPrintSettings = pdeTools->getMirrorValueFromPrintSettings(mPrintSetting);
    const MirrorChange change = mirrorForNewPaperType(situation);
    if (change == MirrorChange::None)
        return;
    setMirror(change);
    isMirrorSetByIronOn = change == MirrorChange::On;
}

void KorPDEController2::restorePaperType(const PickedChoice &before)
{
    storeStrings(Setting::MediaType, before.text, before.keyword);
    selectValue(Setting::MediaType);
    if (isMirrorSetByIronOn)
        setMirror(MirrorChange::Off);
    isMirrorSetByIronOn = false;
}

void KorPDEController2::mirrorAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 mirrorAction:]");
    if (!hasOption(Setting::Mirror))
        return;
    isMirrorSetDuringPreset_ = false;
    const PickedChoice before{pdeModel_->mirror(), pdeModel_->mirrorTicket()};
    isMirrorManuallySet_ = controls::state(ibMIrror) == 1;
    storeMirrorWord(isMirrorManuallySet_ ? QStringLiteral("On") : QStringLiteral("Off"));
    if (!offerTicket(Setting::Mirror)) {
        storeStrings(Setting::Mirror, before.text, before.keyword);
        controls::setState(ibMIrror, mirrorStateAfterRefusal(before.keyword));
    }
    customConstraintOSControl();
}

// Threshold -----------------------------------------------------------------------------

void KorPDEController2::thresholdStepperAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 thresholdStepperAction:]");
    const QString number = QString::number(controls::integerValue(ibThresholdStepper));
    controls::setStringValue(ibThresholdTextFeild, number);
    storeStrings(Setting::Threshold, number, number);
    offerTicket(Setting::Threshold);
    writeConsole(QStringLiteral("[ibThresholdStepper intValue] is ") + number);
}

void KorPDEController2::controlTextDidBeginEditing(QLineEdit *)
{
    KV_TRACE("-[KorPDEController2 controlTextDidBeginEditing:]");
    beDelegateOfThresholdField();
    if (TextFieldEditing *editing = TextFieldEditing::of(ibThresholdTextFeild))
        editing->setFormatter(makeThresholdFormatter());
    controls::setIntegerValue(ibThresholdStepper, controls::integerValue(ibThresholdTextFeild));
    takeThresholdFromStepper();
}

/// Another field than the threshold's moves no stepper, but the stepper's value is taken all the
/// same.
void KorPDEController2::controlTextDidChange(QLineEdit *field)
{
    KV_TRACE("-[KorPDEController2 controlTextDidChange:]");
    if (field && field == ibThresholdTextFeild)
        controls::setIntegerValue(ibThresholdStepper, controls::integerValue(field));
    takeThresholdFromStepper();
}

void KorPDEController2::takeThresholdFromStepper()
{
    const QString number = QString::number(controls::integerValue(ibThresholdStepper));
    storeStrings(Setting::Threshold, number, number);
}

void KorPDEController2::beDelegateOfThresholdField()
{
    if (TextFieldEditing *editing = TextFieldEditing::of(ibThresholdTextFeild))
        editing->setDelegate(
            this, [this](QLineEdit *field) { controlTextDidBeginEditing(field); },
            [this](QLineEdit *field) { controlTextDidChange(field); });
}

// Advanced options ----------------------------------------------------------------------

void KorPDEController2::disclosureAction(QWidget *)
{
    KV_TRACE("-[KorPDEController2 disclosureAction:]");
    displayAdvancedOptions(controls::state(ibDisclosure) == 1);
    platform::NotificationCenter::defaultCenter().post(
        PDEControllerDisclosureButtonChangedNotification, ibDisclosure);
}
