#include "tests/atspi/AccessibilityBus.h"

#include <QtDBus/QDBusInterface>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusReply>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kReplyTimeout = 20000; // ms
constexpr auto kAccessible = "org.a11y.atspi.Accessible"_L1;
constexpr auto kSession = "session"_L1;

QDBusMessage call(const AccessiblePlace &place, const QString &interface, const QString &method)
{
    return QDBusMessage::createMethodCall(place.program, place.path.path(), interface, method);
}

void end(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(kReplyTimeout))
        process.kill();
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const AccessiblePlace &place)
{
    argument.beginStructure();
    argument << place.program << place.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, AccessiblePlace &place)
{
    argument.beginStructure();
    argument >> place.program >> place.path;
    argument.endStructure();
    return argument;
}

AccessibilityBus::AccessibilityBus()
{
    qDBusRegisterMetaType<AccessiblePlace>();
    qDBusRegisterMetaType<QList<AccessiblePlace>>();
    // A server that begins anew when the launcher leaves it turns away whoever comes just then.
    const QByteArray display = start(
        m_display, u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
    m_environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(display));
    const QByteArray session =
        start(m_session, u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromLatin1(session));
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
    m_launcher.setProcessEnvironment(m_environment);
    m_launcher.start(u"/usr/libexec/at-spi-bus-launcher"_s, {u"--launch-immediately"_s});
    if (!m_fault.isNull())
        return;
    const QDBusConnection own =
        QDBusConnection::connectToBus(QString::fromLatin1(session), kSession);
    QDBusReply<QString> address;
    const bool isThere = QTest::qWaitFor(
        [&] {
            address = own.call(QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                              u"org.a11y.Bus"_s, u"GetAddress"_s));
            return address.isValid();
        },
        kReplyTimeout);
    if (!isThere ||
        !QDBusConnection::connectToBus(address.value(), u"accessibility"_s).isConnected())
        m_fault = u"the bus for assistive technology: "_s + address.error().message();
}

AccessibilityBus::~AccessibilityBus()
{
    QDBusConnection::disconnectFromBus(u"accessibility"_s);
    QDBusConnection::disconnectFromBus(kSession);
    end(m_launcher);
    end(m_session);
    end(m_display);
}

/// Gives the first line that the program writes: where it is reached.
QByteArray AccessibilityBus::start(QProcess &process, const QString &program,
                                   const QStringList &arguments)
{
    process.setProcessEnvironment(m_environment);
    process.start(program, arguments);
    while (!process.canReadLine() && process.waitForReadyRead(kReplyTimeout)) {
    }
    const QByteArray line = process.readLine().trimmed();
    if (line.isEmpty())
        m_fault = program + u": "_s + process.errorString();
    return line;
}

QList<AccessiblePlace> AccessibilityBus::children(const AccessiblePlace &place) const
{
    const QDBusReply<QList<AccessiblePlace>> reply =
        bus().call(call(place, kAccessible, u"GetChildren"_s));
    return reply.value();
}

QVariant AccessibilityBus::property(const AccessiblePlace &place, const QString &interface,
                                    const QString &name) const
{
    QDBusMessage get = call(place, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    get << interface << name;
    const QDBusReply<QDBusVariant> reply = bus().call(get);
    return reply.value().variant();
}

void AccessibilityBus::tell(const AccessiblePlace &place, QList<ToldObject> &told) const
{
    const QDBusReply<QString> role = bus().call(call(place, kAccessible, u"GetRoleName"_s));
    told += {role.value(), property(place, kAccessible, u"Name"_s).toString(),
             property(place, kAccessible, u"Description"_s).toString(), place};
    for (const AccessiblePlace &child : children(place))
        tell(child, told);
}

QList<ToldObject> AccessibilityBus::everything() const
{
    const AccessiblePlace registry{u"org.a11y.atspi.Registry"_s,
                                   QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)};
    QList<ToldObject> told;
    for (const AccessiblePlace &program : children(registry))
        tell(program, told);
    return told;
}

double AccessibilityBus::value(const ToldObject &object, const QString &property) const
{
    return this->property(object.place, u"org.a11y.atspi.Value"_s, property).toDouble();
}
