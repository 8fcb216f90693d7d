#pragma once

#include "dialog/check/finding.h"
#include "dialog/check/ppd_lines.h"

#include <QByteArray>

/// What is wrong with the texts of a PPD for every program that shows them.
namespace dialog::check {

/// What libcups keeps of a text, in bytes of UTF-8.
inline constexpr qsizetype kLongestText = 80;

/// Encoding missing, unknown, or not that of the texts; texts that are cut, or equal within an
/// option or between options.
[[nodiscard]] Findings textFindings(const PpdLines &lines);

} // namespace dialog::check
