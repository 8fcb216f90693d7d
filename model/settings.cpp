#include "model/settings.h"

void storeChoice(PDEModel2 &model, const SettingSlots &slots, const PDETools2 &tools,
                 const QString &choice)
{
    ppd_option_t *option = (model.*slots.option)();
    (model.*slots.setValue)(tools.getOptionsChoice(choice, option, ChoiceString::Text));
    (model.*slots.setTicket)(tools.getOptionsChoice(choice, option, ChoiceString::Keyword));
}

void storeMarkedChoice(PDEModel2 &model, const SettingSlots &slots, const PDETools2 &tools,
                       const QString &keyword, ppd_file_t *ppd)
{
    const QString text = tools.getPPDMarkedChoice(keyword, ppd, ChoiceString::Text);
    if (text.isNull())
        return;
    (model.*slots.setValue)(text);
    (model.*slots.setTicket)(tools.getPPDMarkedChoice(keyword, ppd, ChoiceString::Keyword));
}

void copyTicketed(PDEModel2 &to, const PDEModel2 &from, const SettingSlots &slots)
{
    const QString ticket = (from.*slots.ticket)();
    if (ticket.isNull())
        return;
    (to.*slots.setValue)((from.*slots.value)());
    (to.*slots.setTicket)(ticket);
}
