#include "dialog/replay/report.h"

#include "dialog/replay/snapshot.h"

#include <QDialog>
#include <QFileInfo>
#include <QJsonDocument>

#include <array>

namespace dialog::replay {
namespace {

constexpr std::array<const char *, static_cast<std::size_t>(EventKind::Count)> kEventNames{
    "offer",  "console", "window", "window-closed", "notification",
    "resize", "help",    "job",    "saved",         "copied"};

QString nameOf(EventKind event)
{
    return QString::fromLatin1(kEventNames[static_cast<std::size_t>(event)]);
}

} // namespace

QStringList eventNames()
{
    QStringList names;
    for (const char *name : kEventNames)
        names.append(QString::fromLatin1(name));
    return names;
}

void Report::add(EventKind event, QJsonObject details)
{
    details.insert(QStringLiteral("event"), nameOf(event));
    events_.append(details);
}

void Report::offer(const Choice &choice, bool accepted)
{
    add(EventKind::Offer, {{QStringLiteral("option"), textJson(choice.option)},
                           {QStringLiteral("choice"), textJson(choice.choice)},
                           {QStringLiteral("answer"), accepted}});
}

void Report::console(const QString &line)
{
    add(EventKind::Console, {{QStringLiteral("text"), line}});
}

void Report::windowOpened(const QDialog *window)
{
    add(EventKind::Window, {{QStringLiteral("name"), window->objectName()},
                            {QStringLiteral("title"), window->windowTitle()},
                            {QStringLiteral("texts"), windowTexts(window)}});
}

void Report::windowClosed(const QString &objectName)
{
    add(EventKind::WindowClosed, {{QStringLiteral("name"), objectName}});
}

void Report::notification(const QString &name)
{
    add(EventKind::Notification, {{QStringLiteral("name"), textJson(name)}});
}

void Report::resize()
{
    add(EventKind::Resize, {});
}

void Report::help(const QString &book)
{
    add(EventKind::Help, {{QStringLiteral("book"), textJson(book)}});
}

void Report::job(const JobRecord &job)
{
    const QString stableId = QStringLiteral("job-%1").arg(++jobs_);
    const bool isStable = naming_ == Naming::Stable;
    const QString stableTicket = stableId + u'/' + QFileInfo(job.ticketPath).fileName();
    add(EventKind::Job,
        {{QStringLiteral("id"), isStable ? stableId : job.id},
         {QStringLiteral("options"), optionsJson(job.options)},
         {QStringLiteral("ticket"), textJson(isStable ? stableTicket : job.ticketPath)}});
}

void Report::saved(const QString &file)
{
    add(EventKind::Saved, {{QStringLiteral("file"), QFileInfo(file).fileName()}});
}

void Report::copied(const QString &text)
{
    add(EventKind::Copied, {{QStringLiteral("text"), text}});
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
