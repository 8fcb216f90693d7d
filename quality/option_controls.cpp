// KorPDEController2: which control stands for which option, for diagnostics. Nothing here is
// traced.

#include "model/ppd_records.h"
#include "platform/controls/controls.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

using namespace quality;

namespace {

QStringList valuesOf(const Stepper *stepper)
{
    QStringList values;
    if (stepper)
        for (int value = stepper->minimum(); value <= stepper->maximum();
             value += stepper->increment())
            values.append(QString::number(value));
    return values;
}

} // namespace

std::vector<PDEOptionControl> KorPDEController2::optionControls() const
{
    std::vector<PDEOptionControl> list;
    for (const SettingRow &row : kSettings) {
        for (const QWidget *control : controlsOf(row.setting)) {
            const QStringList choices = choicesAt(row.setting, control);
            if (choices.isEmpty())
                continue;
            const bool isAdvanced = ibAdvancedView && ibAdvancedView->isAncestorOf(control);
            list.push_back({keyword(row.setting), control->objectName(), choices,
                            isAdvanced && ibDisclosure ? ibDisclosure->objectName() : QString()});
        }
    }
    return list;
}

/// Empty for a control that is missing, empty, or without an option behind it.
QStringList KorPDEController2::choicesAt(Setting setting, const QWidget *control) const
{
    QStringList choices;
    if (!control)
        return choices;
    if (control == boxOf(setting) && boxOption(setting))
        for (const int state : {0, 1})
            choices.append(choiceOfBox(setting, state));
    else if (control == popUpOf(setting) && hasOption(setting))
        for (int index = 0; index < popUpOf(setting)->count(); ++index)
            choices.append(choiceOfItem(setting, index));
    else if (setting == Setting::Threshold && hasOption(setting))
        choices = valuesOf(ibThresholdStepper);
    return choices;
}

/// What the setting's action takes: the PPD's choice at the item's index; of the inks the one at
/// the mapped index, else the item's own.
QString KorPDEController2::choiceOfItem(Setting setting, int index) const
{
    const bool isInk = setting == Setting::InkToUse;
    const int mapped = isInk ? mappedInkIndex(index, pdeModel_->colorOutputTicket()) : index;
    const QString choice =
        ppd::choiceAt(mLOcPPD, row(setting).keyword, mapped, mLocEncoding).keyword;
    return isInk && choice.isNull() ? popUpOf(setting)->itemData(index).toString() : choice;
}

/// What the setting's action takes: the PPD's choice of the box's word; of mirror the word itself.
QString KorPDEController2::choiceOfBox(Setting setting, int state) const
{
    const BoxWords words = row(setting).words;
    const char *word = state == 1 ? words.on : words.off;
    return setting == Setting::Mirror ? QString::fromLatin1(word)
                                      : ppd::choiceKeyword(boxOption(setting), word);
}

/// Dry time has an option of its own for its box.
ppd_option_t *KorPDEController2::boxOption(Setting setting) const
{
    return setting == Setting::DupDryTime ? pdeModel_->dryTimeCheckBoxOption() : optionOf(setting);
}
