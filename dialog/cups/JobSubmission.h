#pragma once

#include "dialog/cups/ServerConnection.h"
#include "dialog/job/JobProgress.h"
#include "dialog/job/JobRequest.h"
#include "dialog/job/UnsaidSettings.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>

struct AuthInfo;

/// A job that a server has accepted.
struct JobReceipt
{
    int id = 0; ///< the server's number for it
    /// What a person should know of the job: that it is held, or that the server did not keep a
    /// setting. One sentence each.
    QStringList notes;
    /// The server holds the job for us: it would be printed otherwise than it was shown, as the
    /// notes say, or that is not known. Somebody has to say what becomes of it.
    bool isOnTrial = false;
    QString queue = {}; ///< as the server calls it; null: as it was asked for
};

/// Submits jobs of one queue over one connection, one after the other. For one thread; the guard
/// must outlive it.
///
/// For each it looks what the queue would make of the job, creates it, sends its documents, and
/// reads it back to compare it with what was sent. A job whose documents did not all arrive is
/// cancelled: nothing half is printed. Jobs of the same settings are looked ahead for once.
///
/// Where the queue would have its way against the job's settings, the job is sent held, and
/// released as soon as the comparison finds nothing. Where the printer behind the queue wants to
/// know who prints, somebody is asked before the job is created (PasswordScope).
///
/// A job whose settings are of a PPD that the queue no longer has is not created
/// (FaultKind::Exchanged).
///
/// Where the answer to the last document is late or lost, the server is asked for the job: it is
/// accepted when the server has all of it, and FaultKind::Unsettled when that cannot be known. It
/// is never sent a second time. Where the answer to the creation is lost, an empty job that is
/// found is cancelled. Cancelling (CallGuard) leaves no job that is not wholly sent; one that the
/// server has accepted goes on.
class JobSubmission
{
public:
    JobSubmission(const QString &server, CallGuard &guard) : m_connection(server, guard) {}

    Result<JobReceipt> submit(const JobRequest &request, JobProgress &progress);

    /// Looks at everything that submit() looks at before it creates a job: the fault that the job
    /// would end with.
    Result<> rehearse(const JobRequest &request);

private:
    Result<JobRequest> begin(const JobRequest &request);
    Result<JobRequest> prepare(const JobRequest &request);
    Result<> checkPPD(const JobRequest &job);
    Result<int> create(const JobRequest &job, const AuthInfo &who);

    /// What was found out for a job, and holds for others with the same options.
    struct Outlook
    {
        QList<JobOption> options;
        QueueInfluence influence;
    };

    ServerConnection m_connection;
    std::optional<QueueTerms> m_terms;
    std::optional<Outlook> m_outlook;
};

/// Submits one job. Blocks: call it in a BackgroundCall.
Result<JobReceipt>
submitJob(const JobRequest &request, CallGuard &guard,
          const std::shared_ptr<JobProgress> &progress = std::make_shared<JobProgress>());

/// Rehearses it. Blocks: call it in a BackgroundCall.
Result<> rehearseJob(const JobRequest &request, CallGuard &guard);

/// What is known of the job when the server was given up by whoever waited.
Result<JobReceipt> givenUpReceipt(const JobRequest &request, const JobProgress &progress);
