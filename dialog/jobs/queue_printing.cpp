#include "dialog/jobs/queue_printing.h"

#include "dialog/jobs/job_messages.h"

#include <algorithm>

namespace dialog {

QueuePrinting::QueuePrinting(QString queue, const ServerLimits &limits, QObject *parent)
    : QObject(parent), queue_(std::move(queue)), limits_(limits),
      journal_(std::make_shared<JobJournal>(journalFolder()))
{
}

void QueuePrinting::settleEarlier()
{
    const std::vector<JournalEntry> entries = journal_->takeOver(serverName());
    if (entries.empty())
        return;
    std::vector<JobTrace> traces;
    for (const JournalEntry &entry : entries)
        traces.push_back(entry.trace);
    settleJobs(this, traces, limits_, [this, entries](const std::vector<Settlement> &found) {
        tellEarlier(entries, found);
    });
}

/// What the server did not tell stays for the next start.
void QueuePrinting::tellEarlier(const std::vector<JournalEntry> &entries,
                                const std::vector<Settlement> &settlements)
{
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const QString message =
            settlementMessage(settlements[i], entries[i].title, entries[i].trace.queue);
        if (message.isNull())
            continue;
        journal_->forget(entries[i].trace.token);
        Q_EMIT earlierSettled(message);
    }
}

std::vector<JobTrace> QueuePrinting::openAttempts(const QString &document) const
{
    std::vector<JobTrace> traces;
    for (const Attempt &attempt : attempts_) {
        const auto trace = journal_->find(attempt.token);
        if (attempt.document == document && trace)
            traces.push_back(*trace);
    }
    return traces;
}

void QueuePrinting::send(const QueueDocument &document)
{
    if (job_)
        return;
    const JobTrace trace{newJobToken(), queue_};
    const JournalEntry entry{trace, serverName(), document.title, QDateTime::currentDateTimeUtc()};
    QueueJobRequest request{document.title, document.path, document.options, trace,
                            openAttempts(document.path)};
    request.limits = limits_;
    request.signInBy = signInBy_;
    request.remember = [journal = journal_, entry](const JobTrace &now) {
        return journal->write({now, entry.server, entry.title, entry.time});
    };
    attempts_.push_back({trace.token, document.path});
    job_ = new QueueJob(this);
    connect(job_, &QueueJob::progressed, this, &QueuePrinting::progressed);
    connect(job_, &QueueJob::signInWanted, this, &QueuePrinting::signInWanted);
    connect(job_, &QueueJob::finished, this, &QueuePrinting::finish);
    job_->start(request);
}

void QueuePrinting::cancel()
{
    if (job_)
        job_->cancel();
}

void QueuePrinting::signIn(std::unique_ptr<Credentials> credentials)
{
    if (job_)
        job_->signIn(std::move(credentials));
}

void QueuePrinting::finish(const QueueJobResult &result)
{
    std::exchange(job_, nullptr)->deleteLater();
    for (const QString &token : result.settledTokens)
        journal_->forget(token);
    Q_EMIT finished(result);
}

} // namespace dialog
