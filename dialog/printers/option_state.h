#pragma once

#include "dialog/printers/constraint_table.h"
#include "dialog/printers/option_groups.h"

#include <map>

namespace dialog {

/// What holds of one option at one moment.
struct OptionState
{
    QStringList marked; ///< keywords, in the order of the choices
    /// Choices that cannot stand beside what is marked of other options, with the marks in their
    /// way.
    std::map<QString, Choices> forbidden = {};
    bool isDefault = true;

    bool operator==(const OptionState &) const = default;
};

[[nodiscard]] OptionState stateOf(const PrinterOption &option, const MarkTable &marks,
                                  const ConstraintTable &rules);

} // namespace dialog
