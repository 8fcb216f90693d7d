#pragma once

#include <QObject>

namespace dialog::batch {

/// Turns the wish of a person or of the system that the program ends (SIGINT, SIGTERM, SIGHUP) into
/// a signal of the event loop. One at a time; afterwards signals do what they did before.
class SignalWatch : public QObject
{
    Q_OBJECT

public:
    explicit SignalWatch(QObject *parent = nullptr);
    ~SignalWatch() override;

Q_SIGNALS:
    void caught(int number);

private:
    void take(int socket);
};

} // namespace dialog::batch
