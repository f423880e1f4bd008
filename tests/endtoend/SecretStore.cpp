#include "tests/endtoend/SecretStore.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusObjectPath>

#include <algorithm>
#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

/// A secret as it goes over the bus.
struct BusSecret
{
    QDBusObjectPath session;
    QByteArray parameters;
    QByteArray value;
    QString type;
};
Q_DECLARE_METATYPE(BusSecret)

using Attributes = QMap<QString, QString>;
using BusSecrets = QMap<QDBusObjectPath, BusSecret>;
using Paths = QList<QDBusObjectPath>;

QDBusArgument &operator<<(QDBusArgument &to, const BusSecret &secret)
{
    to.beginStructure();
    to << secret.session << secret.parameters << secret.value << secret.type;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, BusSecret &secret)
{
    from.beginStructure();
    from >> secret.session >> secret.parameters >> secret.value >> secret.type;
    from.endStructure();
    return from;
}

namespace {

constexpr auto kSessionBus = "DBUS_SESSION_BUS_ADDRESS";
constexpr auto kSecretsConnection = "secrets"_L1;
constexpr auto kRoot = "/org/freedesktop/secrets"_L1;
constexpr int kLongestBusStart = 20000; // ms

const QDBusObjectPath kNoPrompt(u"/"_s);
const QDBusObjectPath kSession(u"/org/freedesktop/secrets/session/1"_s);

bool hasAll(const Attributes &attributes, const Attributes &wanted)
{
    for (auto one = wanted.cbegin(); one != wanted.cend(); ++one)
        if (attributes.value(one.key()) != one.value())
            return false;
    return true;
}

QDBusObjectPath itemNumber(qsizetype index)
{
    return QDBusObjectPath(u"/org/freedesktop/secrets/collection/login/%1"_s.arg(index));
}

/// Ends with the process, not before.
QString busOfProcess()
{
    static QProcess *bus = nullptr;
    static QString address;
    if (bus)
        return address;
    bus = new QProcess;
    bus->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    bus->start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    while (!bus->canReadLine() && bus->waitForReadyRead(kLongestBusStart)) {
    }
    address = QString::fromUtf8(bus->readLine().trimmed());
    return address;
}

} // namespace

SecretStore::SecretStore() : m_former(qgetenv(kSessionBus))
{
    qDBusRegisterMetaType<BusSecret>();
    qDBusRegisterMetaType<BusSecrets>();
    qDBusRegisterMetaType<Attributes>();
    qputenv(kSessionBus, busOfProcess().toUtf8());
    QDBusConnection own =
        QDBusConnection::connectToBus(busOfProcess(), QString(kSecretsConnection));
    if (!own.isConnected())
        m_fault = u"no bus"_s;
    else if (!own.registerVirtualObject(QString(kRoot), this, QDBusConnection::SubPath) ||
             !own.registerService(u"org.freedesktop.secrets"_s))
        m_fault = u"the name is taken"_s;
}

SecretStore::~SecretStore()
{
    QDBusConnection::disconnectFromBus(QString(kSecretsConnection));
    m_former.isNull() ? qunsetenv(kSessionBus) : qputenv(kSessionBus, m_former);
}

QList<QByteArray> SecretStore::kept() const
{
    QList<QByteArray> values;
    for (const Item &item : m_items)
        values += item.value;
    return values;
}

bool SecretStore::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const bool isPlain = message.arguments().value(0).toString() == "plain"_L1;
    if (message.member() == "OpenSession"_L1 && !isPlain)
        return connection.send(
            message.createErrorReply(QDBusError::NotSupported, u"plain alone"_s));
    return connection.send(message.createReply(answer(message)));
}

QVariantList SecretStore::answer(const QDBusMessage &message)
{
    const QString member = message.member();
    const QVariantList given = message.arguments();
    if (member == "OpenSession"_L1)
        return {QVariant::fromValue(QDBusVariant(QString())), QVariant::fromValue(kSession)};
    if (member == "GetAll"_L1)
        return {QVariantMap{{u"Collections"_s, QVariant::fromValue(Paths())}}};
    if (member == "ReadAlias"_L1)
        return {QVariant::fromValue(QDBusObjectPath(QString(kRoot) + u"/collection/login"_s))};
    if (member == "CreateItem"_L1)
        return createItem(given);
    if (member == "Unlock"_L1)
        return {given.value(0), QVariant::fromValue(kNoPrompt)};
    if (member == "GetSecrets"_L1)
        return getSecrets(given);
    if (member != "SearchItems"_L1)
        return {};
    const auto wanted = qdbus_cast<Attributes>(given.value(0));
    Paths found;
    for (qsizetype index = 0; index < m_items.size(); ++index)
        if (hasAll(m_items[index].attributes, wanted))
            found += itemNumber(index);
    return {QVariant::fromValue(found), QVariant::fromValue(Paths())};
}

QVariantList SecretStore::createItem(const QVariantList &given)
{
    const auto properties = qdbus_cast<QVariantMap>(given.value(0));
    const auto attributes =
        qdbus_cast<Attributes>(properties.value(u"org.freedesktop.Secret.Item.Attributes"_s));
    const QByteArray value = qdbus_cast<BusSecret>(given.value(1)).value;
    const auto former = std::ranges::find(m_items, attributes, &Item::attributes);
    const qsizetype index = former - m_items.begin();
    if (former == m_items.end())
        m_items += Item{attributes, value};
    else
        former->value = value;
    return {QVariant::fromValue(itemNumber(index)), QVariant::fromValue(kNoPrompt)};
}

QVariantList SecretStore::getSecrets(const QVariantList &given) const
{
    BusSecrets secrets;
    for (const QDBusObjectPath &path : qdbus_cast<Paths>(given.value(0)))
        for (qsizetype index = 0; index < m_items.size(); ++index)
            if (path == itemNumber(index))
                secrets.insert(path, {kSession, {}, m_items[index].value, u"text/plain"_s});
    return {QVariant::fromValue(secrets)};
}

QString SecretStore::introspect(const QString &) const
{
    return {};
}
