#pragma once

#include "dialog/printers/constraints.h"

#include <QHash>
#include <QStringList>

#include <map>
#include <vector>

namespace dialog {

/// Equal for all names that constraints take for one option: case means nothing, and PageRegion is
/// the sheet's size as PageSize is.
[[nodiscard]] QString constraintKey(const QString &option);

/// Marks, to be found by option.
class MarkTable
{
public:
    explicit MarkTable(const Choices &marks);

    [[nodiscard]] const Choices &of(const QString &option) const;
    /// Replaces what is marked of an option and answers what was.
    Choices exchange(const QString &option, const Choices &marks);
    [[nodiscard]] Choices all() const;

private:
    friend class ConstraintTable;
    [[nodiscard]] const Choices &at(const QString &key) const;
    [[nodiscard]] const Choice *fulfilling(const Choice &partByKey) const;

    QHash<QString, Choices> marks_;
    QStringList order_; ///< keys, as the marks came
};

/// The constraints of a printer, arranged for many questions.
class ConstraintTable
{
public:
    ConstraintTable() = default;
    explicit ConstraintTable(const Constraints &constraints);

    /// Numbers of the constraints that have a part of this option.
    [[nodiscard]] const std::vector<int> &naming(const QString &option) const;
    /// Numbers of the constraints that the marks break.
    [[nodiscard]] std::vector<int> broken(const MarkTable &marks) const;
    /// The marks that break a constraint, one for each of its parts; none unless they break it.
    [[nodiscard]] Choices breaking(int constraint, const MarkTable &marks) const;
    /// Every forbidden pair among the marks, once.
    [[nodiscard]] std::vector<Conflict> conflicts(const MarkTable &marks) const;
    /// Marks that would be forbidden beside a choice, were it marked.
    [[nodiscard]] Choices conflictsWith(const Choice &choice, const MarkTable &marks) const;
    /// Those of an option's choices that cannot stand beside the marks of the other options, each
    /// with the marks in its way.
    [[nodiscard]] std::map<QString, Choices>
    forbidden(const QString &option, const QStringList &choices, const MarkTable &marks) const;

private:
    [[nodiscard]] Choices inTheWay(const Constraint &constraint, const QString &key,
                                   const MarkTable &marks) const;

    Constraints constraints_; ///< options by their keys
    QHash<QString, std::vector<int>> naming_;
};

} // namespace dialog
