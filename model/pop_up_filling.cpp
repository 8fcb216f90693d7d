#include "model/pop_up_filling.h"

#include "diag/trace.h"
#include "model/ppd_records.h"
#include "platform/controls/controls.h"
#include "platform/strings.h"

#include <span>

namespace {

std::span<const ppd_choice_t> choicesOf(ppd_file_t *ppd, const char *key)
{
    return ppd::choices(ppd && key ? ppdFindOption(ppd, key) : nullptr);
}

/// Titles are decoded with the PPD's encoding, keywords as ASCII; a keyword that is not ASCII is
/// null.
void addChoice(QComboBox *popUp, const ppd_choice_t &choice, unsigned long encoding)
{
    controls::addItem(popUp, platform::decoded(choice.text, encoding),
                      platform::decoded(choice.choice, platform::encoding::ascii));
}

} // namespace

void addItemsFromPPD(QComboBox *popUp, ppd_file_t *ppd, const char *key, unsigned long encoding)
{
    KV_TRACE("-[NSPopUpButton(KVExtendedPopUpButton) addItemsFromPPD:forKey:encoding:]");
    controls::removeAllItems(popUp);
    for (const ppd_choice_t &choice : choicesOf(ppd, key))
        addChoice(popUp, choice, encoding);
}

void addItemsFromPPD(QComboBox *popUp, ppd_file_t *ppd, const char *key, unsigned long encoding,
                     const QString &exclusion)
{
    KV_TRACE("-[NSPopUpButton(KVExtendedPopUpButton) "
             "addItemsFromPPD:forKey:encoding:exceptThisOption:]");
    controls::removeAllItems(popUp);
    if (exclusion.isNull())
        return;
    for (const ppd_choice_t &choice : choicesOf(ppd, key)) {
        if (!platform::containsText(exclusion, platform::decoded(choice.choice, encoding)))
            addChoice(popUp, choice, encoding);
    }
}
