#pragma once

#include "dialog/printers/server_job.h"
#include "dialog/printers/sign_in.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace dialog {

struct QueueJobRequest
{
    QString title;
    QString document; ///< real path
    JobOptions options;
    JobTrace trace;                ///< token and queue of the new job
    std::vector<JobTrace> earlier; ///< attempts whose end is not known; settled before this one
    /// Writes down how far the job has come, before the next step is taken; called on the worker's
    /// thread. Without it, or when it answers false, nothing is sent.
    std::function<bool(const JobTrace &)> remember = {};
    ServerLimits limits = {};
    SignInBy signInBy = SignInBy::Nobody;
};

struct QueueJobResult
{
    int jobId = 0; ///< 0: no job was made
    JobFault fault = JobFault::None;
    QString detail = {};    ///< words of the server or the system; may be null
    bool isEarlier = false; ///< an earlier attempt had arrived, and nothing was sent again
    JobState state = JobState::Unknown;
    std::vector<OptionDifference> differences = {};
    /// Attempts, this one included, that need not be looked for any more.
    QStringList settledTokens = {};
};

/// Sends one job to a print queue on a worker's thread, which shares nothing with the dialog but
/// its copy of the request. The main thread never waits for the server: a step that takes longer
/// than its limit is told at once, the worker's connection is cut, and the worker abandoned.
class QueueJob : public QObject
{
    Q_OBJECT

public:
    explicit QueueJob(QObject *parent = nullptr);
    /// Abandons a job that is still on its way.
    ~QueueJob() override;

    void start(const QueueJobRequest &request);
    /// Takes the job back; finished() follows within the limit.
    void cancel();
    /// What a person answered to signInWanted().
    void signIn(std::unique_ptr<Credentials> credentials);

Q_SIGNALS:
    // On the main thread.
    void progressed(qint64 sentBytes, qint64 totalBytes);
    /// The job waits for signIn() or cancel(), and goes on without when nothing comes in time.
    void signInWanted(const dialog::SignInQuestion &question);
    /// Once per start().
    void finished(const dialog::QueueJobResult &result);

private:
    struct Shared;
    void takeStep(qint64 sentBytes, qint64 totalBytes);
    void askPerson(const SignInQuestion &question);
    void abandon();
    void finish(const QueueJobResult &result);

    std::shared_ptr<Shared> shared_;
    QTimer patience_;
};

/// Finds out on a worker's thread what became of jobs of an earlier start; @p told is called on the
/// main thread with one settlement for each, in order, unless @p context has gone.
void settleJobs(QObject *context, const std::vector<JobTrace> &traces, const ServerLimits &limits,
                const std::function<void(const std::vector<Settlement> &)> &told);

} // namespace dialog
