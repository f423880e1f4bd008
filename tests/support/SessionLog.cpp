#include "tests/support/SessionLog.h"

#include "platform/foundation/NotificationCenter.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString lineOf(const HostCallback::Call &call)
{
    if (call.kind == HostCallback::Call::Kind::PanelViewDidResize)
        return u"resized"_s;
    return call.keyword + u'=' + call.choice + (call.accepted ? u""_s : u" refused"_s);
}

QString lineOf(const Notification &notification, const HostCallback &host)
{
    const QVariantMap info = notification.userInfo.value_or(QVariantMap());
    const QString about = info.value(u"PointTo"_s).toString();
    const QString key = about == "VKColorMatching"_L1 ? u"Natural"_s : about;
    const QString word = key == "Natural"_L1 ? u"natural"_s : u"mono"_s;
    const bool exact = info.size() == 2 && info.value(key).typeId() == QMetaType::Bool &&
                       notification.object == static_cast<const PDEPluginCallback *>(&host);
    return word + (info.value(key).toBool() ? u" YES"_s : u" NO"_s) +
           (exact ? u""_s : u" (malformed)"_s);
}

} // namespace

SessionLog::SessionLog(HostCallback &host) : m_host(host)
{
    host.setCallObserver([this](const HostCallback::Call &call) { m_lines << lineOf(call); });
    NotificationCenter::defaultCenter().addObserver(
        this, [this](const Notification &posted) { m_lines << lineOf(posted, m_host); },
        u"VKInkPrintSettingNotification"_s);
}

SessionLog::~SessionLog()
{
    m_host.setCallObserver({});
    NotificationCenter::defaultCenter().removeObserver(this);
}

QStringList SessionLog::take()
{
    return std::exchange(m_lines, {});
}

QStringList SessionLog::takeOffers()
{
    return take().filter(u"="_s);
}
