#pragma once

#include <cups/ppd.h>

#include <QString>
#include <QStringList>

#include <span>

/// Reads libcups' records for the rooms that hold them as handles only.
namespace ppd {

/// The option's text, as it stands, decoded as UTF-8; null without an option.
[[nodiscard]] QString optionText(const ppd_option_t *option);
/// The option's keyword; null without an option.
[[nodiscard]] QString optionKeyword(const ppd_option_t *option);
/// The option's choices, in the PPD's order; empty without an option.
[[nodiscard]] std::span<const ppd_choice_t> choices(const ppd_option_t *option);
/// Keywords of the option's choices, in the PPD's order; empty without an option.
[[nodiscard]] QStringList choiceKeywords(const ppd_option_t *option);
/// Texts of the option's choices, in the PPD's order.
[[nodiscard]] QStringList choiceTexts(const ppd_option_t *option);
/// Keyword of the choice that libcups finds for a word, whose case it ignores; null without option
/// or choice.
[[nodiscard]] QString choiceKeyword(ppd_option_t *option, const char *word);
/// Keyword or text of the choice at an index of an option, decoded; null when PPD, option or index
/// is not there.
struct DecodedChoice
{
    QString keyword;
    QString text;
};
[[nodiscard]] DecodedChoice choiceAt(ppd_file_t *ppd, const char *option, int index,
                                     unsigned long encoding);

} // namespace ppd
