#pragma once

#include "dialog/printers/job_options.h"

#include <QObject>

#include <memory>

namespace dialog {

struct QueueJobRequest
{
    QString queue;
    QString title;
    QString document; ///< real path
    JobOptions options;
};

struct QueueJobResult
{
    int jobId = 0; ///< 0: no job was made
    QString error; ///< null on success
};

/// Sends one job to a print queue on a thread of its own, which shares nothing with the dialog but
/// its copy of the request. Destroying the object abandons the answer; the thread ends by itself,
/// at the latest when the server's time is over.
class QueueJob : public QObject
{
    Q_OBJECT

public:
    explicit QueueJob(QObject *parent = nullptr);
    ~QueueJob() override;

    void start(const QueueJobRequest &request);

Q_SIGNALS:
    /// On the main thread, once per start().
    void finished(const dialog::QueueJobResult &result);

private:
    struct Mailbox;
    std::shared_ptr<Mailbox> mailbox_;
};

/// The queue's PPD as a file that the caller removes; null, with a reason, when it cannot be had.
/// Blocks, at most for the time that a server gets.
struct QueuePpd
{
    QString path;
    QString error;
};
[[nodiscard]] QueuePpd fetchQueuePpd(const QString &queue);

} // namespace dialog
