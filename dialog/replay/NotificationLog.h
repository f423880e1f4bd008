#pragma once

#include <QtCore/QJsonArray>

/// Notes what is posted on the default notification centre, in the order of posting, without the
/// toolkit's own. Create it before the panels: what an observer posts while it is told of a
/// notification then comes after that notification.
class NotificationLog
{
public:
    NotificationLog();
    ~NotificationLog();
    NotificationLog(const NotificationLog &) = delete;
    NotificationLog &operator=(const NotificationLog &) = delete;

    /// What was posted since the last call.
    QJsonArray take();

private:
    QJsonArray m_posted;
};
