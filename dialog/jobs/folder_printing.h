#pragma once

#include "dialog/jobs/job_folder.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace dialog {

/// Writes job folders on a thread of its own, one at a time: a document may be large, a disk may
/// hang.
class FolderPrinting : public QObject
{
    Q_OBJECT

public:
    /// Called on the thread; does what writeJobFolder() does.
    using Writer = std::function<JobFolderResult(const FolderWatch &watch)>;

    explicit FolderPrinting(QObject *parent = nullptr);
    /// Gives up what is under way, and waits a moment for it; nothing of it is left, unless a disk
    /// that hangs holds it up.
    ~FolderPrinting() override;

    [[nodiscard]] bool isWriting() const { return work_ != nullptr; }
    /// Does nothing while another job is being written.
    void start(const Writer &write);
    /// finished() follows soon, even if the disk hangs: with a job that had been written already,
    /// or one that is given up.
    void cancel();

Q_SIGNALS:
    void progressed(qint64 copiedBytes, qint64 allBytes);
    /// Once per start().
    void finished(const dialog::JobFolderResult &result);

private:
    struct Work;
    void finish(const JobFolderResult &result);

    std::shared_ptr<Work> work_; ///< null while there is none
    std::vector<std::shared_ptr<Work>> givenUp_;
};

} // namespace dialog
