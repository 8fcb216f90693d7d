#pragma once

#include "dialog/printers/server_job.h"

#include <QDateTime>
#include <QString>

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

class QLockFile;

namespace dialog {

/// Folder of the journal: "korvane-print/jobs" in $XDG_STATE_HOME, else in ~/.local/state.
[[nodiscard]] QString journalFolder();

/// A job that was sent, or was to be, and of which nobody knows yet whether it prints.
struct JournalEntry
{
    JobTrace trace;
    QString server;
    QString title;
    QDateTime time;
};

/// Jobs on their way to print servers, one file each, so that a lost answer, a killed program and
/// the next start know of them. May be used from any thread.
class JobJournal
{
public:
    explicit JobJournal(QString folder);
    ~JobJournal();

    /// The file is there whole, as before, or not at all. False when it cannot be written. While
    /// this journal lives, the entry is this program's own. What has been forgotten is not written
    /// again.
    [[nodiscard]] bool write(const JournalEntry &entry);
    void forget(const QString &token);
    /// As it was written last; nothing when it was not, or is forgotten.
    [[nodiscard]] std::optional<JobTrace> find(const QString &token);
    /// Entries about that server of programs that are gone, oldest first; they become this
    /// program's own. What cannot be read is left alone.
    [[nodiscard]] std::vector<JournalEntry> takeOver(const QString &server);

private:
    [[nodiscard]] QString pathOf(const QString &token) const;
    [[nodiscard]] bool lock(const QString &token);

    const QString folder_;
    std::mutex mutex_;
    std::map<QString, std::unique_ptr<QLockFile>> locks_;
    std::map<QString, JobTrace> written_;
    std::set<QString> forgotten_;
};

} // namespace dialog
