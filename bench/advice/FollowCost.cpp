#include "bench/advice/FollowCost.h"

#include "bench/support/Timing.h"
#include "dialog/advice/Adviser.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/work/ProcessCopy.h"
#include "tests/built/BuiltFiles.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRuns = 7;
constexpr int kPicks = 1000;
constexpr double kReachOfPick = 1.10;
constexpr double kReachOfMemory = 1.02;
constexpr std::chrono::seconds kLongestRun{60}; // of CPU time

struct Cost
{
    double microseconds = HUGE_VAL; ///< of CPU time, a pick
    double megabytes = HUGE_VAL;    ///< resident after all of them

    void improve(const Cost &other)
    {
        microseconds = std::min(microseconds, other.microseconds);
        megabytes = std::min(megabytes, other.megabytes);
    }
};

double threadMicroseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

/// What the process has for itself: pages of files are shared with everybody.
double ownMegabytes()
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith("RssAnon:"))
            return line.mid(8).trimmed().chopped(3).toDouble() / 1e3;
    return 0;
}

void pickAndTell(bool isFollowed, const ProcessCopy::Tell &tell)
{
    SessionOptions options;
    options.ppdPath = samplePPD(u"velkaro-px-t900"_s);
    options.bundlePath = builtBundle();
    const auto adviser = isFollowed ? std::make_unique<Adviser>() : nullptr;
    const std::unique_ptr<HostSession> session = *HostSession::open(options);
    if (adviser)
        adviser->follow(*session);
    session->start();
    prepareControls(*session);
    const double before = threadMicroseconds();
    for (int count = 0; count < kPicks; ++count)
        pickInPanels(*session, u"VKMediaType"_s, count % 2 == 0 ? u"Glossy"_s : u"Plain"_s);
    tell(QByteArray::number((threadMicroseconds() - before) / kPicks));
    tell(QByteArray::number(ownMegabytes()));
}

Cost runCost(bool isFollowed)
{
    ProcessCopy copy(kLongestRun,
                     [&](const ProcessCopy::Tell &tell) { pickAndTell(isFollowed, tell); });
    const double microseconds = copy.nextLine().value_or("inf").toDouble();
    return {microseconds, copy.nextLine().value_or("inf").toDouble()};
}

} // namespace

void printFollowCost()
{
    Cost alone;
    Cost followed;
    for (int count = 0; count < kRuns; ++count) {
        alone.improve(runCost(false));
        followed.improve(runCost(true));
    }
    printHead("A session that an adviser follows", "followed", "alone");
    printRatio("a pick", followed.microseconds, alone.microseconds, kReachOfPick);
    printRatio("memory after 1000 picks", followed.megabytes, alone.megabytes, kReachOfMemory,
               "MB");
}
