#include "dialog/jobs/job_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace dialog {
namespace {

const QString kTicketName = QStringLiteral("ticket.json");

QString writeTicket(const QString &path, const Ticket &ticket)
{
    QFile file(path);
    const QByteArray bytes = QJsonDocument(toJson(ticket)).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        return file.errorString();
    return {};
}

/// Of the document, between two looks at whether its copy is still wanted.
constexpr qint64 kPart = 1'048'576;

struct Filled
{
    bool isDone = false;
    QString error = {};
};

Filled copyDocument(const QString &from, const QString &to, const FolderWatch &watch)
{
    QFile source(from);
    QFile target(to);
    if (!source.open(QIODevice::ReadOnly))
        return {false, source.errorString()};
    if (!target.open(QIODevice::WriteOnly))
        return {false, target.errorString()};
    while (!source.atEnd()) {
        const QByteArray part = source.read(kPart);
        if (part.isEmpty())
            return {false, source.errorString()};
        if (target.write(part) != part.size() || !target.flush())
            return {false, target.errorString()};
        if (!watch.goesOn(source.pos(), source.size()))
            return {};
    }
    return {true};
}

/// Renaming onto a folder that is not empty fails, so that no job is ever replaced.
QString moveIntoPlace(const QString &from, const QString &to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return {};
    return QString::fromLocal8Bit(std::strerror(errno));
}

Filled fill(const QString &path, const Ticket &ticket, const QString &document,
            const FolderWatch &watch)
{
    Filled copied = document.isNull()
                        ? Filled{true}
                        : copyDocument(document, path + u'/' + ticket.documentFile, watch);
    if (!copied.isDone)
        return copied;
    const QString error = writeTicket(path + u'/' + kTicketName, ticket);
    return {error.isNull(), error};
}

} // namespace

QString jobsFolder(const QString &requested)
{
    if (!requested.isNull())
        return QDir(requested).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/korvane-print/jobs");
}

QString newJobId(const QDateTime &time)
{
    static QDateTime last;
    const QDateTime utc = time.toUTC();
    last = last.isValid() ? std::max(utc, last.addMSecs(1)) : utc;
    return QStringLiteral("korvane-job-") + last.toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"));
}

JobFolderResult writeJobFolder(const QString &folder, const Ticket &ticket, const QString &document,
                               const FolderWatch &watch)
{
    if (!QDir().mkpath(folder))
        return {{}, QString::fromLocal8Bit(std::strerror(errno))};
    QTemporaryDir partial(folder + QStringLiteral("/.partial-XXXXXX"));
    if (!partial.isValid())
        return {{}, partial.errorString()};
    const Filled filled = fill(partial.path(), ticket, document, watch);
    if (!filled.isDone)
        return {{}, filled.error};
    if (!watch.mayAppear())
        return {};
    const QString target = folder + u'/' + ticket.id;
    const QString error = moveIntoPlace(partial.path(), target);
    if (!error.isNull())
        return {{}, error};
    partial.setAutoRemove(false);
    return {target + u'/' + kTicketName, {}};
}

} // namespace dialog
