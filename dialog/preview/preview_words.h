#pragma once

#include "dialog/preview/preview_document.h"

#include <QCoreApplication>

namespace dialog {

/// What the preview says in words.
class PreviewWords
{
    Q_DECLARE_TR_FUNCTIONS(PreviewWords)

public:
    /// Why there is nothing to see, with the remedy; empty without a problem.
    [[nodiscard]] static QString problem(DocumentProblem problem);
    [[nodiscard]] static QString damagedPages(const std::vector<int> &pages);
    /// The pages of a side, counted from 0: "Pages 1 and 2".
    [[nodiscard]] static QString pages(const std::vector<int> &pages);
    /// Which sheet it is and which side of it; @p index counts printed sides from 0.
    [[nodiscard]] static QString sheet(const SheetLook &look, int index, int count);
    /// What a person sees below the sheet.
    [[nodiscard]] static QString caption(const SheetLook &look, const std::vector<int> &pages,
                                         int index);
    /// All of it for somebody who does not see it.
    [[nodiscard]] static QString description(const SheetLook &look, const std::vector<int> &pages,
                                             int index, int count);
};

} // namespace dialog
