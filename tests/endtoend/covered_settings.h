#pragma once

#include "tests/endtoend/expected_job.h"

#include <vector>

namespace dialog {
class PpdDocument;
}

namespace test {

/// A choice that a person cannot make after the story, because a rule closes its control.
struct ClosedChoice
{
    Story story;
    dialog::Choice choice;
};

struct CoveredSettings
{
    std::vector<Story> stories;
    std::size_t pairs = 0;      ///< that the stories have
    std::size_t impossible = 0; ///< that a rule keeps any story from having
    std::size_t unmet = 0;      ///< choices that are wanted together, and cannot be
};

/// Stories that choose among all settings that the printer has in both panels. Each setting is left
/// alone or takes one of its choices; each pair of choices of two settings is in a story, and so is
/// each choice with each system version, both orders of the controls (down the panels, or up) and
/// both answers to conflict windows. What a rule closes is left out, see closedChoices().
[[nodiscard]] CoveredSettings coverSettings(const dialog::PpdDocument &printer, unsigned seed = 0);

/// Every choice that the stories leave out, after what closes it.
[[nodiscard]] std::vector<ClosedChoice> closedChoices(const dialog::PpdDocument &printer);
/// Settings that the printer has and whose controls are hidden, as others take their places.
[[nodiscard]] QStringList hiddenSettings(const dialog::PpdDocument &printer);

} // namespace test
