#pragma once

#include "tests/support/ppd_fixtures.h"

#include <QByteArray>

#include <functional>
#include <vector>

namespace test {

/// A printer with every setting of both panels: P3 with P2's improvements.
[[nodiscard]] PpdText everything();

/// One way in which a PPD can be other than the panels' rules assume.
struct Damage
{
    QByteArray name;
    std::function<void(PpdText &)> inflict; ///< does nothing where its option is gone
};

/// Options, attributes and the encoding line left out one by one; ink choices in another order, too
/// few or renamed; words and labels other than expected; equal texts; texts with "&", "<b>",
/// control bytes, broken UTF-8; 5,000 choices.
[[nodiscard]] const std::vector<Damage> &damages();

/// A PPD with some of them.
struct DamagedPrinter
{
    QByteArray name;
    PpdText ppd;
};
[[nodiscard]] DamagedPrinter damaged(const std::vector<std::size_t> &indices);
/// Without any option of the panels.
[[nodiscard]] DamagedPrinter withoutEverything();

[[nodiscard]] bool hasOption(const PpdText &ppd, const QByteArray &keyword);

/// How many error records the set-up of the Quality & Media panel owes this printer: one for each
/// option that the rules need and the printer lacks, or whose choices are not what they assume.
[[nodiscard]] int errorRecordsDue(const PpdText &ppd);

} // namespace test
