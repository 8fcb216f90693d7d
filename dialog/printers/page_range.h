#pragma once

namespace dialog {

/// Pages from a document, or printed sides of a job; both ends included, counted from 1.
struct PageRange
{
    /// The end of a range that goes to the last one.
    static constexpr int kEnd = 2'147'483'647;

    int first = 1;
    int last = 1;

    bool operator==(const PageRange &) const = default;
};

} // namespace dialog
