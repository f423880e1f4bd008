#include "bench/ppd/LimitRows.h"

#include "bench/support/EndWith.h"
#include "bench/support/Timing.h"
#include "dialog/host/HostSession.h"
#include "tests/built/BuiltFiles.h"
#include "tests/ppdlimits/PPDAtLimit.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr int kTries = 3;
constexpr double kMostMilliseconds = 500;

double processorMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double costOfOpening(const SessionOptions &options)
{
    const double before = processorMilliseconds();
    const auto opened = HostSession::open(options);
    const double cost = processorMilliseconds() - before;
    if (!opened)
        endWith(opened.sentence());
    return cost;
}

void printRow(const char *what, const QByteArray &text, const QTemporaryDir &folder)
{
    SessionOptions options;
    options.ppdPath = folder.filePath(QStringLiteral("limit.ppd"));
    options.bundlePath = builtBundle();
    QFile file(options.ppdPath);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        endWith(file.errorString());
    double best = costOfOpening(options);
    for (int count = 1; count < kTries; ++count)
        best = std::min(best, costOfOpening(options));
    printRatio(what, best, kMostMilliseconds, 1, "ms");
}

} // namespace

void printLimitRows()
{
    // The texts of a PPD in the user's language are looked up one by one.
    qputenv("LANG", "ja_JP.UTF-8");
    const QTemporaryDir folder;
    printHead("Opening a PPD at a limit against half a second", "CPU", "allowed");
    for (const PPDLimit &limit : ppdLimits())
        printRow(limit.name, ppdWith(limit, limit.most), folder);
}
