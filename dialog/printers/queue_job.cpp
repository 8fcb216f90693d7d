#include "dialog/printers/queue_job.h"

#include "dialog/threads/thread_link.h"

#include <cups/cups.h>

#include <QCoreApplication>
#include <QFile>
#include <QPointer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace dialog {
namespace {

// A server takes a job over at once; a slow one is not waited for longer than this.
constexpr int kMostLooks = 20;
constexpr auto kBetweenLooks = std::chrono::milliseconds(25);

} // namespace

struct QueueJob::Shared : ThreadLink<QueueJob>
{
    using ThreadLink::ThreadLink;

    std::mutex mutex; ///< of the answer
    Lifeline lifeline;
    std::atomic<bool> isCancelled = false;
    std::atomic<bool> isAbandoned = false;
    std::condition_variable answered; ///< or nobody waits for the answer any more
    bool hasAnswer = false;
    std::unique_ptr<Credentials> answer;

    /// On the worker's thread.
    [[nodiscard]] std::unique_ptr<Credentials> askPerson(const SignInQuestion &question,
                                                         std::chrono::milliseconds limit)
    {
        if (isCancelled)
            return nullptr;
        post([question](QueueJob &job) { job.askPerson(question); });
        std::unique_lock lock(mutex);
        answered.wait_for(lock, limit, [this] { return hasAnswer || isCancelled || isAbandoned; });
        hasAnswer = false;
        return std::move(answer);
    }
    void give(std::unique_ptr<Credentials> credentials)
    {
        {
            const std::lock_guard lock(mutex);
            answer = std::move(credentials);
            hasAnswer = true;
        }
        answered.notify_all();
    }
    /// Wakes a worker that waits for a person; which of both flags is set tells why.
    void stop(std::atomic<bool> &flag)
    {
        {
            const std::lock_guard lock(mutex);
            flag = true;
        }
        answered.notify_all();
    }
};

namespace {

/// The worker: one job from the first request to the last look.
class Sender
{
public:
    Sender(const QueueJobRequest &request, Lifeline &lifeline, const std::atomic<bool> &isCancelled,
           const std::atomic<bool> &isAbandoned, std::function<void(qint64, qint64)> stepped,
           AskPerson ask)
        : request_(request), lifeline_(lifeline), isCancelled_(isCancelled),
          isAbandoned_(isAbandoned), stepped_(std::move(stepped)), signIn_(std::move(ask))
    {
    }

    QueueJobResult run()
    {
        QFile document(request_.document);
        if (!document.open(QIODevice::ReadOnly))
            return ended(JobFault::DocumentLost, document.errorString());
        total_ = document.size();
        http_ = connect();
        if (!http_)
            return ended(JobFault::NoServer, lastServerError());
        if (auto known = earlierJob())
            return *known;
        if (!remember(SendStage::Creating))
            return ended(JobFault::NotRemembered, {});
        return create(document);
    }

private:
    [[nodiscard]] Connection connect()
    {
        return connectToServer(request_.limits, &lifeline_, &signIn_);
    }

    void step(qint64 sent)
    {
        if (http_)
            lifeline_.hold(httpGetFd(http_.get())); // libcups connects anew to sign in
        stepped_(sent, total_);
    }

    bool remember(SendStage stage)
    {
        trace_.stage = stage;
        return request_.remember && request_.remember(trace_);
    }

    /// Nothing was or will be printed of this attempt.
    QueueJobResult ended(JobFault fault, const QString &detail)
    {
        QueueJobResult result{0, isCancelled_ ? JobFault::Cancelled : fault, detail};
        result.settledTokens = settled_ << trace_.token;
        return result;
    }

    /// This attempt stays in the journal.
    QueueJobResult undecided(JobFault fault, const QString &detail)
    {
        QueueJobResult result{0, isCancelled_ ? JobFault::Cancelled : fault, detail};
        result.settledTokens = settled_;
        return result;
    }

    /// What an earlier attempt came to, where that ends this one.
    std::optional<QueueJobResult> earlierJob()
    {
        for (const JobTrace &earlier : request_.earlier) {
            step(0);
            const Settlement found = settleJob(http_.get(), earlier);
            if (found.outcome == Settled::Unknown)
                return ended(JobFault::Silent, lastServerError());
            settled_ << earlier.token;
            if (found.outcome == Settled::Vanished)
                return ended(JobFault::MaybePrinted, {});
            if (found.outcome == Settled::Printed) {
                QueueJobResult result = ended(JobFault::None, {});
                result.jobId = found.jobId;
                result.isEarlier = true;
                return result;
            }
        }
        return std::nullopt;
    }

    QueueJobResult create(QFile &document)
    {
        step(0);
        const CreatedJob created = createJob(http_.get(), trace_, request_.title, request_.options);
        if (created.fault == JobFault::SettingLost)
            return ended(created.fault, created.detail);
        if (created.jobId == 0)
            return wrapUp(created.fault, created.detail);
        trace_.jobId = created.jobId;
        if (!remember(SendStage::Sending))
            return wrapUp(JobFault::NotRemembered, {});
        step(0);
        const SendOutcome outcome = sendDocument(
            http_.get(), trace_, request_.title, document, [this](qint64 sent) { step(sent); },
            [this] { static_cast<void>(remember(SendStage::Sent)); });
        if (outcome.fault != JobFault::None || isCancelled_)
            return wrapUp(outcome.fault, outcome.detail);
        return follow(created.sent);
    }

