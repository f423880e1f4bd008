#include "dialog/cups/QueuePage.h"

#include "dialog/cups/ServerConnection.h"

#include <cups/cups.h>

using namespace Qt::StringLiterals;

QUrl queuePage(const QString &server, const QString &queue)
{
    // The name of a server that is reached by a socket has no port.
    const QString name = server.startsWith(u'/') ? u"localhost"_s : nameOfServer(server);
    const qsizetype colon = name.lastIndexOf(u':');
    QUrl page;
    page.setScheme(u"http"_s);
    page.setHost(name.left(colon < 0 ? name.size() : colon));
    page.setPort(colon < 0 ? ippPort() : name.mid(colon + 1).toInt());
    page.setPath(u"/printers/"_s + queue, QUrl::DecodedMode);
    return page;
}
