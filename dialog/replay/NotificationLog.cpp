#include "dialog/replay/NotificationLog.h"

#include "dialog/replay/JsonText.h"
#include "platform/foundation/NotificationCenter.h"

#include <QtCore/QJsonObject>

#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr auto kToolkitPrefix = "NS"_L1;
}

NotificationLog::NotificationLog()
{
    const auto note = [this](const Notification &notification) {
        if (notification.name.startsWith(kToolkitPrefix))
            return;
        const QJsonValue userInfo =
            notification.userInfo ? QJsonValue(jsonObject(*notification.userInfo)) : QJsonValue();
        m_posted << QJsonObject{{u"name"_s, notification.name}, {u"userInfo"_s, userInfo}};
    };
    NotificationCenter::defaultCenter().addObserver(this, note, QString());
}

NotificationLog::~NotificationLog()
{
    NotificationCenter::defaultCenter().removeObserver(this);
}

QJsonArray NotificationLog::take()
{
    return std::exchange(m_posted, {});
}
