#pragma once

#include "dialog/printers/page_range.h"

#include <QString>

#include <optional>
#include <vector>

namespace dialog {

enum class RangeProblem {
    None,
    Nothing,   ///< no page is named
    NoNumber,  ///< something is neither number, hyphen nor comma
    Zero,      ///< pages count from 1
    TooLarge,  ///< no document has so many
    Backwards, ///< 5-3
    Hyphens,   ///< 1-2-3, or a hyphen alone
    BehindEnd, ///< none of it is in the document
};

/// What a person typed into the field for pages, read.
struct PageRanges
{
    RangeProblem problem = RangeProblem::None;
    qsizetype place = 0; ///< of the problem in the text, from 0
    QString part = {};   ///< the words that the problem is about
    /// In order, without overlaps; empty with a problem.
    std::vector<PageRange> ranges = {};
    /// Whether a range ends behind the document's last page, which only cuts it short.
    bool isCut = false;

    [[nodiscard]] bool isValid() const { return problem == RangeProblem::None; }
};

/// Reads "1-3, 5, 8-" or "-4": ranges between commas or semicolons, with an open end or start.
/// Digits, commas and hyphens may be those of any script or width. The number of pages is null
/// while it is not known.
[[nodiscard]] PageRanges readPageRanges(const QString &text, std::optional<int> pageCount = {});

/// In the form of the job setting "page-ranges": "1-3,5,8-".
[[nodiscard]] QString pageRangesSetting(const std::vector<PageRange> &ranges);

/// Place, reason and remedy for a person; null without a problem.
[[nodiscard]] QString rangeProblemText(const PageRanges &ranges, std::optional<int> pageCount = {});

/// The document's pages on printed sides with so many pages each, as far as the document goes.
[[nodiscard]] std::vector<PageRange> pagesOnSides(const std::vector<PageRange> &sides,
                                                  int pagesPerSheet,
                                                  std::optional<int> pageCount = {});

} // namespace dialog
