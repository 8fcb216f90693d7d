// KorPDEController2: the first filling of the controls, and their synchronisation with the model.

#include "diag/trace.h"
#include "model/pop_up_filling.h"
#include "platform/bundle.h"
#include "platform/console.h"
#include "platform/controls/controls.h"
#include "platform/strings.h"
#include "quality/geometry.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

using namespace quality;
using platform::described;
using platform::isEqual;
using platform::writeConsole;

namespace {

const QString kOn = QStringLiteral("On");
const QString kOff = QStringLiteral("Off");

/// The threshold that the panel shows wherever it does not follow the model.
constexpr int kNeutralThreshold = 3;

} // namespace

/// Not translated in any language: PPD labels are compared with it.
QString KorPDEController2::hostGrayscale()
{
    return Bundle::mainBundle()->localizedString(QStringLiteral("Grayscale"), QStringLiteral(""));
}

PopUpButton *KorPDEController2::popUpOf(Setting setting) const
{
    const auto popUp = row(setting).popUp;
    return popUp ? (this->*popUp).data() : nullptr;
}

QCheckBox *KorPDEController2::boxOf(Setting setting) const
{
    const auto box = row(setting).box;
    return box ? (this->*box).data() : nullptr;
}

/// The controls of a setting's row, without its label. Missing ones are null.
std::vector<QWidget *> KorPDEController2::controlsOf(Setting setting) const
{
    if (setting == Setting::Threshold)
        return {ibThresholdStepper, ibThresholdTextFeild};
    return {popUpOf(setting), boxOf(setting)};
}

// Filling -------------------------------------------------------------------------------

void KorPDEController2::initializeControls()
{
    KV_TRACE("-[KorPDEController2 initializeControls]");
    if (!doneInitialized)
        fillControls();
    doneInitialized = true;
}

void KorPDEController2::fillControls()
{
    for (const Setting setting :
         {Setting::PrintQuality, Setting::MediaType, Setting::ColorPreferences})
        fillPopUp(setting);
    fillInkToUse(kBlackModeInks);
    controls::setState(ibUseICCTestChart, isDefaultOff(Setting::ICCTestChartProcess) ? 0 : 1);
    initializeTonerSave();
    initializePaperSource();
    fillPopUp(Setting::ColorOutput);
    initializeThreshold();
    initializeHalftone();
    initializeMirror();
    initializeSharpen();
    projectFrames(ibPDEView);
}

void KorPDEController2::fillPopUp(Setting setting)
{
    addItemsFromPPD(popUpOf(setting), mLOcPPD, row(setting).keyword, mLocEncoding);
}

void KorPDEController2::fillInkToUse(const QString &exclusion)
{
    addItemsFromPPD(ibInkToUse, mLOcPPD, row(Setting::InkToUse).keyword, mLocEncoding, exclusion);
}

bool KorPDEController2::isDefaultOff(Setting setting) const
{
    return isEqual(pdeTools->getOptionsDefault(keyword(setting), mLOcPPD), kOff);
}

/// Deliberately the inverse of the PPD's default; updateControls() follows with the model's.
void KorPDEController2::initializeTonerSave()
{
    if (hasOption(Setting::TonerSave))
        controls::setState(ibTonerSave, isDefaultOff(Setting::TonerSave) ? 1 : 0);
}

void KorPDEController2::initializePaperSource()
{
    if (!hasOption(Setting::PaperSource) || !hasTray2Support)
        return;
    controls::setHidden(ibPaperSource, false);
    controls::setHidden(ibPaperSourceLabel, false);
    fillPopUp(Setting::PaperSource);
}

void KorPDEController2::initializeThreshold()
{
    if (hasOption(Setting::Threshold) &&
        isEqual(controls::titleOfSelectedItem(ibColorOutput), hostGrayscale()))
        for (QWidget *control : controlsOf(Setting::Threshold))
            controls::setEnabled(control, false);
}

void KorPDEController2::initializeHalftone()
{
    if (!hasOption(Setting::HalftoneLevel))
        return;
    fillPopUp(Setting::HalftoneLevel);
    controls::selectItemWithTitle(ibHalftone, defaultChoice(Setting::HalftoneLevel));
}

