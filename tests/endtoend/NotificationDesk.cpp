#include "tests/endtoend/NotificationDesk.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kAddress = "DBUS_SESSION_BUS_ADDRESS";
constexpr auto kConnection = "desk"_L1;
constexpr int kLongestWaitForBus = 20000; // ms

} // namespace

NotificationDesk::NotificationDesk(Kind kind) : m_kind(kind), m_former(qgetenv(kAddress))
{
    m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    while (!m_bus.canReadLine() && m_bus.waitForReadyRead(kLongestWaitForBus)) {
    }
    const QByteArray address = m_bus.readLine().trimmed();
    qputenv(kAddress, address);
    QDBusConnection own =
        QDBusConnection::connectToBus(QString::fromLatin1(address), QString(kConnection));
    if (!own.isConnected())
        m_fault = u"no bus: "_s + m_bus.errorString();
    else if (kind != Kind::None &&
             (!own.registerVirtualObject(u"/org/freedesktop/Notifications"_s, this) ||
              !own.registerService(u"org.freedesktop.Notifications"_s)))
        m_fault = u"the name is taken"_s;
}

NotificationDesk::~NotificationDesk()
{
    QDBusConnection::disconnectFromBus(QString(kConnection));
    m_former.isNull() ? qunsetenv(kAddress) : qputenv(kAddress, m_former);
    m_bus.terminate();
    if (!m_bus.waitForFinished(kLongestWaitForBus))
        m_bus.kill();
}

bool NotificationDesk::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const QVariantList given = message.arguments();
    if (message.member() == u"GetCapabilities") {
        const QStringList all =
            m_kind == Kind::Markup ? QStringList{u"body-markup"_s} : QStringList{u"body"_s};
        return connection.send(message.createReply(all));
    }
    if (message.member() == u"CloseNotification") {
        m_closed += given.value(0).toUInt();
        return connection.send(message.createReply());
    }
    if (message.member() != u"Notify")
        return false;
    const auto hints = qdbus_cast<QVariantMap>(given.value(6));
    m_shown += Shown{given.value(3).toString(), given.value(4).toString(),
                     hints.value(u"urgency"_s, -1).toInt(), given.value(1).toUInt()};
    return connection.send(message.createReply(static_cast<uint>(m_shown.size())));
}

QString NotificationDesk::introspect(const QString &) const
{
    return {};
}
