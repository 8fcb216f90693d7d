// KorPDEController2: what it reports about a printer that differs from what its rules assume.

#include "quality/unusual_printers.h"
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

std::optional<UnusualChoice> quality::unusualChoice(Setting setting, const ChoiceList &choices,
                                                    const QString &grayscale)
{
    const QString option = keyword(setting);
    const QString label = defaultChoice(setting);
    switch (setting) {
    case Setting::InkToUse:
        return unusualInk(choices);
    case Setting::ColorOutput:
        return unusualColorOutput(choices, grayscale);
    case Setting::HalftoneLevel:
        return unusualLabel(option, label, label, choices);
    case Setting::ICCTestChartProcess:
        return unusualSwitch(option, choices);
    default:
        const auto unusual = unusualSwitch(option, choices);
        return unusual ? unusual : unusualLabel(option, label, label, choices);
    }
}

/// One error record for each option whose absence or choices the rules do not expect. The rules
/// stay as they are.
void KorPDEController2::reportUnusualPPD() const
{
    for (const RowPlan &plan : requiredRowsPlan(optionsOfPrinter()))
        if (plan.fate == RowFate::Hidden)
            reportMissing(plan.row);
    for (const Setting setting : kWatchedSettings)
        if (hasOption(setting))
            report(unusualChoice(setting, choicesOf(optionOf(setting)), hostGrayscale()));
}
