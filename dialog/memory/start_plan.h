#pragma once

#include "dialog/presets/preset_plan.h"
#include "dialog/settings/job_settings.h"

#include <map>
#include <optional>

namespace dialog {

/// A choice of a person's, with the words of the printer for which it was made.
struct ChosenWords
{
    QString choice; ///< several of one option are joined by commas
    QString optionText;
    QString choiceText;

    bool operator==(const ChosenWords &) const = default;
};

/// What a person has chosen since the dialog opened, for whichever printer comes next.
struct Carried
{
    std::map<QString, ChosenWords> choices = {}; ///< by option
    PrintSettingsMap settings = {};

    bool operator==(const Carried &) const = default;
};

/// Everything that has a word in what a printer starts with, in the order in which they speak. What
/// a scenario marks comes on top of it before the panels are shown; what --set asks for is an
/// action of its own after that.
struct StartSources
{
    Choices marks;                           ///< as the printer came: its own, and its queue's
    std::optional<PresetContent> lastUsed{}; ///< what the last job had
    Carried carried = {};
};

/// What a printer starts with.
struct StartPlan
{
    ChoiceState defaults = {}; ///< the printer's: what a person resets to
    /// Of the last job; nothing where they are the defaults.
    std::optional<PresetContent> lastUsed = {};
    PresetPlan base = {};    ///< the last settings, else the defaults, before what is carried
    ChoiceState state = {};  ///< to set
    Carried leftBehind = {}; ///< of what is carried, what this printer does not have or combine

    /// Option and choice, a line each.
    [[nodiscard]] QStringList leftBehindLines() const;
};

[[nodiscard]] StartPlan planStart(const StartSources &sources, const PpdDocument &printer);

/// What goes along from a printer that has started so to the next one. What it started with itself
/// is its own and does not go along; what it left behind waits for another one.
[[nodiscard]] Carried carriedFrom(const Carried &before, const StartPlan &start,
                                  const ChoiceState &now, const PpdDocument &printer);

} // namespace dialog
