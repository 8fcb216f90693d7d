#include "dialog/batch/assignment.h"

#include "dialog/batch/job_setting.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/replay/nearest_name.h"

namespace dialog::batch {
namespace {

/// Null for a choice of the printer's.
QString choiceProblem(const Choice &wanted, const PpdDocument &printer)
{
    const QStringList choices = printer.choices(wanted.option);
    if (choices.contains(wanted.choice))
        return {};
    for (const QString &keyword : choices) {
        if (printer.choiceText({wanted.option, keyword}) == wanted.choice)
            return QStringLiteral("%1: \"%2\" is the text of a choice; write %1=%3")
                .arg(wanted.option, wanted.choice, keyword);
    }
    const QString nearest = replay::nearestName(wanted.choice, choices);
    return wanted.option + QStringLiteral(": ") +
           replay::noSuchName(QStringLiteral("choice"), wanted.choice, choices) +
           (nearest.isNull() ? QStringLiteral("; there are ") + choices.join(QStringLiteral(", "))
                             : QString());
}

std::variant<Assignment, Mistake> jobSettingAssignment(const Choice &wanted)
{
    const QString problem = jobSettingProblem(wanted);
    if (!problem.isNull())
        return Mistake{problem};
    return Assignment{inStandardForm(wanted), Assignment::Target::JobSetting};
}

std::variant<Assignment, Mistake> choiceAssignment(const Choice &wanted, const PpdDocument &printer)
{
    const QString problem = choiceProblem(wanted, printer);
    if (!problem.isNull())
        return Mistake{problem};
    return Assignment{wanted, Assignment::Target::PrinterOption};
}

} // namespace

std::variant<Choice, Mistake> readAssignment(const QString &word)
{
    const qsizetype equals = word.indexOf(u'=');
    if (equals < 0)
        return Mistake{
            QStringLiteral("--set %1 has no \"=\"; write it as OPTION=CHOICE").arg(word)};
    if (equals == 0)
        return Mistake{QStringLiteral("--set %1 names no option before the \"=\"").arg(word)};
    if (equals + 1 == word.size())
        return Mistake{QStringLiteral("--set %1 names no choice after the \"=\"").arg(word)};
    return Choice{word.left(equals), word.mid(equals + 1)};
}

std::variant<Assignment, Mistake> assignmentOf(const Choice &wanted, const PpdDocument &printer)
{
    const QStringList options = printer.options();
    if (options.contains(wanted.option))
        return choiceAssignment(wanted, printer);
    if (isJobSetting(wanted.option))
        return jobSettingAssignment(wanted);
    return Mistake{
        replay::noSuchName(QStringLiteral("option"), wanted.option, options + jobSettingNames())};
}

QString written(const Choice &choice)
{
    return choice.option + u'=' + choice.choice;
}

} // namespace dialog::batch
