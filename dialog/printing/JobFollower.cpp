#include "dialog/printing/JobFollower.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/work/BackgroundCall.h"

#include <algorithm>
#include <memory>
#include <utility>

using namespace std::chrono_literals;

std::chrono::milliseconds followInterval(int looks, int requests)
{
    constexpr int kLooksASecond = 10; // as long as something may be about to happen
    const auto interval =
        std::clamp<std::chrono::milliseconds>((looks - kLooksASecond) * 250ms, 2s, 5s);
    return std::max<std::chrono::milliseconds>(interval, requests * 1s);
}

JobFollower::JobFollower(JobPlace job, Listener listener, QObject *parent)
    : QObject(parent), m_job(std::move(job)), m_listener(std::move(listener))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &JobFollower::look);
}

// The calls go first: nothing of theirs arrives any more.
JobFollower::~JobFollower()
{
    delete m_looking;
    delete m_performing;
}

void JobFollower::start()
{
    look();
}

void JobFollower::look()
{
    m_timer.stop();
    delete m_looking;
    m_looking = new BackgroundCall(
        this, kServerTimeout,
        [this, job = m_job, watch = m_watch,
         last = m_status](CallGuard &guard) -> BackgroundCall::Outcome {
            const auto answer = std::make_shared<Result<JobLook>>(lookAt(job, watch, last, guard));
            return [this, answer] { take(*answer); };
        },
        [this] { take(silentServer(m_job.server)); });
}

void JobFollower::take(const Result<JobLook> &answer)
{
    m_looking.clear();
    const bool wasLost = std::exchange(m_isLost, !answer);
    const bool isNew = answer && (wasLost || m_status != answer->status);
    m_looks = isNew ? 0 : m_looks + 1;
    if (answer) {
        m_status = answer->status;
        m_watch = answer->watch;
    }
    if (!answer || !isEnd(answer->status.phase))
        m_timer.start(followInterval(m_looks, answer ? answer->requests : 0));
    if (isNew)
        m_listener.changed(*m_status);
    else if (!answer && !wasLost)
        m_listener.lost(answer.sentence());
}

void JobFollower::perform(JobAction action)
{
    delete m_performing;
    const auto take = [this](const Result<> &done) {
        m_performing.clear();
        if (!done)
            m_listener.failed(done.sentence());
        m_looks = 0;
        if (!m_looking)
            m_timer.start(followInterval(0, 1));
    };
    m_performing = new BackgroundCall(
        this, kServerTimeout,
        [job = m_job, action, take](CallGuard &guard) -> BackgroundCall::Outcome {
            const auto done = std::make_shared<Result<>>(::perform(action, job, guard));
            return [done, take] { take(*done); };
        },
        [this, take] { take(silentServer(m_job.server)); });
}
