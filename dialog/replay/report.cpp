#include "dialog/replay/report.h"

#include "dialog/replay/snapshot.h"

#include <QDialog>
#include <QFileInfo>
#include <QJsonDocument>

namespace dialog::replay {

void Report::add(const char *event, QJsonObject details)
{
    details.insert(QStringLiteral("event"), QString::fromLatin1(event));
    events_.append(details);
}

void Report::offer(const Choice &choice, bool accepted)
{
    add("offer", {{QStringLiteral("option"), textJson(choice.option)},
                  {QStringLiteral("choice"), textJson(choice.choice)},
                  {QStringLiteral("answer"), accepted}});
}

void Report::console(const QString &line)
{
    add("console", {{QStringLiteral("text"), line}});
}

void Report::windowOpened(const QDialog *window)
{
    add("window", {{QStringLiteral("name"), window->objectName()},
                   {QStringLiteral("title"), window->windowTitle()},
                   {QStringLiteral("texts"), windowTexts(window)}});
}

void Report::windowClosed(const QString &objectName)
{
    add("window-closed", {{QStringLiteral("name"), objectName}});
}

void Report::notification(const QString &name)
{
    add("notification", {{QStringLiteral("name"), textJson(name)}});
}

void Report::resize()
{
    add("resize", {});
}

void Report::help(const QString &book)
{
    add("help", {{QStringLiteral("book"), textJson(book)}});
}

void Report::job(const JobRecord &job)
{
    const QString stableId = QStringLiteral("job-%1").arg(++jobs_);
    const bool isStable = naming_ == Naming::Stable;
    const QString stableTicket = stableId + u'/' + QFileInfo(job.ticketPath).fileName();
    add("job", {{QStringLiteral("id"), isStable ? stableId : job.id},
                {QStringLiteral("options"), optionsJson(job.options)},
                {QStringLiteral("ticket"), textJson(isStable ? stableTicket : job.ticketPath)}});
}

void Report::snapshot(const QString &name, const QJsonObject &snapshot)
{
    snapshots_.insert(name, snapshot);
}

QByteArray Report::json() const
{
    const QJsonObject report{{QStringLiteral("events"), events_},
                             {QStringLiteral("snapshots"), snapshots_}};
    return QJsonDocument(report).toJson();
}

} // namespace dialog::replay
