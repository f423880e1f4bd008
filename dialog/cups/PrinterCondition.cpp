#include "dialog/cups/PrinterCondition.h"

#include "dialog/cups/QueueOutlook.h"

#include <algorithm>

PrinterCondition conditionOf(ipp_t *printer)
{
    ipp_attribute_t *jobs = ippFindAttribute(printer, "queued-job-count", IPP_TAG_INTEGER);
    return {jobs ? std::max(0, ippGetInteger(jobs, 0)) : 0, suppliesOf(printer),
            loadedMediaOf(printer), termsOf(printer), withPrinter(JobStatus(), printer)};
}

Result<PrinterCondition> askCondition(const QString &server, const QString &queue, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request.get(), QList<QByteArray>{"queued-job-count", "member-names"} +
                              supplyAttributes() + loadedMediaAttributes() +
                              printerStatusAttributes() + termsAttributes());
    const IppHandle answer = connection.request(std::move(request), queueResource(queue));
    if (!answer || !connection.succeeded())
        return connection.lastFault(queue);
    PrinterCondition condition = conditionOf(answer.get());
    condition.members = classMembers(answer.get(), connection);
    return condition;
}
