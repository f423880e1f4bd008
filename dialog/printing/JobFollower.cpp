#include "dialog/printing/JobFollower.h"

#include <utility>

JobFollower::JobFollower(JobPlace job, Listener listener)
    : m_job(std::move(job)),
      m_follower({m_job.server, m_job.queue, {m_job.id}},
                 {[this, changed = std::move(listener.changed)](int, const JobStatus &status) {
                      m_status = status;
                      changed(status);
                  },
                  std::move(listener.lost),
                  [failed = std::move(listener.failed)](int, const QString &sentence) {
                      failed(sentence);
                  }})
{}
