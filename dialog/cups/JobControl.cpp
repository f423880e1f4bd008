#include "dialog/cups/JobControl.h"

#include "dialog/cups/JobAuthentication.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

#include <algorithm>
#include <array>

namespace {

constexpr unsigned bit(JobPhase phase)
{
    return 1U << static_cast<unsigned>(phase);
}

constexpr unsigned kAtEnd = bit(JobPhase::Finished) | bit(JobPhase::FinishedWithErrors) |
                            bit(JobPhase::Cancelled) | bit(JobPhase::Aborted);

struct ActionRow
{
    JobAction action;
    ipp_op_t operation;
    unsigned phases; // in which it is offered
};

constexpr std::array kActions{
    ActionRow{JobAction::Cancel, IPP_OP_CANCEL_JOB, ~(kAtEnd | bit(JobPhase::Unknown))},
    ActionRow{JobAction::Hold, IPP_OP_HOLD_JOB, bit(JobPhase::Waiting) | bit(JobPhase::Stopped)},
    ActionRow{JobAction::Release, IPP_OP_RELEASE_JOB,
              bit(JobPhase::Held) | bit(JobPhase::HeldToRetry)},
    ActionRow{JobAction::Restart, IPP_OP_RESTART_JOB, kAtEnd},
    ActionRow{JobAction::Authenticate, IPP_OP_CUPS_AUTHENTICATE_JOB, bit(JobPhase::NeedsPassword)},
};

const ActionRow &rowOf(JobAction action)
{
    return *std::ranges::find(kActions, action, &ActionRow::action);
}

bool isForgotten(const ServerConnection &connection)
{
    return connection.lastEnd().kind == ExchangeEnd::Kind::Answered &&
           connection.lastEnd().status == IPP_STATUS_ERROR_NOT_FOUND;
}

} // namespace

bool isOffered(JobAction action, JobPhase phase)
{
    return (rowOf(action).phases & bit(phase)) != 0;
}

Result<JobStatus> askStatus(ServerConnection &connection, const JobPlace &job, int &requests)
{
    ++requests;
    IppHandle request = jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, job.queue, job.id);
    askFor(request.get(), statusAttributes());
    const IppHandle answer = connection.request(std::move(request), queueResource(job.queue));
    if (isForgotten(connection))
        return JobStatus{JobPhase::Unknown, 0, {}, {}};
    if (!answer || !connection.succeeded())
        return connection.lastFault(job.queue);
    const JobStatus status = statusOf(answer.get());
    if (status.phase != JobPhase::Waiting)
        return status;
    ++requests;
    return askPrinter(connection, job.queue, status);
}

JobStatus askPrinter(ServerConnection &connection, const QString &queue, const JobStatus &status)
{
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request.get(), printerStatusAttributes());
    const IppHandle printer = connection.request(std::move(request), queueResource(queue));
    return printer && connection.succeeded() ? withPrinter(status, printer.get()) : status;
}

Result<> perform(JobAction action, const JobPlace &job, CallGuard &guard)
{
    if (action == JobAction::Authenticate)
        return authenticateJob(job, guard);
    const PasswordScope scope(PasswordPurpose::ChangingJob, job.queue);
    ServerConnection connection(job.server, guard);
    if (connection.isConnected())
        connection.request(jobRequest(rowOf(action).operation, job.queue, job.id),
                           queueResource(job.queue));
    return connection.isConnected() && connection.succeeded()
               ? Result<>()
               : Result<>(connection.lastFault(job.queue));
}