/// From 10.6 on mirror belongs to the host.
void KorPDEController2::initializeMirror()
{
    if (mirrorPlace(mOSVersion) == MirrorPlace::Model)
        return controls::setState(ibMIrror, isDefaultOff(Setting::Mirror) ? 0 : 1);
    controls::setHidden(ibMIrror, true);
    controls::setFrameSize(ibHeaderView, headerViewRect.size());
}

/// The default's keyword is used as a title: where its label differs, nothing is selected.
void KorPDEController2::initializeSharpen()
{
    fillPopUp(Setting::Sharpen);
    controls::selectItemWithTitle(ibSharpen,
                                  pdeTools->getOptionsDefault(keyword(Setting::Sharpen), mLOcPPD));
}

// The whole panel -----------------------------------------------------------------------

void KorPDEController2::updateControls()
{
    KV_TRACE("-[KorPDEController2 updateControls]");
    const int mirrorState = controls::state(ibMIrror);
    selectValueIfDifferent(Setting::PrintQuality, WhenNull::Select);
    selectValueIfDifferent(Setting::ColorPreferences, WhenNull::Leave);
    selectValueIfDifferent(Setting::ColorOutput, WhenNull::Select);
    tickOnTicket(Setting::ICCTestChartProcess);
    applyColorOutputPlan(Occasion::Synchronisation);
    selectValueIfDifferent(Setting::InkToUse, WhenNull::Leave);
    if (selectValueIfDifferent(Setting::MediaType, WhenNull::Select))
        updateMirrorValue();
    if (hasOption(Setting::PaperSource) && hasTray2Support)
        selectValueIfDifferent(Setting::PaperSource, WhenNull::Select);
    if (mirrorPlace(mOSVersion) == MirrorPlace::Model)
        synchronizeMirrorBox(mirrorState);
    selectValueIfDifferent(Setting::Sharpen, WhenNull::Leave);
}

/// True when the pop-up showed another title than the model's value.
bool KorPDEController2::selectValueIfDifferent(Setting setting, WhenNull whenNull)
{
    const QString value = valueOf(setting);
    if (isEqual(value, controls::titleOfSelectedItem(popUpOf(setting))) ||
        (whenNull == WhenNull::Leave && value.isNull()))
        return false;
    selectValue(setting);
    return true;
}

void KorPDEController2::selectValue(Setting setting)
{
    controls::selectItemWithTitle(popUpOf(setting), valueOf(setting));
}

void KorPDEController2::tickOnTicket(Setting setting)
{
    controls::setState(boxOf(setting), isEqual(ticketOf(setting), kOn) ? 1 : 0);
}

void KorPDEController2::synchronizeMirrorBox(int stateBefore)
{
    const std::optional<int> state = mirrorStateToShow(stateBefore, pdeModel_->mirrorTicket());
    if (!state)
        return;
    isMirrorManuallySet_ = false;
    controls::setState(ibMIrror, *state);
}

// Colour output's hold over the others --------------------------------------------------

void KorPDEController2::applyColorOutputPlan(Occasion occasion)
{
    const ColorOutputSituation situation{
        .occasion = occasion,
        .index = controls::indexOfSelectedItem(ibColorOutput),
        .title = controls::titleOfSelectedItem(ibColorOutput),
        .grayscale = hostGrayscale(),
        .options = optionsOfPrinter(),
    };
    for (const Interlock &interlock : colorOutputPlan(situation))
        apply(interlock);
}

void KorPDEController2::apply(const Interlock &interlock)
{
    const Setting setting = interlock.control;
    switch (interlock.effect) {
    case Effect::Enable:
        return setControlsEnabled(setting, true);
    case Effect::Disable:
        return setControlsEnabled(setting, false);
    case Effect::SelectFirst:
        return controls::selectItemAtIndex(popUpOf(setting), 0);
    case Effect::RefillForColor:
        return fillInkToUse(kBlackModeInks);
    case Effect::RefillForBlack:
        return fillInkToUse(kColorModeInks);
    case Effect::Untick:
        return controls::setState(boxOf(setting), 0);
    case Effect::StoreOff:
        return storeSetting(setting, kOff);
    case Effect::StoreFromState:
        return storeSetting(setting, controls::state(boxOf(setting)) == 1 ? kOn : kOff);
    case Effect::ShowModel:
        return controls::setState(boxOf(setting), isEqual(valueOf(setting), kOff) ? 0 : 1);
    case Effect::ShowNeutral:
        return showNeutralThreshold();
    case Effect::ReportMissing:
        return writeConsole(
            QStringLiteral("KorPDEController2 - colorOutputAction - THRESHOLD OPTION IS NULL"));
    }
}

