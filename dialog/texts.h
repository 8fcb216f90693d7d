#pragma once

namespace dialog {

/// Lets tr() answer in the first preferred language from now on, and Qt's own texts too where the
/// system has them; in English where the dialog has no translation into it. What is on the screen
/// already keeps its language. Needs the application object.
void installTexts();

} // namespace dialog
