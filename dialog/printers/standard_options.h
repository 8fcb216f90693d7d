#pragma once

#include "dialog/printers/job_options.h"

namespace dialog {

class PpdDocument;

/// What a job option comes to at one printer.
struct Meaning
{
    JobOptions said;       ///< options to send in its place, or itself
    QStringList standsFor; ///< the printer's own options of the same meaning
};

/// Options of the printer by which standard job options can be said, with their choices, the
/// default first.
[[nodiscard]] OptionChoices standardCounterparts(const PpdDocument &printer);

/// The printer's own option for a standard one: "Duplex" for "sides", the page size for "media".
/// Null without one.
[[nodiscard]] QString counterpartOf(const QString &standard, const OptionChoices &counterparts);

/// A standard job option ("sides", "media", ...) in the words of the printer, whose counterparts
/// are given. Where the printer has the option without such a choice, the standard one stays, and
/// still stands for the printer's. Any other option means itself.
[[nodiscard]] Meaning meaningOf(const QString &name, const QString &value,
                                const OptionChoices &counterparts);

/// Print settings without those that would stand for an option of the printer, which so keeps the
/// last word.
[[nodiscard]] std::map<QString, QVariant>
settingsWithoutStandIns(std::map<QString, QVariant> settings, const QString &option,
                        const OptionChoices &counterparts);

/// Names that are equal but for case are one option to a print server.
[[nodiscard]] bool isSameOption(const QString &a, const QString &b);

/// How several pages share a sheet.
struct SharedSheet
{
    int pages;
    int columns; ///< with the sheet turned so that it has no fewer columns than rows
};

// clang-format off
inline constexpr SharedSheet kSharedSheets[] = {
    {1, 1}, {2, 2}, {4, 2}, {6, 3}, {9, 3}, {16, 4},
};
// clang-format on

/// The print setting by which the panels know of shared sheets. Never sent itself.
[[nodiscard]] QString columnsKey();

} // namespace dialog
