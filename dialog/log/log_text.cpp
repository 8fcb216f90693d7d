#include "dialog/log/log_text.h"

#include <QStringList>

namespace dialog::debuglog {
namespace {

constexpr int kIndent = 2;

/// What a message's second line stands below.
const QString kTimeColumn = QStringLiteral("14:03:07.042  ");

QString timeText(int milliseconds)
{
    const int seconds = milliseconds / 1000;
    const auto twoDigits = [](int number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    return twoDigits(seconds / 3600) + u':' + twoDigits(seconds / 60 % 60) + u':' +
           twoDigits(seconds % 60) +
           QStringLiteral(".%1  ").arg(milliseconds % 1000, 3, 10, QLatin1Char('0'));
}

QString durationText(const Entry &call)
{
    return call.duration ? QStringLiteral("%1 ms").arg(*call.duration) : QStringLiteral("no end");
}

QString indentation(const Entry &entry)
{
    return QString(kIndent * entry.depth, u' ');
}

QString callLine(const Entry &call, bool goesOn)
{
    const QString duration =
        !call.duration && goesOn ? QStringLiteral("goes on") : durationText(call);
    const QString begin = call.isContinued ? QStringLiteral("... ") : QString();
    return timeText(call.record.milliseconds) + indentation(call) + begin +
           shown(call.record.operation) + QStringLiteral("  (") + duration + QStringLiteral(")\n");
}

/// Where the record stands in the call that wrote it, the operation is not repeated.
QString messageHead(const Entry &entry, const QByteArray &around)
{
    const Record &record = entry.record;
    QString head = QString(QLatin1Char(record.kind)) + u' ';
    if (record.operation != around)
        head += shown(record.operation) + u' ';
    return head + QStringLiteral("L%1  ").arg(record.sourceLine);
}

QString messageLines(const Entry &entry, const QByteArray &around)
{
    const QString head = messageHead(entry, around);
    const QString indent = indentation(entry);
    QStringList lines = shown(entry.record.message).split(u'\n');
    QString text = timeText(entry.record.milliseconds) + indent + head + lines.takeFirst() + u'\n';
    const QString below = QString(kTimeColumn.size() + indent.size() + kIndent, u' ');
    for (const QString &line : lines)
        text += below + line + u'\n';
    if (entry.record.isCut)
        text += below + QStringLiteral("(cut)\n");
    return text;
}

QString places(const std::vector<qint64> &lines, qint64 count)
{
    QStringList words;
    for (const qint64 line : lines)
        words.append(QString::number(line));
    const bool isAll = static_cast<qint64>(lines.size()) == count;
    return words.join(QStringLiteral(", ")) + (isAll ? QString() : QStringLiteral(", ..."));
}

QString counted(qint64 count, const char *one, const char *many)
{
    return QString::number(count) + u' ' + QString::fromLatin1(count == 1 ? one : many);
}

} // namespace

QString treeText(const Action &action, const Filter &filter)
{
    QString text;
    std::vector<const Entry *> around; // open calls, outermost first
    std::size_t printed = 0;           // how many of them are in the text
    for (const Entry &entry : action.entries) {
        around.resize(static_cast<std::size_t>(entry.depth));
        printed = std::min(printed, around.size());
        const QByteArray operation =
            around.empty() ? QByteArray() : around.back()->record.operation;
        const bool isAdmitted = filter.admits(entry);
        if (entry.kind == Entry::Kind::Call)
            around.push_back(&entry);
        if (!isAdmitted)
            continue;
        for (; printed < around.size(); ++printed)
            text += callLine(*around[printed], action.goesOn);
        if (entry.kind == Entry::Kind::Message)
            text += messageLines(entry, operation);
    }
    return text;
}

QString actionLine(const Action &action)
{
    const Entry &call = action.entries.front();
    return QStringLiteral("%1  ").arg(action.number, 5) + timeText(call.record.milliseconds) +
           shown(call.record.operation) + QStringLiteral("  (") + durationText(call) +
           QStringLiteral(", process %1)\n").arg(action.process);
}

QString damageText(const QString &fileName, const Damage &damage, const Unbalanced &unbalanced)
{
    QString text;
    if (damage.lines > 0)
        text += fileName + QStringLiteral(": ") +
                counted(damage.lines, "line is damaged: line ", "lines are damaged: lines ") +
                places(damage.firstPlaces, damage.lines) + u'\n';
    if (unbalanced.firstLine > 0)
        text += fileName + QStringLiteral(":%1: ").arg(unbalanced.firstLine) +
                counted(unbalanced.callsWithoutEnd, "call has no end, ", "calls have no end, ") +
                counted(unbalanced.endsWithoutCall, "end has no call", "ends have no call") +
                QStringLiteral("; this is the first\n");
    return text;
}

QString shown(QByteArrayView bytes)
{
    const QString text = QString::fromUtf8(bytes);
    QString safe;
    safe.reserve(text.size());
    for (const QChar c : text) {
        const bool isSafe = c == u'\n' || c == u'\t' || c.category() != QChar::Other_Control;
        safe +=
            isSafe ? QString(c) : QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
    }
    return safe;
}

} // namespace dialog::debuglog
