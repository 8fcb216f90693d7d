// KorPDEController2: what the PPD has marked, taken over into the model.

#include "diag/trace.h"
#include "platform/controls/controls.h"
#include "platform/strings.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

using namespace quality;

namespace {

// clang-format off
/// Order in which the marked choices are collected; the threshold comes from its text field.
constexpr Setting kMarkedOrder[] = {
    Setting::MediaType,   Setting::PrintQuality, Setting::ColorPreferences, Setting::InkToUse,
    Setting::PaperSource, Setting::ColorOutput,  Setting::Threshold,        Setting::Mirror,
    Setting::Sharpen,     Setting::DupDryTime,   Setting::ICCTestChartProcess,
    Setting::TonerSave,   Setting::HalftoneLevel,
};
// clang-format on
static_assert(std::size(kMarkedOrder) == kSettingCount);

} // namespace

void KorPDEController2::processMarkedPPDChoices()
{
    KV_TRACE("-[KorPDEController2 processMarkedPPDChoices]");
    updatePDEModelwithMarkedChoices(findMarkedChoicesinPPD());
    updateControls();
}

PDEModel2 KorPDEController2::findMarkedChoicesinPPD()
{
    KV_TRACE("-[KorPDEController2 findMarkedChoicesinPPD]");
    PDEModel2 marked;
    for (const Setting setting : kMarkedOrder) {
        if (setting != Setting::Threshold)
            storeMarkedChoice(marked, row(setting).slots, *pdeTools, keyword(setting), mLOcPPD);
        else if (const QString text = controls::stringValue(ibThresholdTextFeild); !text.isNull()) {
            marked.setThreshold(text);
            marked.setThresholdTicket(text);
        }
    }
    return marked;
}

void KorPDEController2::updatePDEModelwithMarkedChoices(const PDEModel2 &marked)
{
    KV_TRACE("-[KorPDEController2 updatePDEModelwithMarkedChoices:]");
    const auto takeOver = [&](Setting setting) {
        copyTicketed(*pdeModel_, marked, row(setting).slots);
    };
    takeOver(Setting::PrintQuality);
    takeOverColorPreferences(marked);
    takeOverInkToUse(marked);
    takeOver(Setting::MediaType);
    takeOver(Setting::PaperSource);
    takeOverColorOutput(marked);
    takeOverMirror(marked);
    for (const Setting setting :
         {Setting::Sharpen, Setting::DupDryTime, Setting::ICCTestChartProcess, Setting::TonerSave,
          Setting::HalftoneLevel, Setting::Threshold})
        takeOver(setting);
}

/// Tested by its value; its ticket is deliberately the marked print quality's.
void KorPDEController2::takeOverColorPreferences(const PDEModel2 &marked)
{
    if (!marked.colorPreferences().isNull())
        storeStrings(Setting::ColorPreferences, marked.colorPreferences(),
                     marked.printQualityTicket());
}

/// Tested by its value.
void KorPDEController2::takeOverInkToUse(const PDEModel2 &marked)
{
    if (marked.inkToUse().isNull())
        return;
    fillInkToUse(kBlackModeInks);
    storeStrings(Setting::InkToUse, marked.inkToUse(), marked.inkToUseTicket());
}

void KorPDEController2::takeOverColorOutput(const PDEModel2 &marked)
{
    if (marked.colorOutputTicket().isNull())
        return;
    copyTicketed(*pdeModel_, marked, row(Setting::ColorOutput).slots);
    const bool isColor = platform::isEqual(marked.colorOutput(), QStringLiteral("Color"));
    controls::setState(ibUseICCTestChart, isColor ? 1 : 0);
    controls::setEnabled(ibColorPreferences, isColor);
    controls::setEnabled(ibUseICCTestChart, isColor);
}

/// A PPD without a marked mirror choice resets mirror.
void KorPDEController2::takeOverMirror(const PDEModel2 &marked)
{
    if (marked.mirrorTicket().isNull())
        return storeMirrorWord(QStringLiteral("Off"));
    copyTicketed(*pdeModel_, marked, row(Setting::Mirror).slots);
    isMirrorSetDuringPreset_ = platform::isEqual(pdeModel_->mirrorTicket(), QStringLiteral("On"));
}
