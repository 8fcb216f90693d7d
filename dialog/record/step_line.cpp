#include "dialog/record/step_line.h"

#include <QRegularExpression>

namespace dialog::record {

QString lineOf(const replay::Step &step)
{
    QString line = replay::stepWord(step.kind);
    for (const QString &argument : step.arguments) {
        if (argument.contains(u'\n'))
            return {};
        line += u' ' + quoted(argument);
    }
    return line;
}

/// A number sign is left alone: it begins the index of an item.
QString quoted(const QString &word)
{
    static const QRegularExpression plain(QStringLiteral("^(#[0-9]+|[A-Za-z0-9_./:@%+,=-]+)$"),
                                          QRegularExpression::DontCaptureOption);
    if (plain.match(word).hasMatch())
        return word;
    QString inside = word;
    inside.replace(u'\'', QStringLiteral("'\\''"));
    return u'\'' + inside + u'\'';
}

} // namespace dialog::record
