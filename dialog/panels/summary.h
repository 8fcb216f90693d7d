#pragma once

#include "dialog/printers/job_options.h"
#include "dialog/printers/option_groups.h"
#include "platform/panel_protocol.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace dialog {

/// What one panel says of its settings.
struct PanelSummary
{
    QString title;
    SummaryInfo entries;
    QStringList options; ///< of the PPD, that it stands for
};

/// How a value stands beside what the printer does unasked.
enum class Standing {
    Usual,
    Changed,
    Replaced, ///< marked, and a print setting sends something else in its place
};

struct SummaryRow
{
    QString title;
    QString value;
    Standing standing = Standing::Usual;

    bool operator==(const SummaryRow &) const = default;
};

struct SummarySection
{
    QString title;
    std::vector<SummaryRow> rows;

    bool operator==(const SummarySection &) const = default;
};

using Summary = std::vector<SummarySection>;

/// All that is set: the print settings, the mirror setting among them even when it is off, then the
/// panels' entries, then the marks that no panel names, by the groups of the PPD.
///
/// An entry names a mark of its panel's options when both of its texts are the printer's; a mark
/// that is in doubt gets a row of its own.
[[nodiscard]] Summary summaryOf(const std::vector<PanelSummary> &panels, const OptionGroups &groups,
                                const JobSettings &job);

/// The rows that have every typed word in their texts or in their section's title, in the sections
/// that this leaves something of. Nothing typed leaves all.
[[nodiscard]] Summary matchingRows(const Summary &summary, const QString &typed);

/// What to add to a row in words; null for a usual one.
[[nodiscard]] QString standingText(Standing standing);

/// For the clipboard: a line for each row, the values below each other in a font of fixed width.
[[nodiscard]] QString plainText(const Summary &summary);

} // namespace dialog
