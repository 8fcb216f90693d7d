#include "dialog/presets/preset_name.h"

#include <algorithm>

namespace dialog {
namespace {

bool isVisible(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Separator_Space:
        return false;
    default:
        return true;
    }
}

bool isTaken(const QString &name, const QStringList &taken)
{
    return std::any_of(taken.begin(), taken.end(),
                       [&](const QString &other) { return isSamePresetName(name, other); });
}

/// Cuts between characters, also where one takes two units.
QString cutTo(qsizetype characters, const QString &text)
{
    const QList<uint> all = text.toUcs4();
    return characters < all.size()
               ? QString::fromUcs4(reinterpret_cast<const char32_t *>(all.constData()), characters)
               : text;
}

} // namespace

QString cleanPresetName(const QString &typed)
{
    return typed.normalized(QString::NormalizationForm_C).simplified();
}

bool isSamePresetName(const QString &a, const QString &b)
{
    return cleanPresetName(a).toCaseFolded() == cleanPresetName(b).toCaseFolded();
}

NameFault nameFault(const QString &typed, const QStringList &taken)
{
    const QString name = cleanPresetName(typed);
    const QList<uint> characters = name.toUcs4();
    if (std::none_of(characters.begin(), characters.end(), isVisible))
        return NameFault::Empty;
    if (characters.size() > kLongestPresetName)
        return NameFault::TooLong;
    return isTaken(name, taken) ? NameFault::Taken : NameFault::None;
}

QString freePresetName(const QString &wanted, const QStringList &taken)
{
    const QString name = cutTo(kLongestPresetName, cleanPresetName(wanted));
    QString free = name;
    for (int number = 2; isTaken(free, taken); ++number) {
        const QString suffix = QStringLiteral(" %1").arg(number);
        free = cutTo(kLongestPresetName - suffix.size(), name).trimmed() + suffix;
    }
    return free;
}

} // namespace dialog
