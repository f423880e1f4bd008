#include "dialog/printing/JobSeries.h"

#include "dialog/cups/JobSettlement.h"
#include "dialog/cups/Passwords.h"
#include "dialog/work/BackgroundCall.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace {

/// Whether it makes sense to send the next job after one that has ended so.
bool mayGoOn(const Result<JobReceipt> &receipt, const QString &server, CallGuard &guard)
{
    switch (receipt.faultKind().value_or(FaultKind::Refused)) {
    case FaultKind::Cancelled:
    case FaultKind::Silent:
    case FaultKind::NotFound:
    case FaultKind::NeedsPassword:
    case FaultKind::Untrusted:
    case FaultKind::Exchanged:
        return false;
    case FaultKind::Unreachable: {
        guard.stampSignOfLife();
        CallGuard waiting(guard.timeout() / 2);
        return connectAgain(server, waiting)->isConnected();
    }
    default:
        return !guard.isCancelled();
    }
}

} // namespace

JobSeries::JobSeries(QList<JobRequest> jobs, Listener listener, QObject *parent)
    : QObject(parent), m_jobs(std::move(jobs)), m_listener(std::move(listener))
{
    for (qsizetype index = 0; index < m_jobs.size(); ++index)
        m_progresses.push_back(std::make_shared<JobProgress>());
}

// The call goes first: nothing of it arrives any more.
JobSeries::~JobSeries()
{
    delete m_call;
}

void JobSeries::start()
{
    const auto tell = [self = QPointer(this)](const Result<JobReceipt> &receipt) {
        if (QCoreApplication *application = QCoreApplication::instance())
            QMetaObject::invokeMethod(application, [self, receipt] {
                if (self)
                    self->take(receipt);
            });
    };
    m_call = new BackgroundCall(
        this, kServerTimeout,
        [this, jobs = m_jobs, progresses = m_progresses,
         tell](CallGuard &guard) -> BackgroundCall::Outcome {
            const PasswordScope scope(PasswordPurpose::Printing, jobs.constFirst().queue);
            const QString server = jobs.constFirst().server;
            JobSubmission submission(server, guard);
            for (std::size_t index = 0; index < progresses.size(); ++index) {
                guard.stampSignOfLife();
                const Result<JobReceipt> receipt =
                    submission.submit(jobs[static_cast<qsizetype>(index)], *progresses[index]);
                tell(receipt);
                if (!mayGoOn(receipt, server, guard))
                    break;
            }
            return [this] { m_listener.over(); };
        },
        [this] { giveUp(); });
}

void JobSeries::take(const Result<JobReceipt> &receipt)
{
    if (m_call) // else it was given up, and something has been said of the job
        m_listener.ended(m_ended++, receipt);
}

void JobSeries::giveUp()
{
    m_call.clear();
    if (m_ended < m_jobs.size())
        m_listener.ended(m_ended, givenUpReceipt(m_jobs[m_ended],
                                                 *m_progresses[static_cast<std::size_t>(m_ended)]));
    m_listener.over();
}

void JobSeries::cancel()
{
    if (m_call)
        m_call->cancel();
}
