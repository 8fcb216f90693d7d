#include "dialog/jobs/ticket.h"

#include <QJsonArray>

#include <algorithm>

namespace dialog {
namespace {

constexpr int kSchemaVersion = 1;

Choices without(const Choices &marks, const Choices &replaced)
{
    Choices kept;
    std::copy_if(marks.begin(), marks.end(), std::back_inserter(kept), [&](const Choice &mark) {
        return std::find(replaced.begin(), replaced.end(), mark) == replaced.end();
    });
    return kept;
}

QJsonArray differencesJson(const std::vector<Difference> &differences)
{
    QJsonArray array;
    for (const Difference &difference : differences)
        array.append(QJsonObject{{QStringLiteral("option"), difference.option},
                                 {QStringLiteral("chosen"), difference.chosen},
                                 {QStringLiteral("marked"), textJson(difference.marked)}});
    return array;
}

QJsonValue documentJson(const Ticket &ticket)
{
    if (ticket.documentName.isNull())
        return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("name"), ticket.documentName},
                       {QStringLiteral("file"), textJson(ticket.documentFile)}};
}

} // namespace

QJsonObject optionsJson(const JobOptions &options)
{
    QJsonObject object;
    for (const auto &[name, value] : options)
        object.insert(name, value);
    return object;
}

QJsonObject toJson(const Ticket &ticket)
{
    const Choices replaced = replacedMarks(ticket.settings);
    return {
        {QStringLiteral("version"), kSchemaVersion},
        {QStringLiteral("id"), ticket.id},
        {QStringLiteral("time"), ticket.time.toUTC().toString(Qt::ISODateWithMs)},
        {QStringLiteral("printer"), QJsonObject{{QStringLiteral("name"), ticket.printerName},
                                                {QStringLiteral("ppd"), ticket.ppdFile},
                                                {QStringLiteral("queue"), textJson(ticket.queue)}}},
        {QStringLiteral("jobId"), ticket.jobId > 0 ? QJsonValue(ticket.jobId) : QJsonValue::Null},
        {QStringLiteral("document"), documentJson(ticket)},
        {QStringLiteral("marked"), marksJson(without(ticket.settings.marks, replaced))},
        {QStringLiteral("replaced"), marksJson(replaced)},
        {QStringLiteral("settings"), settingsJson(ticket.settings.printSettings)},
        {QStringLiteral("paper"), textJson(ticket.settings.paperName)},
        {QStringLiteral("options"), optionsJson(jobOptions(ticket.settings))},
        {QStringLiteral("differences"), differencesJson(ticket.differences)},
    };
}

} // namespace dialog
