#pragma once

#include "model/pde_model.h"
#include "model/pde_tools.h"
#include "platform/strings.h"

#include <algorithm>
#include <cstddef>

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

/// The row of a table of settings whose keyword is exactly that; null for null and unknown ones.
template <class Table>
[[nodiscard]] auto rowOfKeyword(const Table &table, const QString &keyword) -> const
    typename Table::value_type *
{
    const auto found = std::find_if(table.begin(), table.end(), [&keyword](const auto &row) {
        return platform::isEqual(keyword, QString::fromLatin1(row.keyword));
    });
    return found == table.end() ? nullptr : &*found;
}

/// Whether the rows of a table of settings stand in the order of their settings.
template <class Table>
[[nodiscard]] constexpr bool areRowsInOrder(const Table &table)
{
    for (std::size_t i = 0; i < table.size(); ++i)
        if (static_cast<std::size_t>(table[i].setting) != i)
            return false;
    return true;
}

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
