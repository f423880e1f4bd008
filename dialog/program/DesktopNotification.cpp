#include "dialog/program/DesktopNotification.h"

#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 5000; // ms
constexpr int kUsualTime = -1;  // for which it is shown
constexpr auto kProgram = "velkaro-print"_L1;

QDBusMessage call(const QString &method, const QVariantList &arguments = {})
{
    const QString name = u"org.freedesktop.Notifications"_s;
    QDBusMessage message =
        QDBusMessage::createMethodCall(name, u"/org/freedesktop/Notifications"_s, name, method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, kPatience);
}

} // namespace

bool DesktopNotification::canBeShown()
{
    if (!QDBusConnection::sessionBus().isConnected())
        return false;
    const QDBusReply<QStringList> capabilities = call(u"GetCapabilities"_s);
    m_hasMarkup = capabilities.value().contains(u"body-markup"_s);
    return capabilities.isValid();
}

void DesktopNotification::show(const QString &title, const QString &text, Urgency urgency)
{
    const QString plain = displayText(text);
    const QVariantMap hints{{u"urgency"_s, QVariant::fromValue(static_cast<uchar>(urgency))},
                            {u"desktop-entry"_s, QString(kProgram)}};
    const QDBusReply<uint> shown =
        call(u"Notify"_s,
             {QCoreApplication::translate("DialogWindow", "Velkaro Print"), m_id, QString(kProgram),
              displayText(title), m_hasMarkup ? plain.toHtmlEscaped() : plain, QStringList(), hints,
              kUsualTime});
    m_id = shown.value();
}

void DesktopNotification::close()
{
    if (m_id != 0)
        call(u"CloseNotification"_s, {std::exchange(m_id, 0U)});
}
