#pragma once

#include "dialog/jobs/ticket.h"

#include <QString>

#include <functional>

namespace dialog {

/// Folder of the job folders: this one when it is not null, else "korvane-print/jobs" in the user's
/// data folder ($XDG_DATA_HOME, else ~/.local/share).
[[nodiscard]] QString jobsFolder(const QString &requested);

/// Name of a new job: "korvane-job-" and the time to the millisecond, or the next one where this
/// program has named a job so already.
[[nodiscard]] QString newJobId(const QDateTime &time);

struct JobFolderResult
{
    QString ticketPath = {}; ///< null unless the job is there
    QString error = {};      ///< null, too, when it was given up
};

/// Goes along with the writing of a job folder, on the thread that writes.
struct FolderWatch
{
    /// After each part of the document; false gives the job up.
    std::function<bool(qint64 copiedBytes, qint64 allBytes)> goesOn = [](qint64, qint64) {
        return true;
    };
    /// Once, before the folder appears; false gives the job up.
    std::function<bool()> mayAppear = [] { return true; };
};

/// Writes "<folder>/<ticket.id>/" with "ticket.json" and, unless @p document is null, a copy of the
/// document under ticket.documentFile. The folder appears complete or not at all; one of that name
/// is never replaced. Only this user may read it. May be called on any thread.
[[nodiscard]] JobFolderResult writeJobFolder(const QString &folder, const Ticket &ticket,
                                             const QString &document,
                                             const FolderWatch &watch = {});

} // namespace dialog
