#pragma once

#include "dialog/printers/job_options.h"

namespace dialog {

/// Name and reason, for a person, of the first option that would get lost or changed on its way to
/// the printer's filter without an error from anybody; null when every option will arrive.
///
/// The filter gets all options as one argument of a program, which is limited by the system: what
/// the print server adds by itself is allowed for.
[[nodiscard]] QString unsendableReason(const JobOptions &options);

/// Bytes of the options as the print server writes them for the filter.
[[nodiscard]] qsizetype writtenBytes(const JobOptions &options);

/// The most of them that are sent.
inline constexpr qsizetype kMostWrittenBytes = 124 * 1024;

} // namespace dialog
