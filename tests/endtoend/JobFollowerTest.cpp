#include "dialog/printing/JobFollower.h"
#include "dialog/cups/JobSentence.h"
#include "tests/endtoend/DeviceFixture.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kTimeout = 30000; // ms

/// What is heard of a job.
class Follower
{
public:
    Follower(const QString &server, const QString &queue, int id)
        : m_follower({server, queue, id},
                     {[this](const JobStatus &status) { m_heard += status; },
                      [this](const QString &sentence) { m_lost += sentence; },
                      [this](const QString &sentence) { m_failed += sentence; }})
    {
        m_follower.start();
    }

    bool waitFor(JobPhase phase)
    {
        return QTest::qWaitFor(
            [&] { return !m_heard.isEmpty() && m_heard.constLast().phase == phase; }, kTimeout);
    }

    JobStatus last() const { return m_heard.value(m_heard.size() - 1); }
    QList<JobStatus> &heard() { return m_heard; }
    QStringList &lost() { return m_lost; }
    QStringList &failed() { return m_failed; }
    JobFollower &operator*() { return m_follower; }

private:
    QList<JobStatus> m_heard;
    QStringList m_lost;
    QStringList m_failed;
    JobFollower m_follower;
};

class Following : public DeviceFixture
{
protected:
    std::unique_ptr<Follower> follow(const QString &queue)
    {
        m_job = {queue, print(queue)};
        return std::make_unique<Follower>(server().address(), queue, m_job.id);
    }

    JobName m_job;
};

struct EndCase
{
    const char *behaviour;
    const char *queue;
    JobPhase phase;
    const char *sentence; ///< %1: the job's number
};

class FollowingTo : public Following, public testing::WithParamInterface<EndCase>
{};

TEST_P(FollowingTo, WhereTheJobComes)
{
    const auto follower = follow(QLatin1String(GetParam().queue));
    EXPECT_TRUE(follower->waitFor(GetParam().phase)) << static_cast<int>(follower->last().phase);
    EXPECT_EQ(sentenceOf(m_job, follower->last()),
              QString::fromLatin1(GetParam().sentence).arg(m_job.id));
    EXPECT_EQ(follower->lost() + follower->failed(), QStringList());
    if (!isEnd(GetParam().phase)) {
        (**follower).perform(JobAction::Cancel);
        EXPECT_TRUE(follower->waitFor(JobPhase::Cancelled));
    }
}

const EndCase kEnds[] = {
    {"Finished", "finish", JobPhase::Finished, "Job %1 on finish is printed."},
    {"InTrouble", "empty", JobPhase::InTrouble,
     "Job %1 on empty: the printer needs somebody: The multi-purpose tray is empty."},
    {"HeldToRetry", "retry", JobPhase::HeldToRetry,
     "Job %1 on retry is held and will be tried again later: No route to the printer."},
    {"NeedsPassword", "password", JobPhase::NeedsPassword,
     "Job %1 on password is held until its printer is given a user name and a password."},
    {"Held", "hold", JobPhase::Held, "Job %1 on hold is held until somebody releases it."},
    {"Stopped", "stop", JobPhase::Stopped,
     "Job %1 on stop is waiting: the printer is stopped: The carriage is blocked."},
    {"Cancelled", "cancel", JobPhase::Cancelled, "Job %1 on cancel was cancelled."},
};

INSTANTIATE_TEST_SUITE_P(Table, FollowingTo, testing::ValuesIn(kEnds), CaseName());

/// The server answers no question about jobs of which it has forgotten one.
TEST_F(Following, SeveralJobsFindsOutWhatBecameOfEach)
{
    constexpr int kForgotten = 9999;
    const int id = print(u"finish"_s);
    QMap<int, JobPhase> heard;
    QStringList trouble;
    GroupFollower follower(
        {server().address(), u"finish"_s, {id, kForgotten}},
        {[&](int job, const JobStatus &status) { heard.insert(job, status.phase); },
         [&](const QString &sentence) { trouble += sentence; },
         [&](int, const QString &sentence) { trouble += sentence; }});
    follower.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return follower.jobs().ids.isEmpty(); }, kTimeout));
    EXPECT_EQ(heard,
              (QMap<int, JobPhase>{{id, JobPhase::Finished}, {kForgotten, JobPhase::Unknown}}));
    EXPECT_EQ(trouble, QStringList());
}

