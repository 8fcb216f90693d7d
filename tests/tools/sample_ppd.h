#pragma once

#include <cups/ppd.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

/// A PPD of the sample driver, and what the tests ask of it.
namespace sample {

struct PpdCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Real path of a staged PPD.
[[nodiscard]] QString pathOf(const char *edition);
/// Opened by libcups, defaults marked; null when libcups refuses it.
[[nodiscard]] Ppd open(const char *edition);

/// Every option with its choices, in the PPD's order; page regions, which follow the page size, are
/// left out.
[[nodiscard]] std::vector<const ppd_option_t *> optionsOf(const ppd_file_t *ppd);
/// The text of a choice; null when the PPD has no such choice.
[[nodiscard]] QString choiceText(ppd_file_t *ppd, const char *option, const char *choice);
/// "Option Choice Option Choice" of every constraint.
[[nodiscard]] QList<QByteArray> constraintsOf(const ppd_file_t *ppd);

/// What can be chosen from the defaults when each step changes one setting and none may lead to a
/// conflict. Counts combinations of the options that have constraints.
struct Reach
{
    QList<QByteArray> unreachedChoices; ///< "Option Choice"
    qsizetype conflictFree = 0;
    qsizetype reached = 0;
};
[[nodiscard]] Reach reachFromDefaults(const ppd_file_t *ppd);

} // namespace sample
