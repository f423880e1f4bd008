#pragma once

#include "dialog/printing/GroupFollower.h"

#include <functional>
#include <optional>

/// Follows one accepted job as GroupFollower does several.
class JobFollower
{
public:
    struct Listener
    {
        std::function<void(const JobStatus &)> changed;
        std::function<void(const QString &)> lost;
        std::function<void(const QString &)> failed;
    };

    JobFollower(JobPlace job, Listener listener);

    const JobPlace &job() const { return m_job; }

    /// As it was last heard of; none before the first answer.
    const std::optional<JobStatus> &status() const { return m_status; }

    void start() { m_follower.start(); }
    void perform(JobAction action) { m_follower.perform(action, m_job.id); }

private:
    const JobPlace m_job;
    std::optional<JobStatus> m_status;
    GroupFollower m_follower;
};