    /// After a fault: what the server has is found, on a new connection, and left whole or taken
    /// back.
    QueueJobResult wrapUp(JobFault fault, const QString &detail)
    {
        if (isAbandoned_ || (fault == JobFault::Silent && !isCancelled_))
            return undecided(fault, detail);
        lifeline_.mend();
        step(0);
        http_ = connect();
        if (!http_)
            return undecided(fault, detail);
        if (isCancelled_)
            trace_.stage = std::min(trace_.stage, SendStage::Sending);
        const Settlement found = settleJob(http_.get(), trace_);
        // Who may not print may not look for jobs either; there is none but an empty one.
        const bool isForbidden = fault == JobFault::NotAllowed && trace_.stage != SendStage::Sent;
        if (found.outcome == Settled::Unknown && !isForbidden)
            return undecided(fault, detail);
        if (found.outcome == Settled::Vanished)
            return ended(JobFault::MaybePrinted, {});
        if (found.outcome != Settled::Printed)
            return ended(fault, detail);
        trace_.jobId = found.jobId;
        return follow({});
    }

    /// Until the server has taken the job over; what it kept of the settings is read back.
    QueueJobResult follow(const JobOptions &sent)
    {
        JobStatus status;
        for (int i = 0; i < kMostLooks && status.state != JobState::Done; ++i) {
            step(total_);
            status = jobStatus(http_.get(), trace_, sent);
            if (status.state != JobState::Incoming)
                break;
            std::this_thread::sleep_for(kBetweenLooks);
        }
        if (status.state == JobState::Incoming)
            return wrapUp(JobFault::Broken, {});
        if (status.state == JobState::Stopped)
            return ended(JobFault::Stopped, status.message);
        QueueJobResult result{trace_.jobId};
        result.state = status.state;
        result.differences = status.differences;
        result.settledTokens = settled_ << trace_.token;
        return result;
    }

    const QueueJobRequest &request_;
    Lifeline &lifeline_;
    const std::atomic<bool> &isCancelled_;
    const std::atomic<bool> &isAbandoned_;
    std::function<void(qint64, qint64)> stepped_;
    SignIn signIn_;
    JobTrace trace_ = request_.trace;
    QStringList settled_;
    Connection http_;
    qint64 total_ = 0;
};

} // namespace

QueueJob::QueueJob(QObject *parent) : QObject(parent)
{
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, &QueueJob::abandon);
}

QueueJob::~QueueJob()
{
    if (!shared_)
        return;
    shared_->hangUp();
    shared_->stop(shared_->isAbandoned);
    shared_->lifeline.cut();
}

void QueueJob::start(const QueueJobRequest &request)
{
    shared_ = std::make_shared<Shared>(this);
    patience_.start(request.limits.answerMilliseconds);
    shared_->start([shared = shared_, request] {
        const auto stepped = [&shared](qint64 sent, qint64 total) {
            shared->post([sent, total](QueueJob &job) { job.takeStep(sent, total); });
        };
        const auto ask = [&shared, &request](const SignInQuestion &question) {
            return request.signInBy == SignInBy::Nobody
                       ? nullptr
                       : shared->askPerson(question, std::chrono::milliseconds(
                                                         request.limits.signInMilliseconds));
        };
        const QueueJobResult result = Sender(request, shared->lifeline, shared->isCancelled,
                                             shared->isAbandoned, stepped, ask)
                                          .run();
        shared->post([result](QueueJob &job) { job.finish(result); });
    });
}

void QueueJob::takeStep(qint64 sentBytes, qint64 totalBytes)
{
    patience_.start();
    Q_EMIT progressed(sentBytes, totalBytes);
}

/// A person may take longer than a server.
void QueueJob::askPerson(const SignInQuestion &question)
{
    patience_.stop();
    Q_EMIT signInWanted(question);
}

void QueueJob::signIn(std::unique_ptr<Credentials> credentials)
{
    if (!shared_)
        return;
    patience_.start();
    shared_->give(std::move(credentials));
}

void QueueJob::cancel()
{
    if (!shared_ || shared_->isCancelled)
        return;
    patience_.start();
    shared_->stop(shared_->isCancelled);
    shared_->lifeline.cut();
}

void QueueJob::abandon()
{
    if (shared_)
        finish({0, shared_->isCancelled ? JobFault::Cancelled : JobFault::Silent});
}

/// The first end counts; an answer that is still on its way to this thread is dropped.
void QueueJob::finish(const QueueJobResult &result)
{
    patience_.stop();
    shared_->hangUp();
    shared_->stop(shared_->isAbandoned);
    shared_->lifeline.cut();
    shared_.reset();
    Q_EMIT finished(result);
}

void settleJobs(QObject *context, const std::vector<JobTrace> &traces, const ServerLimits &limits,
                const std::function<void(const std::vector<Settlement> &)> &told)
{
    std::thread([context = QPointer<QObject>(context), traces, limits, told] {
        std::vector<Settlement> found(traces.size());
        const Connection http = connectToServer(limits);
        for (std::size_t i = 0; http && i < traces.size(); ++i)
            found[i] = settleJob(http.get(), traces[i]);
        // The application outlives every dialog; whether this one still lives is asked there.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [context, found, told] {
                if (context)
                    told(found);
            },
            Qt::QueuedConnection);
    }).detach();
}

} // namespace dialog
