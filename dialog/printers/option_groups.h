#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace dialog {

/// How many choices of an option stand at a time: one, any number, or one of True and False.
enum class OptionKind { PickOne, PickMany, Boolean };

/// One choice, as a person reads it.
struct OptionChoice
{
    QString keyword;
    QString text;

    bool operator==(const OptionChoice &) const = default;
};

/// One option of a printer with all that can be chosen, in the order of the PPD.
struct PrinterOption
{
    QString keyword;
    QString text;
    OptionKind kind = OptionKind::PickOne;
    std::vector<OptionChoice> choices;
    QStringList defaults; ///< keywords; none where the PPD names no default, several for PickMany

    bool operator==(const PrinterOption &) const = default;
};

/// What a group describes: how jobs come out, or what is built into the printer. The second is for
/// whoever administers the printer; a job changes nothing of it.
enum class GroupKind { Usual, Installable };

struct OptionGroup
{
    QString name;
    QString text;
    GroupKind kind = GroupKind::Usual;
    std::vector<PrinterOption> options;

    bool operator==(const OptionGroup &) const = default;
};

using OptionGroups = std::vector<OptionGroup>;

/// The groups without the options that are shown elsewhere, whose names are compared without regard
/// to case, without options that leave nothing to choose, and without groups that this empties.
[[nodiscard]] OptionGroups unclaimedGroups(const OptionGroups &groups, const QStringList &claimed);

/// Keywords of the options of installable groups.
[[nodiscard]] QStringList installableOptions(const OptionGroups &groups);

enum class Switch { On, Off };

/// What is marked of an option where any number of choices can be, after a person has switched one
/// of them on or off, in the order of its choices. None, Off or False stands alone, and returns
/// when nothing else is left; an option without such a choice then returns to its defaults, since
/// no job can say that nothing is chosen.
[[nodiscard]] QStringList marksAfterSwitching(const PrinterOption &option,
                                              const QStringList &marked, const QString &choice,
                                              Switch to);

} // namespace dialog
