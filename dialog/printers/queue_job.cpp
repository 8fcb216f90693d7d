#include "dialog/printers/queue_job.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <QFile>

#include <mutex>
#include <thread>

namespace dialog {
namespace {

constexpr int kConnectMilliseconds = 10'000;
constexpr double kAnswerSeconds = 30.0;
constexpr qint64 kBlockBytes = 64 * 1024;

struct ConnectionCloser
{
    void operator()(http_t *http) const { httpClose(http); }
};
using Connection = std::unique_ptr<http_t, ConnectionCloser>;

int giveUp(http_t *, void *)
{
    return 0;
}

/// A connection of this thread's own to the print server of the environment; null when there is
/// none.
Connection connectToServer()
{
    Connection http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 kConnectMilliseconds, nullptr));
    if (http)
        httpSetTimeout(http.get(), kAnswerSeconds, giveUp, nullptr);
    return http;
}

QString lastError()
{
    return QString::fromUtf8(cupsLastErrorString());
}

class OptionList
{
public:
    explicit OptionList(const JobOptions &options)
    {
        for (const auto &[name, value] : options)
            count_ = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), count_,
                                   &list_);
    }
    ~OptionList() { cupsFreeOptions(count_, list_); }
    OptionList(const OptionList &) = delete;
    OptionList &operator=(const OptionList &) = delete;

    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] cups_option_t *list() const { return list_; }

private:
    int count_ = 0;
    cups_option_t *list_ = nullptr;
};

bool writeDocument(http_t *http, QFile &document)
{
    for (;;) {
        const QByteArray block = document.read(kBlockBytes);
        if (block.isEmpty())
            return document.error() == QFile::NoError;
        const auto size = static_cast<std::size_t>(block.size());
        if (cupsWriteRequestData(http, block.constData(), size) != HTTP_STATUS_CONTINUE)
            return false;
    }
}

bool sendDocument(http_t *http, const QueueJobRequest &request, int jobId, QFile &document)
{
    const QByteArray queue = request.queue.toUtf8();
    const http_status_t status = cupsStartDocument(
        http, queue.constData(), jobId, request.title.toUtf8().constData(), CUPS_FORMAT_AUTO, 1);
    return status == HTTP_STATUS_CONTINUE && writeDocument(http, document) &&
           cupsFinishDocument(http, queue.constData()) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

/// A job without its whole document is taken back, so that nothing half prints.
QueueJobResult cancelled(http_t *http, const QueueJobRequest &request, int jobId)
{
    const QString error = lastError();
    cupsCancelJob2(http, request.queue.toUtf8().constData(), jobId, 1);
    return {0, error};
}

QueueJobResult send(const QueueJobRequest &request)
{
    QFile document(request.document);
    if (!document.open(QIODevice::ReadOnly))
        return {0, document.errorString()};
    const Connection http = connectToServer();
    if (!http)
        return {0, lastError()};
    const OptionList options(request.options);
    const int jobId =
        cupsCreateJob(http.get(), request.queue.toUtf8().constData(),
                      request.title.toUtf8().constData(), options.count(), options.list());
    if (jobId == 0)
        return {0, lastError()};
    if (!sendDocument(http.get(), request, jobId, document))
        return cancelled(http.get(), request, jobId);
    return {jobId, {}};
}

} // namespace

/// Where the sending thread leaves its answer; outlives whichever of both ends first.
struct QueueJob::Mailbox
{
    std::mutex mutex;
    QueueJob *receiver = nullptr; ///< null once it is gone
};

QueueJob::QueueJob(QObject *parent) : QObject(parent), mailbox_(std::make_shared<Mailbox>())
{
    mailbox_->receiver = this;
}

QueueJob::~QueueJob()
{
    const std::lock_guard lock(mailbox_->mutex);
    mailbox_->receiver = nullptr;
}

void QueueJob::start(const QueueJobRequest &request)
{
    std::thread([mailbox = mailbox_, request] {
        const QueueJobResult result = send(request);
        const std::lock_guard lock(mailbox->mutex);
        QueueJob *receiver = mailbox->receiver;
        if (receiver)
            QMetaObject::invokeMethod(
                receiver, [receiver, result] { Q_EMIT receiver->finished(result); },
                Qt::QueuedConnection);
    }).detach();
}

QueuePpd fetchQueuePpd(const QString &queue)
{
    const Connection http = connectToServer();
    if (!http)
        return {{}, lastError()};
    time_t modified = 0;
    char path[1024] = "";
    const http_status_t status =
        cupsGetPPD3(http.get(), queue.toUtf8().constData(), &modified, path, sizeof path);
    if (status != HTTP_STATUS_OK)
        return {{}, lastError()};
    return {QFile::decodeName(path), {}};
}

} // namespace dialog
