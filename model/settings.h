#pragma once

#include "model/pde_model.h"
#include "model/pde_tools.h"

/// The model slots of one setting, as members to call: what the panels' tables of settings are made
/// of, and what both controllers do with them.
struct SettingSlots
{
    using OptionGetter = ppd_option_t *(PDEModel2::*)() const;
    using OptionSetter = void (PDEModel2::*)(ppd_option_t *);
    using StringGetter = QString (PDEModel2::*)() const;
    using StringSetter = void (PDEModel2::*)(const QString &);

    OptionGetter option;
    OptionSetter setOption;
    StringGetter value;
    StringSetter setValue;
    StringGetter ticket;
    StringSetter setTicket;
};

/// Sets the setting's value to the text and its ticket to the keyword of that choice of the
/// setting's own option; both become null when there is no such option or choice.
void storeChoice(PDEModel2 &model, const SettingSlots &slots, const PDETools2 &tools,
                 const QString &choice);

/// Sets value and ticket of the choice that the PPD has marked for the keyword; leaves both alone
/// when none is marked.
void storeMarkedChoice(PDEModel2 &model, const SettingSlots &slots, const PDETools2 &tools,
                       const QString &keyword, ppd_file_t *ppd);

/// Copies value and ticket when @p from has a ticket.
void copyTicketed(PDEModel2 &to, const PDEModel2 &from, const SettingSlots &slots);
