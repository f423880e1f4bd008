#include "tests/support/EventLoopWatch.h"

#include <QtTest/QTest>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr auto kLimit = 200ms;
constexpr auto kFarBeyond = 800ms;

void waitFarTooLong()
{
    std::thread([] { std::this_thread::sleep_for(kFarBeyond); }).join();
}

void computeForLong()
{
    const auto end = std::chrono::steady_clock::now() + kFarBeyond;
    while (std::chrono::steady_clock::now() < end) {
    }
}

TEST(EventLoopWatch, FailsTheTestWhereAnEventWaitsForAnotherThread)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const EventLoopWatch watch(kLimit);
            QTimer::singleShot(0, waitFarTooLong);
            QTest::qWait(100);
        },
        "an event has waited");
}

TEST(EventLoopWatch, FailsTheTestWhereTheLoopDoesNotRunAgain)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const EventLoopWatch watch(kLimit);
            waitFarTooLong();
        },
        "an event has waited");
}

TEST(EventLoopWatch, TakesNoEventThatComputesForOneThatWaits)
{
    const EventLoopWatch watch(kLimit);
    QTimer::singleShot(0, computeForLong);
    QTest::qWait(100);
}

TEST(EventLoopWatch, TakesALoopWithNothingToDoForNoneThatIsAway)
{
    const EventLoopWatch watch(kLimit);
    QTest::qWait(static_cast<int>(kFarBeyond.count()));
}

} // namespace
