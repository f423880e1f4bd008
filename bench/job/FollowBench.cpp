// 50 jobs of one queue, followed to their ends while a printer takes a third of a second for each.
#include "bench/support/Timing.h"
#include "dialog/cups/JobSubmission.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/printing/GroupFollower.h"
#include "tests/built/BuiltFiles.h"
#include "tests/printserver/PrintServer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int kJobs = 50;
constexpr double kReachOfCpu = 0.01;   // of a core
constexpr double kReachOfRequests = 1; // a second
constexpr int kFirstLook = 2;          // requests that come at once

constexpr auto kDevice = R"(#!/bin/sh
[ $# -eq 0 ] && { echo 'direct slow "Slow" "Slow"'; exit 0; }
cat ${6:+"$6"} > /dev/null
sleep 0.3
)";

double processSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// The numbers of jobs that wait for their queue to be started.
QList<int> submitJobs(const PrintServer &server)
{
    JobRequest request;
    request.server = server.address();
    request.queue = u"slow"_s;
    request.title = u"bench"_s;
    request.documents = *openDocuments({samplePPD(u"velkaro-px-t900"_s)}); // any text
    CallGuard guard;
    JobSubmission submission(request.server, guard);
    QList<int> ids;
    for (int job = 0; job < kJobs; ++job) {
        JobProgress progress;
        if (const auto receipt = submission.submit(request, progress))
            ids += receipt->id;
    }
    return ids;
}

/// Of those that the server was sent to follow jobs.
qsizetype countRequests(const PrintServer &server)
{
    qsizetype count = 0;
    for (const char *operation : {"Get-Jobs", "Get-Job-Attributes", "Get-Printer-Attributes",
                                  "Create-Job-Subscriptions", "Get-Notifications"})
        count += server.countOf(operation);
    return count;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    PrintServer server;
    if (!server.fault().isNull() || !server.addBackend(u"slow"_s, kDevice) ||
        !server.lpadmin({u"-p"_s, u"slow"_s, u"-E"_s, u"-v"_s, u"slow:/"_s}) ||
        !server.command(u"cupsdisable"_s, {u"slow"_s}))
        return 1;
    const QList<int> ids = submitJobs(server);
    if (ids.size() != kJobs || !server.command(u"cupsenable"_s, {u"slow"_s}))
        return 1;
    int printed = 0;
    GroupFollower follower({server.address(), u"slow"_s, ids},
                           {[&](int, const JobStatus &status) {
                                printed += status.phase == JobPhase::Finished ? 1 : 0;
                                if (isEnd(status.phase) && follower.jobs().ids.isEmpty())
                                    QCoreApplication::quit();
                            },
                            [](const QString &) {}, [](int, const QString &) {}});
    const qsizetype requests = countRequests(server);
    const double cpu = processSeconds();
    QElapsedTimer clock;
    clock.start();
    follower.start();
    QCoreApplication::exec();
    const double seconds = static_cast<double>(clock.elapsed()) / 1e3;
    printHead("Following 50 jobs to their ends", "used", "seconds");
    const double used = processSeconds() - cpu;
    printRatio("CPU time, in parts of a core", used * 1e3, seconds * 1e3, kReachOfCpu, "ms");
    printRatio("requests after the first look",
               static_cast<double>(countRequests(server) - requests - kFirstLook), seconds,
               kReachOfRequests, "");
    std::printf("%.2f %% of a core\n", used / seconds * 100);
    std::printf("printed: %d of %d\n", printed, kJobs);
    return printed == kJobs ? 0 : 1;
}
