// What becomes of a job when its window has gone: a process of its own tells of it on the desktop.
#include "dialog/printing/FollowPreference.h"
#include "dialog/program/FollowCommand.h"
#include "dialog/program/SentJob.h"
#include "dialog/window/JobWindow.h"
#include "tests/endtoend/DeviceFixture.h"
#include "tests/endtoend/NotificationDesk.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kLongestTelling = 30000; // ms
constexpr int kNormal = 1;             // urgencies of the desktop
constexpr int kCritical = 2;

class DetachedFollowing : public DeviceFixture
{
protected:
    bool tells(qsizetype notifications)
    {
        return QTest::qWaitFor([&] { return m_desk.shown().size() >= notifications; },
                               kLongestTelling);
    }

    NotificationDesk m_desk{NotificationDesk::Kind::Plain};
};

struct Telling
{
    const char *behaviour;
    const char *queue;
    const char *text; ///< %1: the job's number
    int urgency;
    bool isEnd;
};

void PrintTo(const Telling &row, std::ostream *out)
{
    *out << row.behaviour;
}

class DetachedFollowingOf : public DetachedFollowing, public testing::WithParamInterface<Telling>
{};

TEST_P(DetachedFollowingOf, TellsOfTheEndOrOfTrouble)
{
    ASSERT_EQ(m_desk.fault(), QString());
    const QString queue = QLatin1String(GetParam().queue);
    const int id = print(queue);
    startFollowing(server().address(), {queue, id, 1}, 20s);
    ASSERT_TRUE(tells(1));
    const NotificationDesk::Shown told = m_desk.shown().constLast();
    EXPECT_EQ(told.title, u"Job %1 on %2"_s.arg(QString::number(id), queue));
    EXPECT_EQ(told.text, QString::fromUtf8(GetParam().text).arg(id));
    EXPECT_EQ(told.urgency, GetParam().urgency);
    if (!GetParam().isEnd) {
        ASSERT_TRUE(server().command(u"cancel"_s, {QString::number(id)}));
        ASSERT_TRUE(tells(2));
        EXPECT_EQ(m_desk.shown().constLast().text,
                  u"Job %1 on %2 was cancelled."_s.arg(QString::number(id), queue));
        EXPECT_EQ(m_desk.shown().constLast().replaced, 1U);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, DetachedFollowingOf,
    testing::Values(
        Telling{"AJobThatIsPrinted", "finish", "Job %1 on finish is printed.", kNormal, true},
        Telling{"AJobThatIsCancelled", "cancel", "Job %1 on cancel was cancelled.", kCritical,
                true},
        Telling{"APrinterThatNeedsSomebody", "empty",
                "Job %1 on empty: the printer needs somebody: The multi-purpose tray is empty.",
                kCritical, false},
        Telling{"AJobThatIsHeld", "hold", "Job %1 on hold is held until somebody releases it.",
                kCritical, false}),
    CaseName());

TEST_F(DetachedFollowing, TakesTheTroubleAwayWhenItIsOver)
{
    const int id = print(u"empty"_s);
    startFollowing(server().address(), {u"empty"_s, id, 1}, 20s);
    ASSERT_TRUE(tells(1));
    continueDevices();
    ASSERT_TRUE(tells(2));
    EXPECT_EQ(m_desk.shown().constLast().text, u"Job %1 on empty is printed."_s.arg(id));
}

/// Runs the command to its end.
ProgramRun followFor(const QString &server, const QString &queue, int id, int seconds)
{
    return runProgram({QLatin1String(kFollowOption), server, queue, QString::number(id), u"1"_s,
                       QString::number(seconds)});
}

TEST_F(DetachedFollowing, EndsWhenItsTimeIsOver)
{
    const ProgramRun run = followFor(server().address(), u"empty"_s, print(u"empty"_s), 1);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output + run.errors, QString());
}

TEST_F(DeviceFixture, IsNotFollowedWhereNobodyShowsNotifications)
{
    const NotificationDesk nobody(NotificationDesk::Kind::None);
    const ProgramRun run = followFor(server().address(), u"empty"_s, print(u"empty"_s), 3600);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output + run.errors, QString());
}

TEST_F(DeviceFixture, IsToldInPlainTextWhereTheDesktopTakesRichText)
{
    NotificationDesk desk(NotificationDesk::Kind::Markup);
    ASSERT_TRUE(server().lpadmin({u"-p"_s, u"a<b>&"_s, u"-E"_s, u"-v"_s, u"probe:/finish"_s}));
    startFollowing(server().address(), {u"a<b>&"_s, print(u"a<b>&"_s), 1}, 20s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !desk.shown().isEmpty(); }, kLongestTelling));
    EXPECT_TRUE(desk.shown()[0].text.endsWith(u"on a&lt;b&gt;&amp; is printed."))
        << desk.shown()[0].text.toStdString();
}

// --- Who starts it -------------------------------------------------------------------------------

JobWindow *jobWindow()
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (auto *found = qobject_cast<JobWindow *>(window))
            return found;
    return nullptr;
}

TEST_F(DetachedFollowing, BeginsWhenTheWindowIsClosed)
{
    SentJob sent;
    const int id = print(u"empty"_s);
    sent.take(server().address(), {u"empty"_s, id, 1});
    ASSERT_NE(jobWindow(), nullptr);
    jobWindow()->close();
    EXPECT_TRUE(tells(1));
    continueDevices();
    EXPECT_TRUE(tells(2));
    EXPECT_EQ(server().waitForJob(u"empty"_s, id), IPP_JSTATE_COMPLETED);
}

TEST_F(DetachedFollowing, BeginsAtOnceForWhoWantsNoWindow)
{
    setFollowsJobs(false);
    SentJob sent;
    sent.take(server().address(), {u"finish"_s, print(u"finish"_s), 1});
    setFollowsJobs(true);
    EXPECT_EQ(jobWindow(), nullptr);
    EXPECT_TRUE(tells(1));
}

TEST_F(DetachedFollowing, DoesNotBeginForAJobAtItsEnd)
{
    SentJob sent;
    sent.take(server().address(), {u"finish"_s, print(u"finish"_s), 1});
    ASSERT_TRUE(QTest::qWaitFor([] { return jobWindow()->isAtEnd(); }, kLongestTelling));
    jobWindow()->close();
    // What would be told is told to the next job's end.
    startFollowing(server().address(), {u"cancel"_s, print(u"cancel"_s), 1}, 20s);
    ASSERT_TRUE(tells(1));
    EXPECT_TRUE(m_desk.shown()[0].text.endsWith(u"was cancelled."));
}

TEST_F(DetachedFollowing, DoesNotBeginForASignal)
{
    SentJob sent;
    sent.take(server().address(), {u"empty"_s, print(u"empty"_s), 1});
    sent.end();
    EXPECT_FALSE(jobWindow()->isVisible());
    startFollowing(server().address(), {u"cancel"_s, print(u"cancel"_s), 1}, 20s);
    ASSERT_TRUE(tells(1));
    EXPECT_TRUE(m_desk.shown()[0].text.endsWith(u"was cancelled."));
}

} // namespace
