#include "dialog/printers/server_job.h"

#include <cups/cups.h>

#include <QFile>
#include <QStringList>
#include <QUuid>

#include <array>
#include <cstring>

namespace dialog {
namespace {

constexpr qint64 kBlockBytes = 64 * 1024;
constexpr const char *kTokenAttribute = "job-uuid";

struct IppDeleter
{
    void operator()(ipp_t *ipp) const { ippDelete(ipp); }
};
using Ipp = std::unique_ptr<ipp_t, IppDeleter>;

struct FaultOfStatus
{
    ipp_status_t status;
    JobFault fault;
};

// clang-format off
constexpr FaultOfStatus kFaults[] = {
    {IPP_STATUS_ERROR_FORBIDDEN,                     JobFault::NotAllowed},
    {IPP_STATUS_ERROR_NOT_AUTHENTICATED,             JobFault::NotAllowed},
    {IPP_STATUS_ERROR_NOT_AUTHORIZED,                JobFault::NotAllowed},
    {IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED,  JobFault::NotAllowed},
    {IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS,            JobFault::NotAccepting},
    {IPP_STATUS_ERROR_PRINTER_IS_DEACTIVATED,        JobFault::NotAccepting},
    {IPP_STATUS_ERROR_NOT_FOUND,                     JobFault::NoQueue},
    {IPP_STATUS_ERROR_GONE,                          JobFault::NoQueue},
    {IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED, JobFault::FormatRefused},
    {IPP_STATUS_ERROR_DOCUMENT_FORMAT_ERROR,         JobFault::FormatRefused},
};
// clang-format on

/// Of this thread's last call, which failed.
JobFault lastFault(http_t *http)
{
    for (const auto &[status, fault] : kFaults) {
        if (cupsLastError() == status)
            return fault;
    }
    const int error = httpError(http);
    if (error == ETIMEDOUT || error == EWOULDBLOCK)
        return JobFault::Silent;
    const bool isBroken = error != 0 || cupsLastError() < IPP_STATUS_ERROR_BAD_REQUEST;
    return isBroken ? JobFault::Broken : JobFault::ServerError;
}

QByteArray printerUri(const QString &queue)
{
    char uri[1024];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.toUtf8().constData());
    return uri;
}

Ipp newRequest(ipp_op_t operation, const char *uriName, const QByteArray &uri)
{
    Ipp request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

Ipp newRequestOfJob(ipp_op_t operation, int jobId)
{
    return newRequest(operation, "job-uri", "ipp://localhost/jobs/" + QByteArray::number(jobId));
}

Ipp answer(http_t *http, Ipp request, const char *resource)
{
    return Ipp(cupsDoRequest(http, request.release(), resource));
}

bool isFine(const Ipp &response)
{
    return response && cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

/// Strings as they are, anything else as IPP writes it; null without the attribute.
QString valueText(ipp_attribute_t *attribute)
{
    if (!attribute)
        return {};
    QStringList values;
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        if (const char *text = ippGetString(attribute, i, nullptr))
            values.append(QString::fromUtf8(text));
    }
    if (!values.isEmpty())
        return values.join(u',');
    QByteArray written(static_cast<qsizetype>(ippAttributeString(attribute, nullptr, 0)) + 1, '\0');
    ippAttributeString(attribute, written.data(), static_cast<std::size_t>(written.size()));
    return QString::fromUtf8(written.constData());
}

QString textOf(ipp_t *ipp, const char *name, ipp_tag_t tag = IPP_TAG_ZERO)
{
    return valueText(ippFindAttribute(ipp, name, tag));
}

int numberOf(ipp_t *ipp, const char *name, ipp_tag_t tag = IPP_TAG_INTEGER)
{
    ipp_attribute_t *attribute = ippFindAttribute(ipp, name, tag);
    return attribute ? ippGetInteger(attribute, 0) : 0;
}

void addOptions(ipp_t *request, const JobOptions &options)
{
    int count = 0;
    cups_option_t *list = nullptr;
    for (const auto &[name, value] : options)
        count = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), count, &list);
    cupsEncodeOptions2(request, count, list, IPP_TAG_OPERATION);
    cupsEncodeOptions2(request, count, list, IPP_TAG_JOB);
    cupsEncodeOptions2(request, count, list, IPP_TAG_SUBSCRIPTION);
    cupsFreeOptions(count, list);
}

