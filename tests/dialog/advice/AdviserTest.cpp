#include "dialog/advice/Adviser.h"

#include "dialog/advice/Advising.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/PanelPicks.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QProcess>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 60'000; // ms

/// A session that an adviser follows from its beginning, its panels shown.
class AdviserOnASession : public testing::Test
{
protected:
    AdviserOnASession()
    {
        SessionOptions options;
        options.ppdPath = samplePPD(u"velkaro-px-t900"_s);
        options.bundlePath = builtBundle();
        m_session = *HostSession::open(options);
        m_adviser.follow(*m_session);
        m_session->start();
        for (const HostPanel &panel : m_session->panels())
            m_session->show(panel);
    }

    void ask(const PPDMark &wanted)
    {
        m_adviser.ask(wanted, [this](const std::optional<Advice> &advice) { m_answers += advice; });
    }

    std::optional<Advice> answerTo(const PPDMark &wanted)
    {
        m_answers.clear();
        ask(wanted);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !m_answers.isEmpty(); }, kPatience));
        return m_answers.value(0);
    }

    Adviser m_adviser; // follows the session to its end
    std::unique_ptr<HostSession> m_session;
    QList<std::optional<Advice>> m_answers;
};

const PPDMark kPhoto{u"VKResolution"_s, u"Photo"_s};

TEST_F(AdviserOnASession, AnswersAsTheSessionItselfWould)
{
    EXPECT_EQ(answerTo(kPhoto), adviceOn(*m_session, kPhoto));
}

TEST_F(AdviserOnASession, FollowsWhatHappensInTheSession)
{
    EXPECT_EQ(answerTo(kPhoto)->outcome, Advice::Outcome::Possible);
    pickInPanels(*m_session, u"VKMediaType"_s, u"Glossy"_s);
    EXPECT_EQ(answerTo(kPhoto)->outcome, Advice::Outcome::Available);
    m_session->markElsewhere(u"Duplex"_s, u"DuplexTumble"_s);
    const std::optional<Advice> advice = answerTo({u"VKMediaType"_s, u"Glossy"_s});
    ASSERT_TRUE(advice);
    EXPECT_EQ(advice->remedies.value(0).changes,
              (QList<SettingChange>{{u"Duplex"_s, u"DuplexTumble"_s, u"None"_s}}));
}

TEST_F(AdviserOnASession, AnswersTheLastQuestionAlone)
{
    ask(kPhoto);
    ask({u"VKResolution"_s, u"High"_s});
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_answers.isEmpty(); }, kPatience));
    EXPECT_EQ(answerTo({u"VKResolution"_s, u"Best"_s})->choice, u"Best"_s);
    EXPECT_EQ(m_answers.size(), 1);
}

TEST_F(AdviserOnASession, IsInterruptedByTheNextEvent)
{
    ask(kPhoto);
    EXPECT_TRUE(m_adviser.isAsked());
    m_session->markElsewhere(u"Duplex"_s, u"DuplexTumble"_s);
    EXPECT_FALSE(m_adviser.isAsked());
    EXPECT_EQ(answerTo({u"VKMediaType"_s, u"Glossy"_s})->remedies.size(), 1);
    EXPECT_EQ(m_answers.size(), 1);
}

TEST_F(AdviserOnASession, CannotExplainWhenItsProcessDies)
{
    ASSERT_TRUE(answerTo(kPhoto));
    ask(kPhoto);
    auto *process = m_adviser.findChild<QProcess *>();
    ASSERT_TRUE(process);
    process->kill();
    m_answers.clear();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_answers.isEmpty(); }, kPatience));
    EXPECT_EQ(m_answers, QList{std::optional<Advice>()});
    EXPECT_TRUE(answerTo(kPhoto)); // by another process
}

TEST_F(AdviserOnASession, CanBeAskedAgainWhenThereWasNoRoomForItsProcess)
{
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const int next = dup(STDIN_FILENO);
    ASSERT_EQ(close(next), 0);
    const rlimit few{static_cast<rlim_t>(next) + 2, usual.rlim_max}; // a process takes more pipes
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    ask(kPhoto);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_answers.isEmpty(); }, kPatience));
    EXPECT_EQ(m_answers, QList{std::optional<Advice>()});
    EXPECT_TRUE(answerTo(kPhoto));
}

TEST_F(AdviserOnASession, FollowsAnotherSessionFromItsBeginning)
{
    ASSERT_TRUE(answerTo(kPhoto));
    m_session.reset();
    SessionOptions options;
    options.ppdPath = samplePPD(u"velkaro-mx-j710dw"_s);
    options.bundlePath = builtBundle();
    m_session = *HostSession::open(options);
    m_adviser.follow(*m_session);
    m_session->start();
    const std::optional<Advice> advice = answerTo(kPhoto);
    EXPECT_EQ(advice, adviceOn(*m_session, kPhoto));
}

} // namespace
