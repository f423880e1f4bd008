#include "platform/foundation/NotificationCenter.h"

#include <algorithm>
#include <utility>

struct NotificationCenter::Registration
{
    const void *observer;
    Handler handler;
    QString name;
    const void *object;
    bool removed = false;

    bool wants(const Notification &notification) const
    {
        return !removed && (name.isNull() || name == notification.name) &&
               (!object || object == notification.object);
    }
};

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const void *observer, Handler handler, const QString &name,
                                     const void *object)
{
    m_registrations.push_back(
        std::make_shared<Registration>(Registration{observer, std::move(handler), name, object}));
}

void NotificationCenter::removeObserver(const void *observer, const QString &name,
                                        const void *object)
{
    std::erase_if(m_registrations, [&](const std::shared_ptr<Registration> &registration) {
        const bool matches = registration->observer == observer &&
                             (name.isNull() || registration->name == name) &&
                             (!object || registration->object == object);
        registration->removed = registration->removed || matches;
        return matches;
    });
}

void NotificationCenter::post(const Notification &notification)
{
    // A copy, since handlers may add and remove registrations; it also keeps a handler alive that
    // removes itself.
    const auto registrations = m_registrations;
    for (const auto &registration : registrations) {
        if (registration->wants(notification))
            registration->handler(notification);
    }
}

void NotificationCenter::post(const QString &name, const void *object,
                              const std::optional<QVariantMap> &userInfo)
{
    post(Notification{name, object, userInfo});
}

int NotificationCenter::registrationCount(const void *observer) const
{
    return static_cast<int>(std::count_if(
        m_registrations.begin(), m_registrations.end(),
        [&](const auto &registration) { return registration->observer == observer; }));
}
