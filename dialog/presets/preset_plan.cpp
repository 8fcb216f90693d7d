#include "dialog/presets/preset_plan.h"

#include "dialog/printers/constraints.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/settings/job_settings.h"

#include <algorithm>
#include <set>

namespace dialog {
namespace {

const QString kPageSize = QStringLiteral("PageSize");
const QString kCustom = QStringLiteral("Custom");

/// As the printer spells it, which takes names in any case; null when it does not have it.
QString spelled(const QString &name, const QStringList &all)
{
    const auto found = std::find_if(all.begin(), all.end(), [&](const QString &one) {
        return one.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == all.end() ? QString() : *found;
}

QStringList defaultsOf(const QString &option, const PpdDocument &printer)
{
    QStringList choices;
    for (const Choice &choice : printer.defaults()) {
        if (choice.option == option)
            choices.append(choice.choice);
    }
    return choices;
}

/// Of the choices those that the printer has; the others are added to @p missing.
OptionChoices known(const OptionChoices &wanted, const PpdDocument &printer, Choices &missing)
{
    const QStringList options = printer.options();
    OptionChoices found;
    for (const auto &[option, choices] : wanted) {
        const QString own = spelled(option, options);
        for (const QString &choice : choices) {
            const QString ownChoice =
                own.isNull() ? QString() : spelled(choice, printer.choices(own));
            if (ownChoice.isNull())
                missing.push_back({option, choice});
            else
                found[own].append(ownChoice);
        }
    }
    return found;
}

Choices marksWith(const OptionChoices &wanted, const PpdDocument &printer)
{
    Choices marks;
    for (const QString &option : printer.options()) {
        const auto found = wanted.find(option);
        const QStringList choices =
            found == wanted.end() ? defaultsOf(option, printer) : found->second;
        for (const QString &choice : choices)
            marks.push_back({option, choice});
    }
    return marks;
}

std::map<QString, QVariant> settingsWith(const std::map<QString, QVariant> &wanted,
                                         std::map<QString, QVariant> settings)
{
    std::erase_if(settings, [](const auto &entry) { return isKeptInPresets(entry.first); });
    settings.insert(wanted.begin(), wanted.end());
    return settings;
}

/// A custom size carries its measures behind the keyword.
bool hasPaper(const QString &paper, const PpdDocument &printer)
{
    return printer.hasChoice({kPageSize, paper}) ||
           (paper.startsWith(kCustom + u'.') && printer.hasChoice({kPageSize, kCustom}));
}

QString choiceTexts(const QString &option, const QStringList &choices, const PpdDocument &printer)
{
    QStringList texts;
    for (const QString &choice : choices)
        texts.append(printer.choiceText({option, choice}));
    return texts.isEmpty() ? QString() : texts.join(QStringLiteral(", "));
}

QStringList choicesOr(const OptionChoices &choices, const QString &option,
                      const QStringList &otherwise)
{
    const auto found = choices.find(option);
    return found == choices.end() ? otherwise : found->second;
}

QVariant settingOf(const PresetContent &content, const QString &key)
{
    const auto found = content.settings.find(key);
    return found == content.settings.end() ? QVariant() : found->second;
}

/// Collects what differs, kind by kind.
class Comparison
{
public:
    Comparison(const PresetContent &here, const PresetContent &there, const PpdDocument &printer,
               const SettingWords &words)
        : here_(here), there_(there), printer_(printer), words_(words)
    {
    }
    [[nodiscard]] std::vector<SettingDifference> run()
    {
        compareOptions();
        comparePaper();
        compareUnknownOptions();
        compareSettings();
        return std::move(found_);
    }

private:
    void add(const QString &title, const QString &here, const QString &there)
    {
        if (here != there)
            found_.push_back({title, here, there});
    }
    void compareOption(const QString &option, const QStringList &otherwise)
    {
        add(printer_.optionText(option),
            choiceTexts(option, choicesOr(here_.choices, option, otherwise), printer_),
            choiceTexts(option, choicesOr(there_.choices, option, otherwise), printer_));
    }
    void compareOptions()
    {
        for (const QString &option : printer_.options())
            compareOption(option, defaultsOf(option, printer_));
    }
    void comparePaper()
    {
        const auto text = [&](const QString &paper) {
            return paper.isNull() ? QString() : printer_.choiceText({kPageSize, paper});
        };
        add(printer_.optionText(kPageSize), text(here_.paperName), text(there_.paperName));
    }
    void compareUnknownOptions()
    {
        for (const auto &[option, choices] : there_.choices) {
            if (!printer_.hasOption(option))
                compareOption(option, {});
        }
    }
    void compareSettings()
    {
        std::set<QString> keys;
        for (const PresetContent *content : {&here_, &there_}) {
            for (const auto &[key, value] : content->settings)
                keys.insert(key);
        }
        for (const QString &key : keys)
            add(words_.title(key), settingText(here_, key), settingText(there_, key));
    }
    [[nodiscard]] QString settingText(const PresetContent &content, const QString &key) const
    {
        const QVariant value = settingOf(content, key);
        const bool isSaid = value.isValid() && !isCompanion(key, content.settings);
        return isSaid ? words_.value(key, value) : QString();
    }

    const PresetContent &here_;
    const PresetContent &there_;
    const PpdDocument &printer_;
    const SettingWords &words_;
    std::vector<SettingDifference> found_;
};

} // namespace

PresetPlan planPreset(const PresetContent &content, const PpdDocument &printer,
                      const ChoiceState &present)
{
    PresetPlan plan;
    const OptionChoices choices = known(content.choices, printer, plan.missing);
    plan.state.marks = marksWith(choices, printer);
    plan.state.settings = settingsWith(content.settings, present.settings);
    for (const auto &[option, several] : choices)
        plan.state.chosen[option] = several.join(u',');
    if (content.paperName.isNull() || hasPaper(content.paperName, printer))
        plan.state.paperName = content.paperName;
    else
        plan.missing.push_back({kPageSize, content.paperName});
    plan.conflicts = activeConflicts(plan.state.marks, printer.constraints());
    return plan;
}

std::vector<SettingDifference> differencesBetween(const PresetContent &here,
                                                  const PresetContent &there,
                                                  const PpdDocument &printer,
                                                  const SettingWords &words)
{
    return Comparison(here, there, printer, words).run();
}

} // namespace dialog
