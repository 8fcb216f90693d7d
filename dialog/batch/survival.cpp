#include "dialog/batch/survival.h"

#include "dialog/printers/standard_options.h"

#include <algorithm>

namespace dialog::batch {
namespace {

using Target = Assignment::Target;

struct Standing
{
    QString value;  ///< null without any
    QString reason; ///< why another setting stands in its place; null where none does
};

/// What the job says of an option that a print setting replaces.
Standing replacement(const QString &option, const JobSettings &job)
{
    for (const auto &[name, value] : jobOptions(job)) {
        if (name == option)
            return {value, QStringLiteral("a job setting of the same meaning takes its place")};
        if (isSameOption(name, option))
            return {written({name, value}),
                    QStringLiteral("the job setting %1 takes its place").arg(name)};
    }
    return {QString(), QStringLiteral("a job setting of the same meaning takes its place")};
}

Standing standingMark(const QString &option, const JobSettings &job)
{
    const auto isOfOption = [&](const Choice &mark) { return mark.option == option; };
    const Choices replaced = replacedMarks(job);
    if (std::any_of(replaced.begin(), replaced.end(), isOfOption))
        return replacement(option, job);
    const auto found = std::find_if(job.marks.begin(), job.marks.end(), isOfOption);
    return {found == job.marks.end() ? QString() : found->choice, QString()};
}

Standing standing(const Assignment &assignment, const JobSettings &job)
{
    const QString &option = assignment.wanted.option;
    if (assignment.target == Target::PrinterOption)
        return standingMark(option, job);
    const auto found = job.printSettings.find(option);
    return {found == job.printSettings.end() ? QString() : found->second.toString(), QString()};
}

QString refusalReason(const OfferOutcome &offer)
{
    return offer.inTheWay.empty()
               ? QStringLiteral("the dialog refused it")
               : QStringLiteral("%1 forbids it").arg(written(offer.inTheWay.front()));
}

QString causeReason(const Happening &cause, const std::vector<Assignment> &assignments)
{
    if (cause.during == kWhileCommitting)
        return QStringLiteral("the panels hand that over");
    const Choice &by = assignments[static_cast<std::size_t>(cause.during)].wanted;
    return by.option == cause.offer.offered.option
               ? QStringLiteral("the panel takes that for it")
               : QStringLiteral("%1 brings that about").arg(written(by));
}

bool isAccepted(const Happening &happening)
{
    return happening.offer.verdict == OfferVerdict::Accepted;
}

/// The last happening of that kind; null without one.
template <class Matches>
const Happening *lastOf(const std::vector<Happening> &course, const Matches &matches)
{
    const auto found = std::find_if(course.rbegin(), course.rend(), matches);
    return found == course.rend() ? nullptr : &*found;
}

/// The refusal of what was asked for, else what set the value that stands; what the panels hand
/// over at the end counts only where nothing else did.
QString reasonFor(std::size_t index, const std::vector<Assignment> &assignments,
                  const std::vector<Happening> &course, const QString &prints)
{
    const Choice &asked = assignments[index].wanted;
    const auto first = static_cast<int>(index);
    const auto refuses = [&](const Happening &happening) {
        return happening.during >= first && !isAccepted(happening) &&
               happening.offer.offered == asked;
    };
    const auto sets = [&](const Happening &happening) {
        return isAccepted(happening) && happening.offer.offered == Choice{asked.option, prints};
    };
    const auto setsLater = [&](const Happening &happening) {
        return happening.during >= first && sets(happening);
    };
    const auto setsAtTheEnd = [&](const Happening &happening) {
        return happening.during == kWhileCommitting && sets(happening);
    };
    if (const Happening *refusal = lastOf(course, refuses))
        return refusalReason(refusal->offer);
    const Happening *cause = lastOf(course, setsLater);
    if (!cause)
        cause = lastOf(course, setsAtTheEnd);
    return cause ? causeReason(*cause, assignments) : QStringLiteral("the panels keep it so");
}

bool isLastFor(const std::vector<Assignment> &assignments, std::size_t index)
{
    return std::none_of(assignments.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                        assignments.end(), [&](const Assignment &later) {
                            return later.wanted.option == assignments[index].wanted.option;
                        });
}

bool isAskedFor(const std::vector<Assignment> &assignments, const QString &option)
{
    return std::any_of(assignments.begin(), assignments.end(), [&](const Assignment &assignment) {
        return assignment.wanted.option == option;
    });
}

} // namespace

std::vector<Loss> lossesOf(const std::vector<Assignment> &assignments,
                           const std::vector<Happening> &course, const JobSettings &job,
                           const std::vector<Difference> &differences)
{
    std::vector<Loss> losses;
    for (std::size_t i = 0; i < assignments.size(); ++i) {
        const Choice &asked = assignments[i].wanted;
        const auto [prints, reason] = standing(assignments[i], job);
        if (!isLastFor(assignments, i) || prints == asked.choice)
            continue;
        losses.push_back({asked.option, asked.choice, prints,
                          reason.isNull() ? reasonFor(i, assignments, course, prints) : reason});
    }
    for (const auto &[option, chosen, marked] : differences) {
        if (!isAskedFor(assignments, option))
            losses.push_back({option, chosen, marked, QStringLiteral("the panels keep it so")});
    }
    return losses;
}

QString lossLine(const Loss &loss)
{
    const QString prints = loss.prints.isNull() ? QStringLiteral("nothing") : loss.prints;
    return QStringLiteral("%1: %2 was chosen, %3 will print, because %4")
        .arg(loss.option, loss.asked, prints, loss.reason);
}

} // namespace dialog::batch
