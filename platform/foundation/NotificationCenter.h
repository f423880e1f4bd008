#pragma once

#include "platform/Export.h"
#include "platform/foundation/Notification.h"

#include <functional>
#include <memory>
#include <vector>

/// Delivers notifications to whoever registered for them, at once and in the order of
/// registration, on the thread that posts.
///
/// An observer may be removed (or added) while a notification is delivered: a removed one gets
/// nothing any more, an added one gets the next notification. Registering twice delivers twice.
class VELKARO_PLATFORM_EXPORT NotificationCenter
{
public:
    /// What an observer does with a notification.
    using Handler = std::function<void(const Notification &)>;

    /// The centre of the process.
    static NotificationCenter &defaultCenter();

    /// Registers `observer` (an address, never dereferenced) for notifications with the name and
    /// from the object. A null name means every name, a null object every object.
    void addObserver(const void *observer, Handler handler, const QString &name,
                     const void *object = nullptr);

    /// Ends the registrations of the observer that have this name and this object; null means any.
    void removeObserver(const void *observer, const QString &name = QString(),
                        const void *object = nullptr);

    /// Delivers the notification; all observers have had it when this returns.
    void post(const Notification &notification);

    /// The same, made of its parts.
    void post(const QString &name, const void *object = nullptr,
              const std::optional<QVariantMap> &userInfo = std::nullopt);

    /// How many registrations the observer has at present.
    int registrationCount(const void *observer) const;

private:
    struct Registration;
    std::vector<std::shared_ptr<Registration>> m_registrations;
};
