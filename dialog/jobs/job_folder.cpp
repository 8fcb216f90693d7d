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

QString copyDocument(const QString &from, const QString &to)
{
    QFile source(from);
    return source.copy(to) ? QString() : source.errorString();
}

/// Renaming onto a folder that is not empty fails, so that no job is ever replaced.
QString moveIntoPlace(const QString &from, const QString &to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return {};
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString fill(const QString &path, const Ticket &ticket, const QString &document)
{
    if (!document.isNull()) {
        const QString error = copyDocument(document, path + u'/' + ticket.documentFile);
        if (!error.isNull())
            return error;
    }
    return writeTicket(path + u'/' + kTicketName, ticket);
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

JobFolderResult writeJobFolder(const QString &folder, const Ticket &ticket, const QString &document)
{
    if (!QDir().mkpath(folder))
        return {{}, QString::fromLocal8Bit(std::strerror(errno))};
    QTemporaryDir partial(folder + QStringLiteral("/.partial-XXXXXX"));
    if (!partial.isValid())
        return {{}, partial.errorString()};
    const QString target = folder + u'/' + ticket.id;
    QString error = fill(partial.path(), ticket, document);
    if (error.isNull())
        error = moveIntoPlace(partial.path(), target);
    if (!error.isNull())
        return {{}, error};
    partial.setAutoRemove(false);
    return {target + u'/' + kTicketName, {}};
}

} // namespace dialog
