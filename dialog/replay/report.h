#pragma once

#include "dialog/print_dialog.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class QDialog;

namespace dialog::replay {

/// Whether job ids and times stand in the report as they are, or as "job-1", "job-2", ...
enum class Naming { Actual, Stable };

/// What an event can be, by the words of the report.
enum class EventKind {
    Offer,
    Console,
    Window,
    WindowClosed,
    Notification,
    Resize,
    Help,
    Job,
    Saved,
    Copied,
    Count
};
[[nodiscard]] QStringList eventNames();

/// What happened during a scenario: events in order, snapshots by name. Keys are sorted, texts
/// UTF-8.
class Report
{
public:
    explicit Report(Naming naming) : naming_(naming) {}

    void offer(const Choice &choice, bool accepted);
    void console(const QString &line);
    void windowOpened(const QDialog *window);
    void windowClosed(const QString &objectName);
    void notification(const QString &name);
    void resize();
    void help(const QString &book);
    void job(const JobRecord &job);
    /// Told by its name alone.
    void saved(const QString &file);
    void copied(const QString &text);
    void snapshot(const QString &name, const QJsonObject &snapshot);

    [[nodiscard]] QByteArray json() const;

private:
    void add(EventKind event, QJsonObject details);

    Naming naming_;
    int jobs_ = 0;
    QJsonArray events_;
    QJsonObject snapshots_;
};

} // namespace dialog::replay
