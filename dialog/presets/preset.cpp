#include "dialog/presets/preset.h"

#include "dialog/printers/ppd_document.h"

#include <QLatin1String>

#include <algorithm>
#include <iterator>

namespace dialog {
namespace {

// clang-format off
constexpr const char *kOfOneDocument[] = {
    "copies",
    "document-format",
    "document-name",
    "job-billing",
    "job-hold-until",
    "job-name",
    "job-sheets",
    "job-uuid",
    "page-ranges",
    "multiple-document-handling",
    "page-set",
};
// clang-format on

OptionChoices byOption(const Choices &marks)
{
    OptionChoices choices;
    for (const Choice &mark : marks)
        choices[mark.option].append(mark.choice);
    return choices;
}

} // namespace

QString modelOf(const PpdDocument &printer)
{
    const QString model = printer.modelName().trimmed();
    return model.isEmpty() ? printer.nickName().trimmed() : model;
}

bool isKeptInPresets(const QString &settingKey)
{
    return std::none_of(std::begin(kOfOneDocument), std::end(kOfOneDocument), [&](const char *key) {
        return settingKey.compare(QLatin1String(key), Qt::CaseInsensitive) == 0;
    });
}

PresetContent contentOf(const ChoiceState &state, const PpdDocument &printer)
{
    PresetContent content{byOption(state.marks), state.settings, state.paperName};
    const OptionChoices defaults = byOption(printer.defaults());
    std::erase_if(content.choices, [&](const auto &entry) {
        const auto found = defaults.find(entry.first);
        return found != defaults.end() && found->second == entry.second;
    });
    std::erase_if(content.settings,
                  [](const auto &entry) { return !isKeptInPresets(entry.first); });
    return content;
}

} // namespace dialog
