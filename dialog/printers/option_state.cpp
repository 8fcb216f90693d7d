#include "dialog/printers/option_state.h"

#include <algorithm>

namespace dialog {
namespace {

QStringList keywordsOf(const PrinterOption &option)
{
    QStringList keywords;
    for (const OptionChoice &choice : option.choices)
        keywords.append(choice.keyword);
    return keywords;
}

} // namespace

OptionState stateOf(const PrinterOption &option, const MarkTable &marks,
                    const ConstraintTable &rules)
{
    OptionState state;
    for (const Choice &mark : marks.of(option.keyword))
        state.marked.append(mark.choice);
    state.forbidden = rules.forbidden(option.keyword, keywordsOf(option), marks);
    state.isDefault = state.marked == option.defaults;
    return state;
}

} // namespace dialog
