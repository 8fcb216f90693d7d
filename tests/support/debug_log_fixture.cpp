#include "tests/support/debug_log_fixture.h"

#include "diag/debug_log.h"
#include "platform/property_list.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace test {
namespace {

constexpr char kTmpDir[] = "TMPDIR";

bool isTrace(const LogRecord &record)
{
    return record.kind == 'I' &&
           (record.message == QLatin1String("{") || record.message == QLatin1String("}"));
}

/// Where a record begins; a message may go on over several lines.
const QRegularExpression &recordStart()
{
    static const QRegularExpression pattern(
        QStringLiteral("^(.)([IEDANZ])(\\d{6,7})\\t\\[(\\d\\d:\\d\\d:\\d\\d\\.\\d{3})\\]\\t"
                       "([^\\t\\n]*)\\tL(-?\\d+)\\t"),
        QRegularExpression::MultilineOption);
    return pattern;
}

LogRecord recordOf(const QRegularExpressionMatch &start)
{
    return {.module = start.captured(1).at(0).toLatin1(),
            .kind = start.captured(2).at(0).toLatin1(),
            .pid = start.captured(3).toInt(),
            .time = start.captured(4),
            .operation = start.captured(5),
            .line = start.captured(6).toInt(),
            .message = {}};
}

} // namespace

QString LogRecord::brief() const
{
    return QStringLiteral("%1 %2 L%3 ").arg(QLatin1Char(kind)).arg(operation).arg(line) + message;
}

void PrintTo(const LogRecord &record, std::ostream *out)
{
    *out << record.brief().toStdString();
}

QList<LogRecord> parseLogRecords(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    QList<LogRecord> records;
    qsizetype messageStart = 0;
    const auto endMessage = [&](qsizetype end) {
        const QString message = text.mid(messageStart, end - messageStart);
        if (records.isEmpty())
            EXPECT_TRUE(message.isEmpty()) << "no record: " << message.toStdString();
        else if (!message.endsWith(QLatin1Char('\n')))
            ADD_FAILURE() << "record without line feed: " << message.toStdString();
        else
            records.last().message = message.chopped(1);
    };
    auto starts = recordStart().globalMatch(text);
    while (starts.hasNext()) {
        const QRegularExpressionMatch start = starts.next();
        endMessage(start.capturedStart());
        records.append(recordOf(start));
        messageStart = start.capturedEnd();
    }
    endMessage(text.size());
    return records;
}

DebugLog::DebugLog() : formerTmpDir_(qgetenv(kTmpDir))
{
    qputenv(kTmpDir, QFile::encodeName(directory_.path()));
    QDir(directory_.path()).mkpath(QStringLiteral("Debug/.DebugPlist"));
    diag::resetDebugLog();
}

DebugLog::~DebugLog()
{
    diag::resetDebugLog();
    if (formerTmpDir_.isNull())
        qunsetenv(kTmpDir);
    else
        qputenv(kTmpDir, formerTmpDir_);
}

void DebugLog::switchOn(int level) const
{
    writeEntry({{QStringLiteral("debugLevel"), qlonglong(level)},
                {QStringLiteral("moduleNumber"), 1LL},
                {QStringLiteral("debugFile"), QStringLiteral("x.log")}});
}

void DebugLog::writeEntry(const QVariantMap &entry) const
{
    writeList(QVariantMap{{QStringLiteral("PDE-REFRESH"), entry}});
}

void DebugLog::writeList(const QVariant &list) const
{
    const QByteArray xml = platform::propertyListXml(list);
    ASSERT_FALSE(xml.isNull()) << "not a property list";
    writeListBytes(xml);
}

void DebugLog::writeListBytes(const QByteArray &bytes) const
{
    QFile file(listPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write(bytes), bytes.size());
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
}

QString DebugLog::listPath() const
{
    return directory_.filePath(QStringLiteral("Debug/.DebugPlist/kvDebug.plist"));
}

QString DebugLog::logPath() const
{
    return directory_.filePath(QStringLiteral("x.log"));
}

QByteArray DebugLog::bytes() const
{
    QFile file(logPath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    return bytes.isNull() ? QByteArray("") : bytes;
}

QList<LogRecord> DebugLog::records() const
{
    return parseLogRecords(bytes());
}

QList<LogRecord> DebugLog::ownRecords() const
{
    QList<LogRecord> own = records();
    own.removeIf([](const LogRecord &record) {
        return record.kind == 'A' || record.kind == 'N' ||
               (record.kind == 'D' && record.operation == QLatin1String("setupDebug"));
    });
    return own;
}

QStringList DebugLog::traces() const
{
    QStringList traces;
    for (const LogRecord &record : records())
        if (isTrace(record))
            traces.append(record.message + QLatin1Char(' ') + record.operation);
    return traces;
}

QStringList DebugLog::infoMessages() const
{
    return messages('I');
}

QStringList DebugLog::errorMessages() const
{
    return messages('E');
}

QStringList DebugLog::messages(char kind) const
{
    QStringList messages;
    for (const LogRecord &record : records())
        if (record.kind == kind && !isTrace(record))
            messages.append(record.message);
    return messages;
}

} // namespace test