/// The first option that libcups left out of the request; null when it took every one.
QString lostOption(ipp_t *request, const JobOptions &options)
{
    for (const auto &[name, value] : options) {
        if (!ippFindAttribute(request, name.toUtf8().constData(), IPP_TAG_ZERO))
            return name;
    }
    return {};
}

JobOptions jobAttributes(ipp_t *request)
{
    JobOptions sent;
    for (ipp_attribute_t *attribute = ippFirstAttribute(request); attribute;
         attribute = ippNextAttribute(request)) {
        if (ippGetGroupTag(attribute) == IPP_TAG_JOB && ippGetName(attribute))
            sent.emplace_back(QString::fromUtf8(ippGetName(attribute)), valueText(attribute));
    }
    return sent;
}

bool writeDocument(http_t *http, QFile &document, const std::function<void(qint64)> &progressed)
{
    qint64 written = 0;
    for (;;) {
        const QByteArray block = document.read(kBlockBytes);
        if (block.isEmpty())
            return document.error() == QFile::NoError;
        const auto size = static_cast<std::size_t>(block.size());
        if (cupsWriteRequestData(http, block.constData(), size) != HTTP_STATUS_CONTINUE)
            return false;
        progressed(written += block.size());
    }
}

std::vector<OptionDifference> differencesOf(ipp_t *job, const JobOptions &sent)
{
    std::vector<OptionDifference> differences;
    for (const auto &[name, value] : sent) {
        const QString kept = textOf(job, name.toUtf8().constData());
        if (kept.isNull() || kept != value)
            differences.push_back({name, value, kept});
    }
    return differences;
}

bool contains(ipp_t *job, const char *name, const char *keyword)
{
    ipp_attribute_t *attribute = ippFindAttribute(job, name, IPP_TAG_KEYWORD);
    return attribute && ippContainsString(attribute, keyword);
}

/// While a document comes in, and after it broke off, the reason alone does not tell. Jobs that
/// have ended lose their documents, so that this is no question to ask of them.
bool isWithoutDocument(ipp_t *job)
{
    return contains(job, "job-state-reasons", "job-incoming") ||
           numberOf(job, "number-of-documents") == 0;
}

JobState stateOf(ipp_t *job)
{
    switch (numberOf(job, "job-state", IPP_TAG_ENUM)) {
    case IPP_JSTATE_HELD:
        return isWithoutDocument(job) ? JobState::Incoming : JobState::Waiting;
    case IPP_JSTATE_PENDING:
        return JobState::Waiting;
    case IPP_JSTATE_PROCESSING:
    case IPP_JSTATE_STOPPED:
        return JobState::Printing;
    case IPP_JSTATE_COMPLETED:
        return JobState::Done;
    case IPP_JSTATE_CANCELED:
    case IPP_JSTATE_ABORTED:
        return JobState::Stopped;
    default:
        return JobState::Unknown;
    }
}

/// The number of the job with that token among those that have not ended; 0 when there is none.
/// False when the server gives no answer.
bool findByToken(http_t *http, const JobTrace &trace, int &jobId)
{
    Ipp request = newRequest(IPP_OP_GET_JOBS, "printer-uri", printerUri(trace.queue));
    static const char *const wanted[] = {"job-id", kTokenAttribute};
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr,
                 "not-completed");
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", 2,
                  nullptr, wanted);
    const Ipp response = answer(http, std::move(request), "/");
    jobId = 0;
    if (!isFine(response))
        return response && cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
    int id = 0;
    bool isOurs = false;
    for (ipp_attribute_t *attribute = ippFirstAttribute(response.get()); attribute;
         attribute = ippNextAttribute(response.get())) {
        const char *name = ippGetName(attribute);
        if (!name) { // between two jobs
            id = 0;
            isOurs = false;
        } else if (std::strcmp(name, "job-id") == 0) {
            id = ippGetInteger(attribute, 0);
        } else if (std::strcmp(name, kTokenAttribute) == 0) {
            isOurs = valueText(attribute) == trace.token;
        }
        if (isOurs && id > 0)
            jobId = id;
    }
    return true;
}

/// The job's own attributes do not tell that its queue is paused.
bool isPaused(http_t *http, const QString &queue)
{
    Ipp request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri", printerUri(queue));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-state");
    const Ipp response = answer(http, std::move(request), "/");
    return isFine(response) &&
           numberOf(response.get(), "printer-state", IPP_TAG_ENUM) == IPP_PSTATE_STOPPED;
}

