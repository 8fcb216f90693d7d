#include "dialog/printers/unsendable.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {
namespace {

// Longer values, or an escape sign before each of their bytes, make the server's answer "success"
// without a job.
constexpr qsizetype kMostValueBytes = 32 * 1024 - 1;
// By the protocol; the server's own limit is higher.
constexpr qsizetype kMostNameBytes = 255;

struct Unsendable
{
    Q_DECLARE_TR_FUNCTIONS(Unsendable)
};

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

bool hasControl(const QString &text)
{
    return std::any_of(text.begin(), text.end(), isControl);
}

/// The server writes names as they are between blanks and "=", and the filter takes quotes and
/// braces for its own.
bool hasSeparator(const QString &name)
{
    return std::any_of(name.begin(), name.end(), [](QChar c) {
        return c.isSpace() || QStringView(u"=/'\"\\{}").contains(c);
    });
}

bool isTruth(const QString &value)
{
    return value.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

QString nameProblem(const QString &name)
{
    if (name.isEmpty())
        return Unsendable::tr("a setting has no name");
    if (name.toUtf8().size() > kMostNameBytes)
        return Unsendable::tr("the name is too long");
    if (hasControl(name) || hasSeparator(name) || !name.isValidUtf16())
        return Unsendable::tr("the name contains a character that cannot be sent");
    return {};
}

QString valueProblem(const QString &value)
{
    if (value.isEmpty())
        return Unsendable::tr("the value is empty");
    if (value.startsWith(u'{'))
        return Unsendable::tr("a value cannot begin with “{”");
    if (hasControl(value) || !value.isValidUtf16())
        return Unsendable::tr("the value contains a character that cannot be sent");
    if (value.toUtf8().size() > kMostValueBytes)
        return Unsendable::tr("the value is too long");
    return {};
}

QString problemOf(const QString &name, const QString &value)
{
    const QString problem = nameProblem(name);
    if (!problem.isNull())
        return problem;
    // A truth is written as the name alone, a falsehood as "no" and the name.
    if (isTruth(value) && name.startsWith(QLatin1String("no"), Qt::CaseInsensitive))
        return Unsendable::tr("the printer would read it as “off”");
    return valueProblem(value);
}

/// A reason names an option by no more than this.
QString shortName(const QString &name)
{
    constexpr qsizetype most = 60;
    QString shown = name.size() > most ? name.left(most) + u'…' : name;
    std::replace_if(shown.begin(), shown.end(), isControl, QChar(QChar::ReplacementCharacter));
    return shown;
}

} // namespace

qsizetype writtenBytes(const JobOptions &options)
{
    qsizetype bytes = 0;
    for (const auto &[name, value] : options) {
        const QByteArray written = value.toUtf8();
        const auto escaped = std::count_if(written.begin(), written.end(), [](char c) {
            return c == '\\' || c == '\'' || c == '"' || c == ' ';
        });
        bytes += name.toUtf8().size() + written.size() + escaped + 2; // "=" and a blank
    }
    return bytes;
}

QString unsendableReason(const JobOptions &options)
{
    for (const auto &[name, value] : options) {
        const QString problem = problemOf(name, value);
        if (!problem.isNull())
            return name.isEmpty() ? problem : shortName(name) + QStringLiteral(": ") + problem;
    }
    if (writtenBytes(options) > kMostWrittenBytes)
        return Unsendable::tr("all settings together are too long");
    return {};
}

} // namespace dialog
