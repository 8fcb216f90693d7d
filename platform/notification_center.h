#pragma once

#include "platform/export.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

namespace platform {

struct Notification
{
    QString name;
    QObject *object = nullptr; ///< the sender's choice; borrowed, may be null
};

/// Delivers notifications inside the process, synchronously, on the main thread.
class PLATFORM_EXPORT NotificationCenter
{
public:
    using Handler = std::function<void(const Notification &)>;

    /// The one centre that plug-ins and dialog share.
    [[nodiscard]] static NotificationCenter &defaultCenter();

    /// Calls @p handler for each notification of that name from any sender, for as long as
    /// @p observer lives. A null name means every notification. An observer added twice is called
    /// twice.
    void addObserver(QObject *observer, const QString &name, Handler handler);
    void removeObserver(const QObject *observer);

    /// Calls every living observer in the order of registration, over a copy: one that is destroyed
    /// or removed meanwhile is skipped, one that is added meanwhile is not called.
    void post(const QString &name, QObject *object);

    /// Registrations whose observer lives.
    [[nodiscard]] int observerCount() const;

private:
    struct Registration
    {
        QPointer<QObject> observer;
        QString name;
        Handler handler;
        quint64 id;
    };

    [[nodiscard]] bool isRegistered(quint64 id) const;
    void dropDeadObservers();

    std::vector<Registration> registrations_;
    quint64 nextId_ = 1;
};

} // namespace platform
