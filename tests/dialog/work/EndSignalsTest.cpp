#include "dialog/work/EndSignals.h"

#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

volatile std::sig_atomic_t g_formerCalls = 0;

void formerHandler(int)
{
    g_formerCalls = g_formerCalls + 1;
}

class EndSignal : public testing::TestWithParam<int>
{
protected:
    EndSignal() { std::signal(GetParam(), formerHandler); }
    ~EndSignal() override { std::signal(GetParam(), SIG_DFL); }
};

TEST_P(EndSignal, IsAnEventOfTheLoop)
{
    int calls = 0;
    g_formerCalls = 0;
    {
        const EndSignals signals([&] { ++calls; });
        EXPECT_FALSE(EndSignals::haveCome());
        std::raise(GetParam());
        EXPECT_TRUE(EndSignals::haveCome());
        EXPECT_EQ(calls, 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 0; }));
        QCoreApplication::processEvents();
        EXPECT_EQ(calls, 1);
    }
    EXPECT_EQ(g_formerCalls, 0);
    std::raise(GetParam());
    EXPECT_EQ(g_formerCalls, 1) << "the former handler is back";
}

TEST_P(EndSignal, ThatHasComeIsToldToALaterAction)
{
    EndSignals signals;
    std::raise(GetParam());
    QCoreApplication::processEvents();
    int calls = 0;
    signals.setAction([&] { ++calls; });
    EXPECT_EQ(calls, 1);
}

TEST_P(EndSignal, ThatWasIgnoredStaysSo)
{
    std::signal(GetParam(), SIG_IGN);
    const EndSignals signals;
    std::raise(GetParam());
    EXPECT_FALSE(EndSignals::haveCome());
}

TEST_P(EndSignal, WhenAllIsDoneChangesNothing)
{
    ignoreEndSignals();
    g_formerCalls = 0;
    std::raise(GetParam());
    EXPECT_EQ(g_formerCalls, 0);
}

TEST_P(EndSignal, ForTheSecondTimeEndsTheProgram)
{
    EXPECT_EXIT(
        {
            const EndSignals signals;
            std::raise(SIGTERM);
            std::raise(GetParam());
        },
        testing::KilledBySignal(GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(All, EndSignal, testing::Values(SIGHUP, SIGINT, SIGTERM));

} // namespace
