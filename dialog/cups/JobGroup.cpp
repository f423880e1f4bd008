#include "dialog/cups/JobGroup.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

#include <algorithm>
#include <vector>

namespace {

int idOf(ipp_t *job)
{
    ipp_attribute_t *id = ippFindAttribute(job, "job-id", IPP_TAG_INTEGER);
    return id ? ippGetInteger(id, 0) : 0;
}

IppHandle jobsRequest(const JobGroup &group)
{
    IppHandle request = queueRequest(IPP_OP_GET_JOBS, group.queue);
    const std::vector<int> ids(group.ids.begin(), group.ids.end());
    ippAddIntegers(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-ids",
                   static_cast<int>(ids.size()), ids.data());
    askFor(request.get(), QList<QByteArray>{"job-id"} + statusAttributes());
    return request;
}

/// All that the server tells of. One that has forgotten some of the jobs tells of none.
Result<QMap<int, JobStatus>> askTogether(ServerConnection &connection, const JobGroup &group)
{
    const IppHandle answer = connection.request(jobsRequest(group), queueResource(group.queue));
    if (connection.lastEnd().kind != ExchangeEnd::Kind::Answered)
        return connection.lastFault(group.queue);
    QMap<int, JobStatus> statuses;
    if (connection.succeeded())
        for (const IppHandle &job : groupsOf(answer.get(), IPP_TAG_JOB))
            if (group.ids.contains(idOf(job.get())))
                statuses.insert(idOf(job.get()), statusOf(job.get()));
    return statuses;
}

bool isWaiting(const JobStatus &status)
{
    return status.phase == JobPhase::Waiting;
}

/// A job that waits does not tell that its printer was stopped before it came.
void addPrinter(ServerConnection &connection, const QString &queue, GroupLook &look)
{
    if (std::ranges::none_of(look.statuses, isWaiting))
        return;
    ++look.requests;
    const JobStatus waiting = askPrinter(connection, queue, JobStatus());
    for (JobStatus &status : look.statuses)
        if (isWaiting(status))
            status = waiting;
}

Result<GroupLook> lookAtOne(const JobPlace &job, const JobWatch &watch,
                            const std::optional<JobStatus> &last, CallGuard &guard)
{
    const Result<JobLook> look = lookAt(job, watch, last, guard);
    if (!look)
        return look.fault();
    return GroupLook{{{job.id, look->status}}, look->watch, look->requests};
}

} // namespace

Result<GroupLook> lookAt(const JobGroup &group, const GroupWatch &watch, CallGuard &guard)
{
    if (group.ids.size() == 1) {
        const int id = group.ids.constFirst();
        const auto last = watch.last.constFind(id);
        return lookAtOne({group.server, group.queue, id}, watch.job,
                         last == watch.last.cend() ? std::nullopt : std::optional(*last), guard);
    }
    ServerConnection connection(group.server, guard);
    if (!connection.isConnected())
        return connection.lastFault(group.queue);
    Result<QMap<int, JobStatus>> together = askTogether(connection, group);
    if (!together)
        return together.fault();
    GroupLook look{*together, {}, 1};
    QList<int> untold = group.ids;
    untold.removeIf([&](int id) { return look.statuses.contains(id); });
    if (!untold.isEmpty()) {
        const int id = untold[watch.looks % untold.size()];
        const Result<JobStatus> alone =
            askStatus(connection, {group.server, group.queue, id}, look.requests);
        if (!alone)
            return alone.fault();
        look.statuses.insert(id, *alone);
    }
    addPrinter(connection, group.queue, look);
    return look;
}
