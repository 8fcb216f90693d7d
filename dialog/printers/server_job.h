#pragma once

#include "dialog/printers/job_options.h"
#include "dialog/printers/server_connection.h"

#include <QString>

#include <functional>
#include <vector>

class QFile;

/// One job at a print server, request by request. Everything here blocks: on a worker's thread
/// only.
namespace dialog {

/// Why a job did not come to its end.
enum class JobFault {
    None,
    NoServer,      ///< nobody answers at its address
    Silent,        ///< no answer in time
    Broken,        ///< the connection ended, or the answer was no answer
    NotAllowed,    ///< the server wants a name and password
    NotAccepting,  ///< the queue rejects jobs
    NoQueue,       ///< the queue is gone
    FormatRefused, ///< the queue cannot print such a document
    ServerError,   ///< another refusal, in the server's words
    DocumentLost,  ///< the document cannot be read
    SettingLost,   ///< a setting would get lost on its way
    NotRemembered, ///< the job could not be written into the journal, so it was not sent
    Cancelled,     ///< by the person
    MaybePrinted,  ///< the server no longer knows an earlier job that was sent whole
    Stopped,       ///< the server took the job and gave it up
    Count
};

/// How far a job had come; what the journal remembers.
enum class SendStage {
    Creating, ///< the server may know an empty job
    Sending,  ///< it has the job's number, and not the whole document
    Sent,     ///< every byte has left
};

/// What is needed to find a job again, whatever answer was lost.
struct JobTrace
{
    QString token; ///< unique; the job's "job-uuid" at the server
    QString queue;
    int jobId = 0; ///< 0: not known
    SendStage stage = SendStage::Creating;
};

/// A new token: "urn:uuid:" and a random UUID.
[[nodiscard]] QString newJobToken();

struct OptionDifference
{
    QString option;
    QString sent;
    QString kept; ///< null: the server has no such attribute

    bool operator==(const OptionDifference &) const = default;
};

struct CreatedJob
{
    int jobId = 0; ///< 0: see fault
    JobFault fault = JobFault::None;
    QString detail = {};
    JobOptions sent = {}; ///< as the request carried them
};

/// Create-Job. The job is empty and prints nothing.
[[nodiscard]] CreatedJob createJob(http_t *http, const JobTrace &trace, const QString &title,
                                   const JobOptions &options);

struct SendOutcome
{
    JobFault fault = JobFault::None;
    QString detail = {};
};

/// Send-Document with the whole file as the job's last one. @p allWritten is called before the
/// answer is awaited; @p progressed with the bytes written so far.
[[nodiscard]] SendOutcome sendDocument(http_t *http, const JobTrace &trace, const QString &title,
                                       QFile &document,
                                       const std::function<void(qint64)> &progressed,
                                       const std::function<void()> &allWritten);

enum class JobState {
    Unknown,         ///< the server did not answer
    Missing,         ///< the server has no such job
    Incoming,        ///< created, without its document
    Waiting,         ///< taken over, not begun
    WaitingForQueue, ///< taken over, the queue is paused
    Printing,
    Done,
    Stopped, ///< cancelled or aborted
};

struct JobStatus
{
    JobState state = JobState::Unknown;
    int jobId = 0;
    QString message = {};                           ///< the printer's own words, or null
    std::vector<OptionDifference> differences = {}; ///< from what was sent
};

/// By number where it is known, else by token among the jobs that have not ended. A job of that
/// number with another token is missing.
[[nodiscard]] JobStatus jobStatus(http_t *http, const JobTrace &trace, const JobOptions &sent = {});

/// What became of a job whose answer was lost.
enum class Settled {
    Unknown,   ///< the server did not answer; ask again later
    Printed,   ///< it has the whole job
    Withdrawn, ///< it had a part, which is cancelled now
    Absent,    ///< nothing of it prints
    Vanished,  ///< sent whole, and no longer known
};

struct Settlement
{
    Settled outcome = Settled::Unknown;
    int jobId = 0;
};

/// Finds the job and leaves it whole or cancelled, never half.
[[nodiscard]] Settlement settleJob(http_t *http, const JobTrace &trace);

} // namespace dialog
