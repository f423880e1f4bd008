#include "dialog/cups/PrinterCondition.h"

#include "dialog/cups/QueueOutlook.h"
#include "dialog/cups/ServerRequests.h"

#include <algorithm>

PrinterCondition conditionOf(ipp_t *printer)
{
    ipp_attribute_t *jobs = ippFindAttribute(printer, "queued-job-count", IPP_TAG_INTEGER);
    ipp_attribute_t *accepting =
        ippFindAttribute(printer, "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    ipp_attribute_t *changed =
        ippFindAttribute(printer, "printer-config-change-time", IPP_TAG_INTEGER);
    return {.queuedJobs = jobs ? std::max(0, ippGetInteger(jobs, 0)) : 0,
            .supplies = suppliesOf(printer),
            .loaded = loadedMediaOf(printer),
            .terms = termsOf(printer),
            .waiting = withPrinter(JobStatus(), printer),
            .isAccepting = !accepting || ippGetBoolean(accepting, 0),
            .changeTime = changed ? ippGetInteger(changed, 0) : 0};
}

Result<PrinterCondition> askCondition(const QString &server, const QString &queue, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request.get(),
           QList<QByteArray>{"queued-job-count", "member-names", "printer-is-accepting-jobs",
                             "printer-config-change-time"} +
               supplyAttributes() + loadedMediaAttributes() + printerStatusAttributes() +
               termsAttributes());
    const IppHandle answer = connection.request(std::move(request), queueResource(queue));
    if (!answer || !connection.succeeded())
        return connection.lastFault(queue);
    PrinterCondition condition = conditionOf(answer.get());
    condition.members = classMembers(answer.get(), connection);
    return condition;
}
