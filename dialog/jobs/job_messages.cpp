#include "dialog/jobs/job_messages.h"

#include <QCoreApplication>

#include <array>

namespace dialog {
namespace {

class JobMessages
{
    Q_DECLARE_TR_FUNCTIONS(JobMessages)
};

enum class Quotes { Nothing, Queue, Reason, QueueAndReason };

struct FaultText
{
    JobFault fault;
    Quotes quotes; ///< what replaces %1 and %2; the reason is the server's or the system's words
    const char *text;
};

// clang-format off
constexpr std::array<FaultText, static_cast<std::size_t>(JobFault::Count)> kFaultTexts{{
    {JobFault::None, Quotes::Nothing, nullptr},
    {JobFault::NoServer, Quotes::Reason,
     QT_TRANSLATE_NOOP("JobMessages",
        "There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.")},
    {JobFault::Silent, Quotes::Nothing,
     QT_TRANSLATE_NOOP("JobMessages",
        "The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.")},
    {JobFault::Broken, Quotes::Reason,
     QT_TRANSLATE_NOOP("JobMessages",
        "The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.")},
    {JobFault::NotAllowed, Quotes::Queue,
     QT_TRANSLATE_NOOP("JobMessages",
        "The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.")},
    {JobFault::NotAccepting, Quotes::Queue,
     QT_TRANSLATE_NOOP("JobMessages",
        "The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.")},
    {JobFault::NoQueue, Quotes::Queue,
     QT_TRANSLATE_NOOP("JobMessages",
        "The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.")},
    {JobFault::FormatRefused, Quotes::QueueAndReason,
     QT_TRANSLATE_NOOP("JobMessages",
        "The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.")},
    {JobFault::ServerError, Quotes::Reason,
     QT_TRANSLATE_NOOP("JobMessages",
        "The print server did not take the job: %1. Your settings are kept; print again when it answers.")},
    {JobFault::DocumentLost, Quotes::Reason,
     QT_TRANSLATE_NOOP("JobMessages",
        "The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.")},
    {JobFault::SettingLost, Quotes::Reason,
     QT_TRANSLATE_NOOP("JobMessages",
        "Nothing was sent, because a setting would get lost: %1. Choose another value for it.")},
    {JobFault::NotRemembered, Quotes::Nothing,
     QT_TRANSLATE_NOOP("JobMessages",
        "The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.")},
    {JobFault::Cancelled, Quotes::Nothing,
     QT_TRANSLATE_NOOP("JobMessages",
        "The job was cancelled; nothing of it prints. Your settings are kept.")},
    {JobFault::MaybePrinted, Quotes::Queue,
     QT_TRANSLATE_NOOP("JobMessages",
        "An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.")},
    {JobFault::Stopped, Quotes::QueueAndReason,
     QT_TRANSLATE_NOOP("JobMessages",
        "The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.")},
}};
// clang-format on

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kFaultTexts.size(); ++i) {
        if (static_cast<std::size_t>(kFaultTexts[i].fault) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder(), "one text per fault, in the order of the enumeration");

} // namespace

QString faultMessage(const QueueJobResult &result, const QString &queue)
{
    const FaultText &fault = kFaultTexts[static_cast<std::size_t>(result.fault)];
    if (!fault.text)
        return {};
    const QString message = JobMessages::tr(fault.text);
    switch (fault.quotes) {
    case Quotes::Nothing:
        break;
    case Quotes::Queue:
        return message.arg(queue);
    case Quotes::Reason:
        return message.arg(result.detail);
    case Quotes::QueueAndReason:
        return message.arg(queue, result.detail);
    }
    return message;
}

QStringList remarks(const QueueJobResult &result, const QString &queue)
{
    QStringList told;
    const QString number = QString::number(result.jobId);
    if (result.isEarlier)
        told.append(JobMessages::tr("The earlier attempt had arrived as job %1, so nothing was "
                                    "sent again. Press Print once more for another copy.")
                        .arg(number));
    if (result.state == JobState::WaitingForQueue)
        told.append(JobMessages::tr("Job %1 waits, because the queue %2 is paused. It prints when "
                                    "somebody resumes the queue.")
                        .arg(number, queue));
    for (const OptionDifference &difference : result.differences)
        told.append(
            difference.kept.isNull()
                ? JobMessages::tr(
                      "The print server did not keep the setting %1 (%2). Check the first page.")
                      .arg(difference.option, difference.sent)
                : JobMessages::tr("The print server changed the setting %1 from %2 to %3. Check "
                                  "the first page.")
                      .arg(difference.option, difference.sent, difference.kept));
    return told;
}

QString settlementMessage(const Settlement &settlement, const QString &title, const QString &queue)
{
    switch (settlement.outcome) {
    case Settled::Printed:
        return JobMessages::tr("“%1”, sent to %2 before this dialog was opened, had arrived as job "
                               "%3. It was not sent again.")
            .arg(title, queue, QString::number(settlement.jobId));
    case Settled::Withdrawn:
    case Settled::Absent:
        return JobMessages::tr(
                   "“%1”, sent to %2 before this dialog was opened, had not arrived whole, and "
                   "nothing of it prints. Print it again if you still need it.")
            .arg(title, queue);
    case Settled::Vanished:
        return JobMessages::tr("“%1” was sent whole to %2 before this dialog was opened, and the "
                               "print server no longer knows it: it may have printed. Look at the "
                               "printer before you print it again.")
            .arg(title, queue);
    case Settled::Unknown:
        break;
    }
    return {};
}

} // namespace dialog
