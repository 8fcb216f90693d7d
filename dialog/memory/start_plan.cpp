#include "dialog/memory/start_plan.h"

#include "dialog/printers/constraint_table.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/printers/standard_options.h"
#include "dialog/settings/setting_words.h"

#include <algorithm>

namespace dialog {
namespace {

const QString kPageSize = QStringLiteral("PageSize");
const QString kMirror = QStringLiteral("mirror");

ChoiceState defaultsOf(const Choices &marks, const PpdDocument &printer)
{
    ChoiceState state{marks, {}, {}};
    const Choices &own = printer.defaults();
    if (marks == own)
        return state;
    for (const Choice &mark : marks) {
        if (std::find(own.begin(), own.end(), mark) == own.end())
            state.chosen[mark.option] = joinedChoices(marks, mark.option);
    }
    return state;
}

/// Adds what is carried to a state, as far as the printer has it.
class Addition
{
public:
    Addition(ChoiceState &state, const PpdDocument &printer)
        : state_(state), printer_(printer), marks_(state.marks),
          counterparts_(standardCounterparts(printer))
    {
    }

    /// False, with nothing changed, for what the printer does not have or cannot combine.
    [[nodiscard]] bool choose(const QString &option, const QString &joined)
    {
        const Choices choices = choicesOf(option, joined);
        if (!std::all_of(choices.begin(), choices.end(),
                         [&](const Choice &one) { return fits(one); }))
            return false;
        marks_.exchange(option, choices);
        state_.marks = marks_.all();
        dropWhatCameWith(option, joined);
        state_.chosen[option] = joined;
        return true;
    }
    void set(const QString &key, const QVariant &value)
    {
        for (const SettingChange &change : withCompanions({key, value}))
            state_.settings[change.key] = change.value;
        std::erase_if(state_.settings, [](const auto &entry) { return !entry.second.isValid(); });
    }

private:
    [[nodiscard]] Choices choicesOf(const QString &option, const QString &joined) const
    {
        Choices choices;
        for (const QString &one :
             printer_.isPickMany(option) ? joined.split(u',') : QStringList(joined))
            choices.push_back({option, one});
        return choices;
    }
    [[nodiscard]] bool fits(const Choice &choice) const
    {
        return printer_.hasChoice(choice) && printer_.rules().conflictsWith(choice, marks_).empty();
    }
    /// Of the last settings, which are older: what would stand for the option, and the mirror that
    /// may have come with another choice of it.
    void dropWhatCameWith(const QString &option, const QString &joined)
    {
        state_.settings = settingsWithoutStandIns(state_.settings, option, counterparts_);
        const auto former = state_.chosen.find(option);
        if (former != state_.chosen.end() && former->second != joined)
            state_.settings.erase(kMirror);
        if (option == kPageSize)
            state_.paperName = QString();
    }

    ChoiceState &state_;
    const PpdDocument &printer_;
    MarkTable marks_;
    OptionChoices counterparts_;
};

/// Mirror may come from a choice that is left behind, and is left with it.
void addCarried(StartPlan &plan, const Carried &carried, const PpdDocument &printer)
{
    Addition addition(plan.state, printer);
    for (const auto &[option, words] : carried.choices) {
        if (!addition.choose(option, words.choice))
            plan.leftBehind.choices[option] = words;
    }
    const bool carriesMirror = plan.leftBehind.choices.empty();
    for (const auto &[key, value] : carried.settings) {
        if (key != kMirror || carriesMirror)
            addition.set(key, value);
        else
            plan.leftBehind.settings[key] = value;
    }
}

template <class Value>
std::optional<Value> valueOf(const std::map<QString, Value> &values, const QString &key)
{
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

/// What was left behind; what was taken and is still set, whatever its value; what is set otherwise
/// than the printer had it from the start.
template <class Value, class Now, class IsOwn>
std::map<QString, Value> carriedOn(const std::map<QString, Value> &before,
                                   const std::map<QString, Value> &leftBehind, const Now &now,
                                   const IsOwn &isOwn)
{
    std::map<QString, Value> carried = leftBehind;
    for (const auto &[key, value] : now) {
        const bool wasTaken = before.count(key) > 0 && leftBehind.count(key) == 0;
        if (wasTaken || !isOwn(key))
            carried[key] = value;
    }
    return carried;
}

std::map<QString, ChosenWords> withWords(const std::map<QString, QString> &chosen,
                                         const PpdDocument &printer)
{
    std::map<QString, ChosenWords> words;
    for (const auto &[option, choice] : chosen)
        words[option] = {choice, printer.optionText(option), printer.choiceText({option, choice})};
    return words;
}

} // namespace

QStringList StartPlan::leftBehindLines() const
{
    QStringList lines;
    for (const auto &[option, words] : leftBehind.choices)
        lines.append(QStringLiteral("%1: %2").arg(words.optionText, words.choiceText));
    for (const auto &[key, value] : leftBehind.settings)
        lines.append(
            QStringLiteral("%1: %2").arg(settingTitle(key), settingValue(key, value.toString())));
    return lines;
}

StartPlan planStart(const StartSources &sources, const PpdDocument &printer)
{
    StartPlan plan{.defaults = defaultsOf(sources.marks, printer)};
    plan.base.state = plan.defaults;
    if (sources.lastUsed && *sources.lastUsed != contentOf(plan.defaults, printer)) {
        plan.lastUsed = sources.lastUsed;
        plan.base = planPreset(*plan.lastUsed, printer, {});
    }
    plan.state = plan.base.state;
    if (sources.carried != Carried())
        addCarried(plan, sources.carried, printer);
    return plan;
}

Carried carriedFrom(const Carried &before, const StartPlan &start, const ChoiceState &now,
                    const PpdDocument &printer)
{
    const ChoiceState &base = start.base.state;
    const auto isOwnChoice = [&](const QString &option) {
        return joinedChoices(base.marks, option) == now.chosen.at(option);
    };
    const auto isOwnSetting = [&](const QString &key) {
        return valueOf(base.settings, key) == valueOf(now.settings, key);
    };
    return {carriedOn(before.choices, start.leftBehind.choices, withWords(now.chosen, printer),
                      isOwnChoice),
            carriedOn(before.settings, start.leftBehind.settings, now.settings, isOwnSetting)};
}

} // namespace dialog
