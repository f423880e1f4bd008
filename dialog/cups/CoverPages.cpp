#include "dialog/cups/CoverPages.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

Result<QStringList> coverPages(const QString &server, const QString &queue, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "job-sheets-supported");
    const IppHandle response = connection.request(std::move(request), queueResource(queue));
    if (!connection.succeeded())
        return connection.lastFault(queue);
    // Of keywords or of names.
    ipp_attribute_t *covers =
        ippFindAttribute(response.get(), "job-sheets-supported", IPP_TAG_ZERO);
    QStringList names;
    for (int index = 0; covers && index < ippGetCount(covers); ++index) {
        const QString name =
            shownServerText(QString::fromUtf8(ippGetString(covers, index, nullptr)));
        if (!name.isEmpty() && !names.contains(name))
            names += name;
    }
    return names;
}
