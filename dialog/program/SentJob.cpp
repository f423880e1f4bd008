#include "dialog/program/SentJob.h"

#include "dialog/printing/FollowPreference.h"
#include "dialog/program/FollowCommand.h"
#include "dialog/window/JobWindow.h"

SentJob::SentJob() = default;
SentJob::~SentJob() = default;

void SentJob::take(const QString &server, const JobName &job)
{
    if (!followsJobs()) {
        leave(server, job);
        return;
    }
    m_window = std::make_unique<JobWindow>(server, job);
    connect(m_window.get(), &QDialog::finished, this, [this, server, job] {
        if (!m_window->isAtEnd())
            leave(server, job);
    });
    m_window->show();
}

void SentJob::leave(const QString &server, const JobName &job)
{
    if (!m_isEnding)
        startFollowing(server, job);
}

void SentJob::end()
{
    m_isEnding = true;
    if (m_window)
        m_window->reject();
}
