#pragma once

#include "dialog/printers/choice.h"

#include <QString>

#include <variant>

namespace dialog {
class PpdDocument;
}

namespace dialog::batch {

/// What is wrong with what was written, in one line.
struct Mistake
{
    QString message;
};

/// What a word asks for: a choice of the printer's, or a value of a job setting.
struct Assignment
{
    enum class Target { PrinterOption, JobSetting };

    Choice wanted;
    Target target = Target::PrinterOption;

    bool operator==(const Assignment &) const = default;
};

/// "OPTION=CHOICE"; the choice is what follows the first "=".
[[nodiscard]] std::variant<Choice, Mistake> readAssignment(const QString &word);

/// An option of the printer, by its exact keyword, else a job setting by its name.
[[nodiscard]] std::variant<Assignment, Mistake> assignmentOf(const Choice &wanted,
                                                             const PpdDocument &printer);

/// "OPTION=CHOICE".
[[nodiscard]] QString written(const Choice &choice);

} // namespace dialog::batch
