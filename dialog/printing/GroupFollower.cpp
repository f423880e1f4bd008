#include "dialog/printing/GroupFollower.h"

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

GroupFollower::GroupFollower(JobGroup jobs, Listener listener, QObject *parent)
    : QObject(parent), m_jobs(std::move(jobs)), m_listener(std::move(listener))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &GroupFollower::look);
}

// The calls go first: nothing of theirs arrives any more.
GroupFollower::~GroupFollower()
{
    delete m_looking;
    delete m_performing;
}

void GroupFollower::start()
{
    look();
}

void GroupFollower::look()
{
    m_timer.stop();
    delete m_looking;
    m_looking = new BackgroundCall(
        this, kServerTimeout,
        [this, jobs = m_jobs, watch = m_watch](CallGuard &guard) -> BackgroundCall::Outcome {
            const auto answer = std::make_shared<Result<GroupLook>>(lookAt(jobs, watch, guard));
            return [this, answer] { take(*answer); };
        },
        [this] { take(silentServer(m_jobs.server)); });
}

void GroupFollower::take(const Result<GroupLook> &answer)
{
    m_looking.clear();
    const bool wasLost = std::exchange(m_isLost, !answer);
    const QMap<int, JobStatus> news = answer ? takeNews(*answer, wasLost) : QMap<int, JobStatus>();
    m_looks = news.isEmpty() ? m_looks + 1 : 0;
    if (!m_jobs.ids.isEmpty())
        m_timer.start(followInterval(m_looks, answer ? answer->requests : 0));
    if (!answer && !wasLost)
        m_listener.lost(answer.sentence());
    const QPointer<GroupFollower> self(this); // whoever is told may end it
    for (auto one = news.cbegin(); self && one != news.cend(); ++one)
        m_listener.changed(one.key(), *one);
}

/// Notes how the jobs stand, and gives those that stand otherwise than before.
QMap<int, JobStatus> GroupFollower::takeNews(const GroupLook &look, bool all)
{
    QMap<int, JobStatus> news;
    for (auto one = look.statuses.cbegin(); one != look.statuses.cend(); ++one) {
        const auto last = m_watch.last.constFind(one.key());
        const bool isKnown = last != m_watch.last.cend() && *last == *one;
        if (m_jobs.ids.contains(one.key()) && (all || !isKnown))
            news.insert(one.key(), *one);
        if (isEnd(one->phase))
            m_jobs.ids.removeOne(one.key());
    }
    m_watch.last.insert(look.statuses);
    m_watch.job = look.job;
    ++m_watch.looks;
    return news;
}

void GroupFollower::perform(JobAction action, int id)
{
    m_wanted += Wanted{action, id};
    if (!m_performing)
        performNext();
}

void GroupFollower::performNext()
{
    const Wanted next = m_wanted.takeFirst();
    const auto take = [this, id = next.id](const Result<> &done) {
        m_performing.clear();
        if (!m_jobs.ids.contains(id))
            m_jobs.ids += id;
        if (!done)
            m_listener.failed(id, done.sentence());
        m_looks = 0;
        if (!m_wanted.isEmpty())
            performNext();
        else if (!m_looking)
            m_timer.start(followInterval(0, 1));
    };
    const JobPlace job{m_jobs.server, m_jobs.queue, next.id};
    m_performing = new BackgroundCall(
        this, kServerTimeout,
        [job, action = next.action, take](CallGuard &guard) -> BackgroundCall::Outcome {
            const auto done = std::make_shared<Result<>>(::perform(action, job, guard));
            return [done, take] { take(*done); };
        },
        [job, take] { take(silentServer(job.server)); });
}
