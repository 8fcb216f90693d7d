// KorPDEController2: what it reports about a printer that differs from what its rules assume.

#include "diag/debug_log.h"
#include "model/ppd_records.h"
#include "platform/strings.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

using namespace quality;

namespace {

ChoiceList choicesOf(const ppd_option_t *option)
{
    return {ppd::choiceKeywords(option), ppd::choiceTexts(option)};
}

void reportMissing(Setting setting)
{
    LogErrorBody("-[KorPDEController2 initWithPPD:encoding:printSetting:andPageFormat:]", __LINE__,
                 "the printer lacks the option %s", row(setting).keyword);
}

void report(const std::optional<UnusualChoice> &unusual)
{
    if (unusual)
        LogErrorBody("-[KorPDEController2 initWithPPD:encoding:printSetting:andPageFormat:]",
                     __LINE__, "option %s: the choice %s is not what the panel's rules assume",
                     qUtf8Printable(unusual->option),
                     qUtf8Printable(platform::described(unusual->choice)));
}

} // namespace

/// One error record for each option whose absence or choices the rules do not expect. The rules
/// stay as they are.
void KorPDEController2::reportUnusualPPD() const
{
    for (const RowPlan &plan : requiredRowsPlan(optionsOfPrinter()))
        if (plan.fate == RowFate::Hidden)
            reportMissing(plan.row);
    for (const Setting setting :
         {Setting::Mirror, Setting::TonerSave, Setting::ICCTestChartProcess})
        if (hasOption(setting))
            report(unusualSwitch(keyword(setting), choicesOf(optionOf(setting))));
    if (hasOption(Setting::InkToUse))
        report(unusualInk(choicesOf(optionOf(Setting::InkToUse))));
    if (hasOption(Setting::ColorOutput))
        report(unusualColorOutput(choicesOf(optionOf(Setting::ColorOutput)), hostGrayscale()));
    reportUnusualLabels();
}

/// Labels that are compared with a fixed word: mirror's and toner save's "Off", halftone's
/// "Dither".
void KorPDEController2::reportUnusualLabels() const
{
    for (const Setting setting : {Setting::Mirror, Setting::TonerSave, Setting::HalftoneLevel})
        if (hasOption(setting))
            report(unusualLabel(keyword(setting), defaultChoice(setting), defaultChoice(setting),
                                choicesOf(optionOf(setting))));
}
