#include "dialog/work/BackgroundCall.h"

#include <gtest/gtest.h>

#include <atomic>

using namespace std::chrono_literals;

namespace {

std::atomic<int> g_ended = 0;

/// What a thread leaves behind at its very end.
struct Remains
{
    bool isUsed = false;
    ~Remains() { ++g_ended; }
};

thread_local Remains t_remains;

TEST(BackgroundThreads, HaveEndedWhollyWhenTheyWereWaitedFor)
{
    constexpr int kRounds = 200;
    for (int round = 1; round <= kRounds; ++round) {
        QObject owner;
        new BackgroundCall(&owner, kServerTimeout,
                           [](CallGuard &) -> BackgroundCall::Outcome {
                               t_remains.isUsed = true;
                               return {};
                           },
                           {});
        ASSERT_TRUE(waitForBackgroundThreads(20s));
        ASSERT_EQ(g_ended, round);
    }
}

TEST(BackgroundThreads, ThatAreStuckAreLeft)
{
    std::atomic<bool> isReleased = false;
    {
        QObject owner;
        new BackgroundCall(&owner, kServerTimeout,
                           [&](CallGuard &) -> BackgroundCall::Outcome {
                               isReleased.wait(false);
                               return {};
                           },
                           {});
    }
    EXPECT_FALSE(waitForBackgroundThreads(10ms));
    isReleased = true;
    isReleased.notify_all();
    EXPECT_TRUE(waitForBackgroundThreads(20s));
}

} // namespace