void KorPDEController2::setControlsEnabled(Setting setting, bool enabled)
{
    for (QWidget *control : controlsOf(setting))
        controls::setEnabled(control, enabled);
}

void KorPDEController2::showNeutralThreshold()
{
    controls::setIntegerValue(ibThresholdStepper, kNeutralThreshold);
    controls::setStringValue(ibThresholdTextFeild, QString::number(kNeutralThreshold));
}

// Mirror --------------------------------------------------------------------------------

MirrorSituation KorPDEController2::mirrorSituation() const
{
    return {
        .place = mirrorPlace(mOSVersion),
        .paperTypeTicket = pdeModel_->paperTypeTicket(),
        .mirror = pdeModel_->mirror(),
        .isMirrorSetByIronOn = isMirrorSetByIronOn,
        .isMirrorManuallySet = isMirrorManuallySet_,
        .isMirrorSetDuringPreset = isMirrorSetDuringPreset_,
    };
}

void KorPDEController2::updateMirrorValue()
{
    KV_TRACE("-[KorPDEController2 updateMirrorValue]");
    writeMirror(mirrorToKeep(mirrorSituation()));
}

/// Where mirror lives; the check box stays as it is.
void KorPDEController2::writeMirror(MirrorChange change)
{
    if (change == MirrorChange::None)
        return;
    const bool isOn = change == MirrorChange::On;
    if (mirrorPlace(mOSVersion) == MirrorPlace::PrintSettings)
        pdeTools->setMirrorValueFromPrintSettings(mPrintSetting, isOn);
    else
        storeMirrorWord(isOn ? kOn : kOff);
}

/// Where mirror lives, and in the check box where that shows it.
void KorPDEController2::setMirror(MirrorChange change)
{
    writeMirror(change);
    if (mirrorPlace(mOSVersion) == MirrorPlace::Model)
        controls::setState(ibMIrror, change == MirrorChange::On ? 1 : 0);
}

/// The word itself, as value and as ticket, whatever the printer's choices are called.
void KorPDEController2::storeMirrorWord(const QString &word)
{
    storeStrings(Setting::Mirror, word, word);
}

// One option ----------------------------------------------------------------------------

void KorPDEController2::updateControl(const QString &name)
{
    KV_TRACE("-[KorPDEController2 updateControl:]");
    if (const std::optional<Setting> setting = settingOf(name))
        follow(*setting);
}

/// Shows one setting's value or ticket in its control. The threshold always shows 3, in the field
/// alone; dry time follows nothing.
void KorPDEController2::follow(Setting setting)
{
    switch (setting) {
    case Setting::DupDryTime:
        return;
    case Setting::Mirror:
    case Setting::ICCTestChartProcess:
        return tickOnTicket(setting);
    case Setting::TonerSave:
        writeConsole(QStringLiteral("[pdeModel tonerSaveTicket ] is ") +
                     described(pdeModel_->tonerSaveTicket()));
        return tickOnTicket(setting);
    case Setting::Threshold:
        writeConsole(QStringLiteral("[pdeModel thresoldTicket ] is ") +
                     described(pdeModel_->thresoldTicket()));
        return controls::setStringValue(ibThresholdTextFeild, QString::number(kNeutralThreshold));
    case Setting::MediaType:
        selectValue(setting);
        return undoIronOnMirror();
    default:
        return selectValue(setting);
    }
}

/// The paper type changed elsewhere: what iron-on paper had switched on goes off again.
void KorPDEController2::undoIronOnMirror()
{
    if (!isMirrorSetByIronOn)
        return;
    setMirror(MirrorChange::Off);
    offerTicket(Setting::Mirror);
    isMirrorSetByIronOn = false;
}