void cancelJob(http_t *http, int jobId)
{
    static_cast<void>(answer(http, newRequestOfJob(IPP_OP_CANCEL_JOB, jobId), "/jobs/"));
}

Settled settledAs(JobState state, SendStage stage)
{
    switch (state) {
    case JobState::Unknown:
    case JobState::Incoming:
        return Settled::Unknown;
    case JobState::Missing:
        return stage == SendStage::Sent ? Settled::Vanished : Settled::Absent;
    case JobState::Stopped:
        return Settled::Absent;
    default:
        return Settled::Printed;
    }
}

} // namespace

QString newJobToken()
{
    return QStringLiteral("urn:uuid:") + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

CreatedJob createJob(http_t *http, const JobTrace &trace, const QString &title,
                     const JobOptions &options)
{
    Ipp request = newRequest(IPP_OP_CREATE_JOB, "printer-uri", printerUri(trace.queue));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 title.toUtf8().constData());
    addOptions(request.get(), options);
    const QString lost = lostOption(request.get(), options);
    if (!lost.isNull())
        return {0, JobFault::SettingLost, lost};
    ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_URI, kTokenAttribute, nullptr,
                 trace.token.toUtf8().constData());
    const JobOptions sent = jobAttributes(request.get());
    const QByteArray resource = "/printers/" + trace.queue.toUtf8();
    const Ipp response = answer(http, std::move(request), resource.constData());
    const int jobId = isFine(response) ? numberOf(response.get(), "job-id") : 0;
    if (jobId == 0)
        return {0, lastFault(http), lastServerError()};
    return {jobId, JobFault::None, {}, sent};
}

SendOutcome sendDocument(http_t *http, const JobTrace &trace, const QString &title, QFile &document,
                         const std::function<void(qint64)> &progressed,
                         const std::function<void()> &allWritten)
{
    const QByteArray queue = trace.queue.toUtf8();
    const bool isWritten =
        cupsStartDocument(http, queue.constData(), trace.jobId, title.toUtf8().constData(),
                          CUPS_FORMAT_AUTO, 1) == HTTP_STATUS_CONTINUE &&
        writeDocument(http, document, progressed);
    if (document.error() != QFile::NoError)
        return {JobFault::DocumentLost, document.errorString()};
    if (isWritten)
        allWritten();
    // Without an answer libcups' last error may be that of an earlier request.
    const QByteArray resource = "/printers/" + queue;
    const Ipp response(isWritten ? cupsGetResponse(http, resource.constData()) : nullptr);
    if (isFine(response))
        return {};
    return {lastFault(http), lastServerError()};
}

JobStatus jobStatus(http_t *http, const JobTrace &trace, const JobOptions &sent)
{
    int jobId = trace.jobId;
    if (jobId == 0 && !findByToken(http, trace, jobId))
        return {};
    if (jobId == 0)
        return {JobState::Missing};
    const Ipp response = answer(http, newRequestOfJob(IPP_OP_GET_JOB_ATTRIBUTES, jobId), "/jobs/");
    if (!isFine(response))
        return {response && cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND ? JobState::Missing
                                                                          : JobState::Unknown};
    if (textOf(response.get(), kTokenAttribute) != trace.token)
        return {JobState::Missing};
    JobStatus status{stateOf(response.get()), jobId,
                     textOf(response.get(), "job-printer-state-message"),
                     differencesOf(response.get(), sent)};
    if (status.state == JobState::Waiting && isPaused(http, trace.queue))
        status.state = JobState::WaitingForQueue;
    return status;
}

Settlement settleJob(http_t *http, const JobTrace &trace)
{
    JobStatus status = jobStatus(http, trace);
    if (status.state != JobState::Incoming)
        return {settledAs(status.state, trace.stage), status.jobId};
    cancelJob(http, status.jobId);
    // The document may have arrived in between, so that the job's state decides, not the answer.
    const int jobId = status.jobId;
    JobTrace known = trace;
    known.jobId = jobId;
    status = jobStatus(http, known);
    if (status.state == JobState::Stopped || status.state == JobState::Missing)
        return {Settled::Withdrawn, jobId};
    return {settledAs(status.state, trace.stage), jobId};
}

} // namespace dialog
