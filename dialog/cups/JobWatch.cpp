#include "dialog/cups/JobWatch.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kMostSkipped = 4;

// What changes the status of a job, and what its printer tells meanwhile.
constexpr std::array<const char *, 4> kEvents{"job-state-changed", "job-progress",
                                              "printer-state-changed", "printer-stopped"};

/// Cups wants the job's number beside the events, the standard among what is asked of the server.
IppHandle subscribeRequest(const JobPlace &job)
{
    IppHandle request = jobRequest(IPP_OP_CREATE_JOB_SUBSCRIPTIONS, job.queue, job.id);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-job-id", job.id);
    ippAddString(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-pull-method",
                 nullptr, "ippget");
    ippAddStrings(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-events",
                  static_cast<int>(kEvents.size()), nullptr, kEvents.data());
    ippAddInteger(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-job-id", job.id);
    return request;
}

IppHandle eventsRequest(const JobPlace &job, const JobWatch &watch)
{
    IppHandle request = queueRequest(IPP_OP_GET_NOTIFICATIONS, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-ids",
                  watch.subscription);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-sequence-numbers",
                  watch.lastEvent + 1);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "notify-wait", 0);
    return request;
}

/// The number of the latest event in the answer; 0 without one.
int latestEvent(ipp_t *answer)
{
    constexpr auto name = "notify-sequence-number";
    int latest = 0;
    for (ipp_attribute_t *one = ippFindAttribute(answer, name, IPP_TAG_INTEGER); one;
         one = ippFindNextAttribute(answer, name, IPP_TAG_INTEGER))
        latest = std::max(latest, ippGetInteger(one, 0));
    return latest;
}

bool isAnswered(const ServerConnection &connection)
{
    return connection.lastEnd().kind == ExchangeEnd::Kind::Answered;
}

/// Notes what the server says of events. Whether the job itself has to be asked for: something has
/// happened, or the subscription is no more.
bool hasNews(ServerConnection &connection, const JobPlace &job, JobWatch &watch)
{
    const IppHandle answer =
        connection.request(eventsRequest(job, watch), queueResource(job.queue));
    if (!answer || !connection.succeeded()) {
        watch.subscription = 0;
        return true;
    }
    const int latest = latestEvent(answer.get());
    const bool isNew = latest > watch.lastEvent;
    watch.lastEvent = std::max(latest, watch.lastEvent);
    return isNew;
}

/// What happens between the job's status and this is told by no event: the next look asks for it.
void subscribe(ServerConnection &connection, const JobPlace &job, JobWatch &watch)
{
    const IppHandle answer = connection.request(subscribeRequest(job), queueResource(job.queue));
    ipp_attribute_t *id = ippFindAttribute(answer.get(), "notify-subscription-id", IPP_TAG_INTEGER);
    watch.isRefused = isAnswered(connection) && (!connection.succeeded() || !id);
    watch.subscription = connection.succeeded() && id ? ippGetInteger(id, 0) : 0;
    watch.lastEvent = 0;
    watch.skipped = kMostSkipped;
}

} // namespace

Result<JobLook> lookAt(const JobPlace &job, const JobWatch &watch,
                       const std::optional<JobStatus> &last, CallGuard &guard)
{
    ServerConnection connection(job.server, guard);
    if (!connection.isConnected())
        return connection.lastFault(job.queue);
    JobLook look{last.value_or(JobStatus()), watch, 0};
    if (last && watch.subscription != 0 && watch.skipped < kMostSkipped) {
        ++look.requests;
        const bool isNews = hasNews(connection, job, look.watch);
        if (!isAnswered(connection))
            return connection.lastFault(job.queue);
        if (!isNews) {
            ++look.watch.skipped;
            return look;
        }
    }
    const Result<JobStatus> status = askStatus(connection, job, look.requests);
    if (!status)
        return status.fault();
    look.status = *status;
    look.watch.skipped = 0;
    const bool isLonger = last && !isEnd(status->phase); // most jobs are short
    if (isLonger && look.watch.subscription == 0 && !look.watch.isRefused) {
        ++look.requests;
        subscribe(connection, job, look.watch);
    }
    return look;
}
