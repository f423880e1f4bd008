#include "dialog/cups/LostCreation.h"

#include "dialog/cups/JobFate.h"
#include "dialog/cups/JobSettlement.h"
#include "dialog/cups/ServerRequests.h"
#include "dialog/job/OutgoingText.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int kClockTolerance = 1; // seconds: the server's clock counts whole ones

int numberIn(ipp_t *job, const char *name)
{
    ipp_attribute_t *number = ippFindAttribute(job, name, IPP_TAG_INTEGER);
    return number ? ippGetInteger(number, 0) : -1;
}

QByteArray titleOf(ipp_t *job)
{
    ipp_attribute_t *title = ippFindAttribute(job, "job-name", IPP_TAG_NAME);
    return title ? ippGetString(title, 0, nullptr) : nullptr;
}

/// Whether the job may be the one that was created meanwhile.
bool mayBe(ipp_t *job, const QByteArray &title, std::chrono::duration<double> meanwhile)
{
    const int created = numberIn(job, "time-at-creation");
    const int now = numberIn(job, "job-printer-up-time");
    return numberIn(job, "job-id") > 0 && titleOf(job) == title &&
           numberIn(job, "number-of-documents") == 0 && created >= 0 &&
           now - created <= meanwhile.count() + kClockTolerance;
}

IppHandle ownJobsRequest(const QString &queue)
{
    IppHandle request = queueRequest(IPP_OP_GET_JOBS, queue);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr,
                 "not-completed");
    askFor(request.get(), {"job-id", "job-name", "number-of-documents", "time-at-creation",
                           "job-printer-up-time"});
    return request;
}

} // namespace

bool mayHaveCreated(const ExchangeEnd &end)
{
    using Kind = ExchangeEnd::Kind;
    constexpr std::array saidByNobody{Kind::Closed, Kind::Broken,  Kind::CutShort, Kind::Unreadable,
                                      Kind::Silent, Kind::TooSlow, Kind::TooLarge, Kind::Cancelled};
    return std::ranges::find(saidByNobody, end.kind) != saidByNobody.end();
}

// On a connection of its own, and not for long: the user has waited for the answer already.
void cancelLostJob(const JobRequest &job, const CreationTime &time, CallGuard &guard)
{
    guard.stampSignOfLife();
    CallGuard looking(guard.timeout() / 4);
    const auto connection = connectAgain(job.server, looking);
    if (!connection->isConnected())
        return;
    const IppHandle answer =
        connection->request(ownJobsRequest(job.queue), queueResource(job.queue));
    if (!answer || !connection->succeeded())
        return;
    const auto meanwhile = std::chrono::steady_clock::now() - time.begin;
    const QByteArray title = outgoingTitle(job.title);
    std::vector<IppHandle> jobs = groupsOf(answer.get(), IPP_TAG_JOB);
    std::erase_if(jobs, [&](const IppHandle &one) { return !mayBe(one.get(), title, meanwhile); });
    if (jobs.size() == 1)
        cancelJob(*connection, job.queue, numberIn(jobs.front().get(), "job-id"));
}
