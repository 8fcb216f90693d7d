#pragma once

#include "dialog/jobs/job_journal.h"
#include "dialog/printers/queue_job.h"

#include <QObject>

#include <memory>
#include <vector>

namespace dialog {

/// What is sent to a queue.
struct QueueDocument
{
    QString title;
    QString path;
    JobOptions options;
};

/// Prints documents to one queue, none of them twice: every attempt stands in the journal until its
/// end is known, and a document whose attempt is open is looked for before it is sent again.
class QueuePrinting : public QObject
{
    Q_OBJECT

public:
    QueuePrinting(QString queue, const ServerLimits &limits, QObject *parent = nullptr);

    /// Finds out what became of jobs of programs that are gone; earlierSettled() tells.
    void settleEarlier();
    [[nodiscard]] bool isSending() const { return job_ != nullptr; }
    /// Whether the end of an attempt to print the document is not known; send() finds it out first.
    [[nodiscard]] bool isUnsettled(const QString &document) const
    {
        return !openAttempts(document).empty();
    }
    /// Does nothing while another document is being sent.
    void send(const QueueDocument &document);
    void cancel();
    /// Whether signInWanted() finds somebody who asks a person; nobody at first.
    void setSignInBy(SignInBy who) { signInBy_ = who; }
    void signIn(std::unique_ptr<Credentials> credentials);

Q_SIGNALS:
    void progressed(qint64 sentBytes, qint64 totalBytes);
    /// The job waits for signIn() or cancel(). The question is void when the job ends.
    void signInWanted(const dialog::SignInQuestion &question);
    void finished(const dialog::QueueJobResult &result);
    void earlierSettled(const QString &message);

private:
    struct Attempt
    {
        QString token;
        QString document;
    };

    [[nodiscard]] std::vector<JobTrace> openAttempts(const QString &document) const;
    void finish(const QueueJobResult &result);
    void tellEarlier(const std::vector<JournalEntry> &entries,
                     const std::vector<Settlement> &settlements);

    const QString queue_;
    const ServerLimits limits_;
    const std::shared_ptr<JobJournal> journal_; ///< shared with workers, which may stay longer
    std::vector<Attempt> attempts_;
    QueueJob *job_ = nullptr;
    SignInBy signInBy_ = SignInBy::Nobody;
};

} // namespace dialog
