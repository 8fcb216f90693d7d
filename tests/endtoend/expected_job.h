#pragma once

#include "dialog/printers/choice.h"

#include <QString>
#include <QStringList>

#include <map>

namespace test {

constexpr int kSystem104 = 0x1049; ///< the panels ask about conflicts themselves
constexpr int kSystem105 = 0x1050; ///< the dialog judges choices; mirror is the panel's own
constexpr int kSystem106 = 0x1060; ///< mirror on iron-on paper is a print setting

/// In a story the option of a threshold that is typed; one that is stepped is the "Threshold" of
/// the PPD.
constexpr const char *kTypedThreshold = "ThresholdField";

/// Names and values, each name once.
using Values = std::map<QString, QString>;

[[nodiscard]] dialog::Choice choice(const char *option, const char *keyword);

/// What a person picks in every window that asks about a conflict, before OK. Only one window has a
/// third answer, which keeps the conflict and silences the window until the process ends.
enum class Answer { First, Second, Third };

/// What is marked before the panels come, and what a person chooses then, in that order.
struct Story
{
    dialog::Choices preset;
    dialog::Choices chosen;
    int systemVersion = kSystem106;
    Answer answer = Answer::First;
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
    Values refused;          ///< what a person chose and the job does not have
    QStringList windows;     ///< that ask about conflicts, in the order of their coming
    bool isReviewed = false; ///< whether the dialog asks before it prints

    /// The option's choice, marked or replaced.
    [[nodiscard]] QString stands(const QString &option) const;
};

/// Knows nothing of the program's own rules: they stand once more in the tables of the source file.
[[nodiscard]] ExpectedJob expectedJob(const dialog::Choices &defaults, const Story &story);

/// The constraints of the table as lines of a PPD.
[[nodiscard]] QByteArray constraintLines();

} // namespace test
