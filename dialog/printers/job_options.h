#pragma once

#include "dialog/printers/choice.h"

#include <QString>
#include <QVariant>

#include <map>
#include <utility>
#include <vector>

namespace dialog {

/// What a printer receives: option names and values, in order, names unique but for case.
using JobOptions = std::vector<std::pair<QString, QString>>;

/// Options of a printer with their choices, by keyword.
using OptionChoices = std::map<QString, QStringList>;

/// What the job's options are made of.
struct JobSettings
{
    Choices defaults; ///< of the printer
    Choices marks;    ///< as they stand when the job is made
    QStringList
        chosen; ///< options that a person chose, to be sent even where they equal the default
    std::map<QString, QVariant> printSettings;
    QString paperName;               ///< null: the marked page size stands
    OptionChoices counterparts = {}; ///< the printer's, of standard job options
};

/// The marks that differ from the defaults or were chosen, then the print settings, each meaning
/// once. A print setting replaces the mark of an option that has the same name but for case, or
/// the same meaning; the printer's own words are sent for it where the printer has them.
///
/// Mirror is on for the text "true" only; any other value of it sends nothing and replaces nothing.
/// What is set for the panels alone is not sent, but several columns without "number-up" send the
/// smallest one that has them.
[[nodiscard]] JobOptions jobOptions(const JobSettings &settings);

/// Marks that a print setting replaces in the job by something else.
[[nodiscard]] Choices replacedMarks(const JobSettings &settings);

} // namespace dialog
