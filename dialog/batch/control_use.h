#pragma once

#include "dialog/printers/choice.h"
#include "platform/panel_protocol.h"

#include <vector>

class QWidget;

namespace dialog::batch {

/// What came of the attempt to choose with a panel's control.
enum class Use {
    Acted,         ///< as a person does it, with all that follows from it
    StandsAlready, ///< a box or stepper shows the choice, so that there is nothing to do
    NoControl,     ///< none that a person could use: hidden, disabled, or without that choice
};

/// Chooses with the first of the controls for the option that a person could use, by real mouse and
/// key events; opens first what hides it. @p view is the panel's view, shown. Returns after all
/// that it set off, modal windows included; runs the event loop between the steps of a stepper.
[[nodiscard]] Use chooseWithControl(const std::vector<PDEOptionControl> &controls, QWidget *view,
                                    const Choice &choice);

} // namespace dialog::batch
