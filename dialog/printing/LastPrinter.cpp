#include "dialog/printing/LastPrinter.h"

#include "dialog/cups/ServerConnection.h"
#include "platform/foundation/UserDefaults.h"

#include <QtCore/QUrl>

namespace {

constexpr auto kDomain = "last-printers"; // a file of its own: whole domains are written

/// A key of the file; slashes would make groups of it.
QString keyOf(const QString &server)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(nameOfServer(server)));
}

} // namespace

QueueName lastPrinter(const QString &server)
{
    const QVariantMap all =
        UserDefaults::standardUserDefaults().persistentDomainForName(QString::fromLatin1(kDomain));
    return queueName(all.value(keyOf(server)).toString());
}

void rememberPrinter(const QString &server, const QueueName &queue)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    const QString domain = QString::fromLatin1(kDomain);
    QVariantMap all = defaults.persistentDomainForName(domain);
    all.insert(keyOf(server), textOf(queue));
    defaults.setPersistentDomain(all, domain);
    defaults.synchronize();
}
