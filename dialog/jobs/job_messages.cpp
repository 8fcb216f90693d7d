#include "dialog/jobs/job_messages.h"

#include "dialog/texts.h"

#include <array>

namespace dialog {
namespace {

struct FaultText
{
    JobFault fault;
    Text text;
};

// clang-format off
constexpr std::array<FaultText, static_cast<std::size_t>(JobFault::Count)> kFaultTexts{{
    {JobFault::None,          Text::Count},
    {JobFault::NoServer,      Text::FaultNoServer},
    {JobFault::Silent,        Text::FaultSilent},
    {JobFault::Broken,        Text::FaultBroken},
    {JobFault::NotAllowed,    Text::FaultNotAllowed},
    {JobFault::NotAccepting,  Text::FaultNotAccepting},
    {JobFault::NoQueue,       Text::FaultNoQueue},
    {JobFault::FormatRefused, Text::FaultFormatRefused},
    {JobFault::ServerError,   Text::JobFailed},
    {JobFault::DocumentLost,  Text::FaultDocumentLost},
    {JobFault::SettingLost,   Text::JobUnsendable},
    {JobFault::NotRemembered, Text::FaultNotRemembered},
    {JobFault::Cancelled,     Text::JobCancelled},
    {JobFault::MaybePrinted,  Text::FaultMaybePrinted},
    {JobFault::Stopped,       Text::FaultStopped},
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

/// Texts that quote the server's or the system's words have those as their first argument.
QStringList argumentsOf(const QueueJobResult &result, const QString &queue)
{
    switch (result.fault) {
    case JobFault::ServerError:
    case JobFault::DocumentLost:
    case JobFault::SettingLost:
        return {result.detail};
    default:
        return {queue, result.detail};
    }
}

} // namespace

QString faultMessage(const QueueJobResult &result, const QString &queue)
{
    const Text id = kFaultTexts[static_cast<std::size_t>(result.fault)].text;
    return id == Text::Count ? QString() : text(id, argumentsOf(result, queue));
}

QStringList remarks(const QueueJobResult &result, const QString &queue)
{
    QStringList told;
    const QString number = QString::number(result.jobId);
    if (result.isEarlier)
        told.append(text(Text::JobHadArrived, {number}));
    if (result.state == JobState::WaitingForQueue)
        told.append(text(Text::JobWaits, {number, queue}));
    for (const OptionDifference &difference : result.differences)
        told.append(
            difference.kept.isNull()
                ? text(Text::OptionDropped, {difference.option, difference.sent})
                : text(Text::OptionChanged, {difference.option, difference.sent, difference.kept}));
    return told;
}

QString settlementMessage(const Settlement &settlement, const QString &title, const QString &queue)
{
    switch (settlement.outcome) {
    case Settled::Printed:
        return text(Text::EarlierPrinted, {title, queue, QString::number(settlement.jobId)});
    case Settled::Withdrawn:
    case Settled::Absent:
        return text(Text::EarlierWithdrawn, {title, queue});
    case Settled::Vanished:
        return text(Text::EarlierVanished, {title, queue});
    case Settled::Unknown:
        break;
    }
    return {};
}

} // namespace dialog
