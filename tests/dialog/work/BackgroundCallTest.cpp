#include "dialog/work/BackgroundCall.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

using namespace std::chrono_literals;

namespace {

TEST(BackgroundCallTest, GivesUpWorkThatDoesNotStop)
{
    std::atomic<bool> release = false;
    bool gaveUp = false;
    bool arrived = false;
    QObject owner;
    new BackgroundCall(
        &owner, 200ms,
        [&](CallGuard &) -> BackgroundCall::Outcome {
            while (!release) // stands for a name look-up, which nothing can interrupt
                std::this_thread::yield();
            return [&] { arrived = true; };
        },
        [&] { gaveUp = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return gaveUp; }));
    release = true;
    EXPECT_TRUE(waitForBackgroundThreads(5s));
    QCoreApplication::processEvents();
    EXPECT_FALSE(arrived);
}

TEST(BackgroundCallTest, WaitsForWorkThatNobodyGivesUp)
{
    bool arrived = false;
    QObject owner;
    new BackgroundCall(
        &owner, 10ms,
        [&](CallGuard &guard) -> BackgroundCall::Outcome {
            while (guard.silence() < 500ms) // several looks of the call's own
                std::this_thread::yield();
            return [&] { arrived = true; };
        },
        nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return arrived; }));
}

TEST(BackgroundCallTest, DestroyedBeforeItsEndSaysNothing)
{
    bool arrived = false;
    {
        QObject owner;
        new BackgroundCall(
            &owner, 5s,
            [&](CallGuard &guard) -> BackgroundCall::Outcome {
                while (guard.mayWait())
                    std::this_thread::yield();
                return [&] { arrived = true; };
            },
            [&] { arrived = true; });
    }
    EXPECT_TRUE(waitForBackgroundThreads(4s));
    QCoreApplication::processEvents();
    EXPECT_FALSE(arrived);
}

} // namespace
