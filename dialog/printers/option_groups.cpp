#include "dialog/printers/option_groups.h"

#include "dialog/printers/constraints.h"

#include <algorithm>

namespace dialog {
namespace {

bool leavesAChoice(const PrinterOption &option)
{
    const std::size_t least = option.kind == OptionKind::PickMany ? 1 : 2;
    return option.choices.size() >= least;
}

/// The choice of an option that stands for none of its others; null without one.
QString choiceOfNothing(const PrinterOption &option)
{
    const auto found =
        std::find_if(option.choices.begin(), option.choices.end(),
                     [](const OptionChoice &choice) { return !switchesOn(choice.keyword); });
    return found == option.choices.end() ? QString() : found->keyword;
}

} // namespace

OptionGroups unclaimedGroups(const OptionGroups &groups, const QStringList &claimed)
{
    OptionGroups left;
    for (const OptionGroup &group : groups) {
        OptionGroup kept{group.name, group.text, group.kind, {}};
        std::copy_if(group.options.begin(), group.options.end(), std::back_inserter(kept.options),
                     [&](const PrinterOption &option) {
                         return leavesAChoice(option) &&
                                !claimed.contains(option.keyword, Qt::CaseInsensitive);
                     });
        if (!kept.options.empty())
            left.push_back(std::move(kept));
    }
    return left;
}

QStringList installableOptions(const OptionGroups &groups)
{
    QStringList keywords;
    for (const OptionGroup &group : groups) {
        for (const PrinterOption &option : group.options) {
            if (group.kind == GroupKind::Installable)
                keywords.append(option.keyword);
        }
    }
    return keywords;
}

QStringList marksAfterSwitching(const PrinterOption &option, const QStringList &marked,
                                const QString &choice, Switch to)
{
    const QString nothing = choiceOfNothing(option);
    const bool isOn = to == Switch::On;
    QStringList after;
    for (const OptionChoice &each : option.choices) {
        const bool stood = marked.contains(each.keyword, Qt::CaseInsensitive);
        const bool isSwitched = each.keyword.compare(choice, Qt::CaseInsensitive) == 0;
        const bool excluded = isOn && (choice == nothing) != (each.keyword == nothing);
        if (isSwitched ? isOn : stood && !excluded)
            after.append(each.keyword);
    }
    if (!after.isEmpty())
        return after;
    return nothing.isNull() ? option.defaults : QStringList(nothing);
}

} // namespace dialog
