#pragma once

#include "dialog/printers/choice.h"

#include <QString>

#include <map>

namespace test {

constexpr int kSystem105 = 0x105F; ///< the last one on which mirror is the panel's own
constexpr int kSystem106 = 0x1060; ///< the first one on which it is a print setting

/// Names and values, each name once.
using Values = std::map<QString, QString>;

[[nodiscard]] dialog::Choice choice(const char *option, const char *keyword);

/// What is marked before the panels come, and what a person chooses then, in that order.
struct Story
{
    dialog::Choices preset;
    dialog::Choices chosen;
    int systemVersion = kSystem106;
};

/// For the trace of a failure.
[[nodiscard]] QString described(const Story &story);

/// What a job is to be: the choices as they were made, but for the rules.
struct ExpectedJob
{
    Values marked; ///< without what a print setting replaces
    Values replaced;
    Values printSettings;
    Values options;
    Values refused; ///< what a person chose and the job does not have

    /// The option's choice, marked or replaced.
    [[nodiscard]] QString stands(const QString &option) const;
};

[[nodiscard]] ExpectedJob expectedJob(const dialog::Choices &defaults, const Story &story);

} // namespace test
