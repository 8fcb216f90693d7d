#include "model/ppd_records.h"

#include "platform/strings.h"

namespace ppd {

std::span<const ppd_choice_t> choices(const ppd_option_t *option)
{
    if (!option || option->num_choices <= 0)
        return {};
    return {option->choices, static_cast<std::size_t>(option->num_choices)};
}

QString optionText(const ppd_option_t *option)
{
    return option ? platform::decodedUtf8(option->text) : QString();
}

QString optionKeyword(const ppd_option_t *option)
{
    return option ? platform::decodedUtf8(option->keyword) : QString();
}

QStringList choiceKeywords(const ppd_option_t *option)
{
    QStringList keywords;
    for (const ppd_choice_t &choice : choices(option))
        keywords.append(platform::decodedUtf8(choice.choice));
    return keywords;
}

QStringList choiceTexts(const ppd_option_t *option)
{
    QStringList texts;
    for (const ppd_choice_t &choice : choices(option))
        texts.append(platform::decodedUtf8(choice.text));
    return texts;
}

QString choiceKeyword(ppd_option_t *option, const char *word)
{
    const ppd_choice_t *choice = option ? ppdFindChoice(option, word) : nullptr;
    return choice ? platform::decodedUtf8(choice->choice) : QString();
}

DecodedChoice choiceAt(ppd_file_t *ppd, const char *option, int index, unsigned long encoding)
{
    const std::span<const ppd_choice_t> all =
        choices(ppd && option ? ppdFindOption(ppd, option) : nullptr);
    if (index < 0 || static_cast<std::size_t>(index) >= all.size())
        return {};
    const ppd_choice_t &choice = all[static_cast<std::size_t>(index)];
    return {platform::decoded(choice.choice, encoding), platform::decoded(choice.text, encoding)};
}

} // namespace ppd
