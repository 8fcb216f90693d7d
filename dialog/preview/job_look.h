#pragma once

#include "dialog/host/choice_state.h"
#include "dialog/preview/sheet_look.h"

namespace dialog {

class PpdDocument;

/// How a job with these choices comes out at the printer. Of several ways to say the same the one
/// counts that the job would have. What the printer does not tell is taken from the locale: A4 or
/// Letter.
[[nodiscard]] SheetLook sheetLook(const PpdDocument &printer, const ChoiceState &state);

/// The paper where no printer names one: Letter in the territories that use it, else A4.
[[nodiscard]] PaperSize usualPaper(const QString &localeIdentifier);

} // namespace dialog