TEST_F(Following, GoesOnWhenThePrinterIsLookedAfter)
{
    const auto follower = follow(u"empty"_s);
    ASSERT_TRUE(follower->waitFor(JobPhase::InTrouble));
    continueDevices();
    EXPECT_TRUE(follower->waitFor(JobPhase::Finished));
    EXPECT_EQ(follower->last().reason, QString());
}

TEST_F(Following, OutlastsAServerThatDoesNotAnswer)
{
    const auto follower = follow(u"empty"_s);
    ASSERT_TRUE(follower->waitFor(JobPhase::InTrouble));
    server().holdAnswers();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !follower->lost().isEmpty(); }, kTimeout));
    server().giveAnswers();
    continueDevices();
    EXPECT_TRUE(follower->waitFor(JobPhase::Finished));
    EXPECT_EQ(follower->lost().size(), 1);
}

TEST_F(Following, OutlastsAServerThatIsStartedAgain)
{
    const auto follower = follow(u"empty"_s);
    ASSERT_TRUE(follower->waitFor(JobPhase::InTrouble));
    ASSERT_TRUE(
        QTest::qWaitFor([] { return server().countOf("Create-Job-Subscriptions") > 0; }, kTimeout));
    server().stop();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !follower->lost().isEmpty(); }, kTimeout));
    continueDevices();
    ASSERT_TRUE(server().restart());
    EXPECT_TRUE(follower->waitFor(JobPhase::Finished));
    EXPECT_EQ(follower->lost().size(), 1);
}

TEST_F(Following, AsksForEventsAndSeldomForTheJob)
{
    const qsizetype before = server().countOf("Get-Job-Attributes");
    const auto follower = follow(u"empty"_s);
    ASSERT_TRUE(follower->waitFor(JobPhase::InTrouble));
    ASSERT_TRUE(
        QTest::qWaitFor([] { return server().countOf("Get-Notifications") >= 3; }, kTimeout));
    EXPECT_LE(server().countOf("Get-Job-Attributes") - before, 6);
    continueDevices();
    EXPECT_TRUE(follower->waitFor(JobPhase::Finished));
}

TEST_F(Following, CanHoldReleaseAndRestart)
{
    ASSERT_TRUE(server().command(u"cupsdisable"_s, {u"finish"_s}));
    const auto follower = follow(u"finish"_s);
    ASSERT_TRUE(follower->waitFor(JobPhase::Stopped));
    (**follower).perform(JobAction::Hold);
    ASSERT_TRUE(follower->waitFor(JobPhase::Held));
    (**follower).perform(JobAction::Release);
    ASSERT_TRUE(follower->waitFor(JobPhase::Stopped));
    ASSERT_TRUE(server().command(u"cupsenable"_s, {u"finish"_s}));
    ASSERT_TRUE(follower->waitFor(JobPhase::Finished));
    (**follower).perform(JobAction::Restart);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return server().jobAttributes(u"finish"_s, m_job.id).value(u"job-state"_s).toInt() ==
                   IPP_JSTATE_COMPLETED;
        },
        kTimeout));
    EXPECT_EQ(follower->failed(), QStringList());
}

TEST_F(Following, SaysWhatCouldNotBeDone)
{
    const auto follower = follow(u"finish"_s);
    ASSERT_TRUE(follower->waitFor(JobPhase::Finished));
    (**follower).perform(JobAction::Cancel);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !follower->failed().isEmpty(); }, kTimeout));
}

TEST_F(Following, AJobThatTheServerDoesNotKnowIsAtAnEnd)
{
    Follower follower(server().address(), u"finish"_s, 99999);
    EXPECT_TRUE(follower.waitFor(JobPhase::Unknown));
}

TEST(FollowInterval, GrowsFromTwoSecondsToFive)
{
    EXPECT_EQ(followInterval(0, 1), 2s);
    EXPECT_EQ(followInterval(10, 1), 2s);
    EXPECT_EQ(followInterval(20, 1), 2500ms);
    EXPECT_EQ(followInterval(1000, 1), 5s);
}

TEST(FollowInterval, LeavesASecondForEachRequest)
{
    EXPECT_EQ(followInterval(0, 2), 2s);
    EXPECT_EQ(followInterval(0, 3), 3s);
    EXPECT_EQ(followInterval(1000, 3), 5s);
}

} // namespace
