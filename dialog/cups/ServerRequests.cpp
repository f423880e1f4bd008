#include "dialog/cups/ServerRequests.h"

#include "dialog/job/OutgoingText.h"

#include <QtCore/QUrl>

#include <vector>

namespace {

constexpr auto kThisMachine = "localhost"; // a request's URI need not say where it is sent

} // namespace

QByteArray requestingUser()
{
    return outgoingText(QString::fromLocal8Bit(cupsUser()), "anonymous");
}

IppHandle queueRequest(ipp_op_t operation, const QString &queue)
{
    IppHandle request(ippNewRequest(operation));
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, kThisMachine, 0,
                     "/printers/%s", queue.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 requestingUser().constData());
    return request;
}

IppHandle jobRequest(ipp_op_t operation, const QString &queue, int jobId)
{
    IppHandle request = queueRequest(operation, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    return request;
}

void askFor(ipp_t *request, const QList<QByteArray> &names)
{
    std::vector<const char *> wanted;
    for (const QByteArray &name : names)
        wanted.push_back(name.constData());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
}

QByteArray queueResource(const QString &queue)
{
    return "/printers/" + QUrl::toPercentEncoding(queue);
}
