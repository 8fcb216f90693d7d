#include "dialog/replay/nearest_name.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace dialog::replay {
namespace {

/// Number of single-character insertions, deletions and replacements.
int distance(const QString &a, const QString &b)
{
    std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i) + 1;
        for (std::size_t j = 1; j < row.size(); ++j) {
            const int replaced = diagonal + (a[i] == b[static_cast<qsizetype>(j) - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString nearestName(const QString &name, const QStringList &names)
{
    const QString wanted = name.toCaseFolded();
    int best = std::max(2, static_cast<int>(wanted.size()) / 3) + 1;
    QString nearest;
    for (const QString &candidate : names) {
        const int away = candidate == name ? best : distance(wanted, candidate.toCaseFolded());
        if (away < best) {
            best = away;
            nearest = candidate;
        }
    }
    return nearest;
}

QString noSuchName(const QString &what, const QString &name, const QStringList &names)
{
    const QString nearest = nearestName(name, names);
    const QString statement = QStringLiteral("no ") + what + u' ' + name;
    return nearest.isNull() ? statement
                            : statement + QStringLiteral("; did you mean ") + nearest + u'?';
}

} // namespace dialog::replay
