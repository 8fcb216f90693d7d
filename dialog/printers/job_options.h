#pragma once

#include "dialog/printers/choice.h"

#include <QString>
#include <QVariant>

#include <map>
#include <utility>
#include <vector>

namespace dialog {

class PpdDocument;

/// What a printer receives: option names and values, in order, names unique but for case.
using JobOptions = std::vector<std::pair<QString, QString>>;

/// What the job's options are made of.
struct JobSettings
{
    Choices defaults; ///< of the printer
    Choices marks;    ///< as they stand when the job is made
    QStringList
        chosen; ///< options that a person chose, to be sent even where they equal the default
    std::map<QString, QVariant> printSettings;
    QString paperName; ///< null: the marked page size stands
};

/// The marks that differ from the defaults or were chosen, then the print settings. A print setting
/// replaces a mark whose option has the same name but for case: to the printer both are one option.
/// Mirror is on for the text "true" only; any other value of it sends nothing and replaces nothing.
[[nodiscard]] JobOptions jobOptions(const JobSettings &settings);

/// Marks that a print setting replaces in the job.
[[nodiscard]] Choices replacedMarks(const JobSettings &settings);

/// Name and reason of the first option that would get lost on its way to the printer without an
/// error from anybody; null when every option will arrive.
[[nodiscard]] QString unsendableReason(const JobOptions &options);

} // namespace dialog
