#include "platform/notification_center.h"

#include "platform/strings.h"

#include <algorithm>
#include <utility>

namespace platform {

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(QObject *observer, const QString &name, Handler handler)
{
    dropDeadObservers();
    registrations_.push_back({observer, name, std::move(handler), nextId_++});
}

void NotificationCenter::removeObserver(const QObject *observer)
{
    std::erase_if(registrations_, [observer](const Registration &registration) {
        return registration.observer.isNull() || registration.observer.data() == observer;
    });
}

void NotificationCenter::post(const QString &name, QObject *object)
{
    const std::vector<Registration> receivers = registrations_;
    for (const Registration &receiver : receivers) {
        const bool wanted = receiver.name.isNull() || isEqual(receiver.name, name);
        if (wanted && receiver.observer && isRegistered(receiver.id))
            receiver.handler({name, object});
    }
}

int NotificationCenter::observerCount() const
{
    return static_cast<int>(std::count_if(
        registrations_.begin(), registrations_.end(),
        [](const Registration &registration) { return !registration.observer.isNull(); }));
}

bool NotificationCenter::isRegistered(quint64 id) const
{
    return std::any_of(registrations_.begin(), registrations_.end(),
                       [id](const Registration &registration) { return registration.id == id; });
}

void NotificationCenter::dropDeadObservers()
{
    std::erase_if(registrations_,
                  [](const Registration &registration) { return registration.observer.isNull(); });
}

} // namespace platform
