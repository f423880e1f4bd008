#include "dialog/cups/JobSubmission.h"

#include "dialog/cups/JobAuthentication.h"
#include "dialog/cups/JobReadBack.h"
#include "dialog/cups/JobSettlement.h"
#include "dialog/cups/JobTemplate.h"
#include "dialog/cups/LostCreation.h"
#include "dialog/cups/QueueOutlook.h"
#include "dialog/cups/QueuePPD.h"
#include "dialog/cups/ServerRequests.h"

#include <QtCore/QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kHold = "job-hold-until"_L1;

/// The job with what it has to say so that its queue does not say otherwise. Where that cannot be
/// said it waits until it was compared, unless the user wants it held anyway.
JobRequest prepared(const JobRequest &job, const QueueInfluence &influence)
{
    JobRequest prepared = job;
    prepared.options += influence.settled;
    if (influence.unsettled.isEmpty() || isToBeHeld(job.options))
        return prepared;
    prepared.options.removeIf([](const JobOption &option) { return option.name == kHold; });
    prepared.options += JobOption{kHold, u"indefinite"_s};
    prepared.isOnTrial = true;
    return prepared;
}

/// The queue as its server calls it: names are asked for in any case.
QString ownName(const QString &queue, const QueueTerms &terms)
{
    return terms.name.compare(queue, Qt::CaseInsensitive) == 0 ? terms.name : queue;
}

/// The number of the job in the server's answer; 0 without one that a job can have.
int createdJob(const IppHandle &response)
{
    ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id ? qMax(0, ippGetInteger(id, 0)) : 0;
}

/// Whether the server has said that it would not take the job; not every server can be asked.
bool isRefused(const ServerConnection &connection)
{
    return !connection.succeeded() &&
           connection.lastEnd().status != IPP_STATUS_ERROR_OPERATION_NOT_SUPPORTED;
}

/// Asking what would become of a job passes over that its queue takes none.
bool takesJobs(ServerConnection &connection, const QString &queue)
{
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request.get(), {"printer-is-accepting-jobs"});
    const IppHandle answer = connection.request(std::move(request), queueResource(queue));
    ipp_attribute_t *takes =
        ippFindAttribute(answer.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    return !takes || ippGetBoolean(takes, 0);
}

} // namespace

Result<JobRequest> JobSubmission::prepare(const JobRequest &request)
{
    if (!m_terms)
        m_terms = request.terms;
    if (!m_terms) {
        const Result<QueueTerms> terms = askTerms(m_connection, request.queue);
        if (!terms)
            return terms.fault();
        m_terms = *terms;
    }
    if (!m_outlook || m_outlook->options != request.options) {
        const Result<QueueInfluence> influence = lookAhead(m_connection, request, *m_terms);
        if (!influence)
            return influence.fault();
        m_outlook = Outlook{request.options, *influence};
    }
    return prepared(request, m_outlook->influence);
}

Result<int> JobSubmission::create(const JobRequest &job, const AuthInfo &who)
{
    const CreationTime time;
    const IppHandle created =
        m_connection.request(jobTemplate(IPP_OP_CREATE_JOB, job, who), queueResource(job.queue));
    const int id = m_connection.succeeded() && created ? createdJob(created) : 0;
    if (id != 0) {
        noteWhoPrints(who, id);
        return id;
    }
    const Fault fault = m_connection.lastFault(job.queue);
    if (mayHaveCreated(m_connection.lastEnd()))
        cancelLostJob(job, time, m_connection.guard());
    return fault;
}

/// The job as it is to be created, whose documents are still as they were.
Result<JobRequest> JobSubmission::begin(const JobRequest &request)
{
    if (const Result<> unchanged = checkUnchanged(request.documents); !unchanged)
        return unchanged.fault();
    if (!m_connection.isConnected() || m_connection.guard().isCancelled())
        return notPrinted(m_connection.lastFault(request.queue), request.queue);
    const Result<JobRequest> job = prepare(request);
    return job ? job : notPrinted(job.fault(), request.queue);
}

/// Right before the job is created: somebody may have been asked for a password meanwhile.
Result<> JobSubmission::checkPPD(const JobRequest &job)
{
    if (!job.ppd)
        return {};
    const Result<bool> exchanged = isExchanged(m_connection, job.queue, *job.ppd);
    if (!exchanged)
        return notPrinted(exchanged.fault(), job.queue);
    return *exchanged ? Result<>(notPrinted(exchangedPPD(job.queue), job.queue)) : Result<>();
}

Result<> JobSubmission::rehearse(const JobRequest &request)
{
    if (const Result<JobRequest> job = begin(request); !job)
        return job.fault();
    if (isRefused(m_connection))
        return notPrinted(m_connection.lastFault(request.queue), request.queue);
    if (takesJobs(m_connection, request.queue))
        return checkPPD(request);
    return notPrinted(
        {FaultKind::Refused,
         QCoreApplication::translate("JobSubmission", "The queue %1 takes no jobs at present.")
             .arg(request.queue)},
        request.queue);
}

Result<JobReceipt> JobSubmission::submit(const JobRequest &request, JobProgress &progress)
{
    const Result<JobRequest> job = begin(request);
    if (!job)
        return job.fault();
    const Result<AuthInfo> who = askWhoPrints(m_connection, job->queue, m_terms->authInfo);
    if (!who)
        return notPrinted(who.fault(), job->queue);
    if (const Result<> same = checkPPD(*job); !same)
        return same.fault();
    const Result<int> id = create(*job, *who);
    if (!id)
        return notPrinted(id.fault(), job->queue);
    progress.setId(*id);
    progress.setOnTrial(job->isOnTrial);
    const auto [sent, fault] = sendDocuments(m_connection, *job, progress);
    Result<JobReceipt> receipt = sent == Sent::Accepted
                                     ? accept(m_connection, *job, progress)
                                     : settle(fault.value_or(m_connection.lastFault(job->queue)),
                                              sent, *job, progress, m_connection.guard());
    if (receipt)
        receipt->queue = ownName(job->queue, *m_terms);
    return receipt;
}

Result<JobReceipt> submitJob(const JobRequest &request, CallGuard &guard,
                             const std::shared_ptr<JobProgress> &progress)
{
    return JobSubmission(request.server, guard).submit(request, *progress);
}

Result<> rehearseJob(const JobRequest &request, CallGuard &guard)
{
    return JobSubmission(request.server, guard).rehearse(request);
}

Result<JobReceipt> givenUpReceipt(const JobRequest &request, const JobProgress &progress)
{
    if (progress.isAccepted())
        return JobReceipt{progress.id(), {}, progress.isOnTrial()};
    return progress.id() == 0
               ? notPrinted(silentServer(request.server), request.queue)
               : perhapsPrinted(nameOfServer(request.server), request.queue, progress.id());
}
