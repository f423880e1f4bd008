// 200 jobs of 200 processes against one print server, 8 at a time: velkaro-print without its dialog
// against lp with the same options. No job may be lost, nor be there twice.
#include "bench/support/ProcessCost.h"
#include "bench/support/Timing.h"
#include "tests/built/BuiltFiles.h"
#include "tests/printserver/PrintServer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kJobs = 200;
constexpr int kAtOnce = 8;
constexpr double kReachOfRun = 6;    // a dialog's rules and checks against none
constexpr double kReachOfServer = 3; // the queue is looked at, and the job is read back

/// What the server's process has used of the CPU so far, in milliseconds.
double serverMilliseconds(const PrintServer &server)
{
    QFile file(u"/proc/%1/stat"_s.arg(server.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray stat = file.readAll();
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    const double ticks = fields.value(11).toDouble() + fields.value(12).toDouble();
    return ticks * 1000 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// What a fleet of one program has cost, in milliseconds a job.
struct FleetCost
{
    double process = 0;
    double server = 0;
    double wall = 0;
    int lost = 0; ///< jobs that are not on the queue, or are there twice
};

std::string titleOf(const std::string &fleet, int job)
{
    return fleet + "-" + std::to_string(job);
}

/// 50 kB of text.
std::string documentOf(const PrintServer &server)
{
    QFile file(server.folder() + u"/document.txt"_s);
    if (!file.exists() && file.open(QIODevice::WriteOnly))
        file.write(QByteArray("A line of a document.\n").repeated(2300));
    return file.fileName().toStdString();
}

int countLost(PrintServer &server, const std::string &fleet)
{
    QStringList titles;
    for (const int id : server.jobs(u"photo"_s))
        titles += server.jobAttributes(u"photo"_s, id).value(u"job-name"_s);
    int lost = 0;
    for (int job = 0; job < kJobs; ++job)
        lost += titles.count(QString::fromStdString(titleOf(fleet, job))) == 1 ? 0 : 1;
    return lost;
}

FleetCost runFleet(PrintServer &server, const std::string &fleet,
                   const std::vector<std::string> &program)
{
    std::vector<Command> commands;
    for (int job = 0; job < kJobs; ++job) {
        Command command{program};
        for (const std::string &word :
             {std::string("-h"), server.address().toStdString(), std::string("-d"),
              std::string("photo"), std::string("-t"), titleOf(fleet, job), std::string("-o"),
              std::string("VKMediaType=Glossy"), std::string("-o"),
              std::string("VKResolution=Photo"), std::string("-n"), std::string("2"),
              documentOf(server)})
            command.words.push_back(word);
        commands.push_back(command);
    }
    const double before = serverMilliseconds(server);
    QElapsedTimer clock;
    clock.start();
    FleetCost cost;
    for (const ProcessCost &one : runProcesses(commands, kAtOnce))
        cost.process += one.cpuMilliseconds / kJobs;
    cost.wall = static_cast<double>(clock.elapsed()) / kJobs;
    cost.server = (serverMilliseconds(server) - before) / kJobs;
    cost.lost = countLost(server, fleet);
    return cost;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    PrintServer server;
    if (!server.fault().isNull() || !server.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)) ||
        !server.command(u"cupsdisable"_s, {u"photo"_s}))
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const FleetCost peers = runFleet(server, "lp", {"/usr/bin/lp"});
    const FleetCost ours = runFleet(server, "ours", {BENCH_PROGRAM, "--no-dialog"});
    printHead("200 jobs of as many processes, 8 at a time", "ours", "lp");
    printRatio("CPU time of a process", ours.process, peers.process, kReachOfRun, "ms");
    printRatio("CPU time of the server, a job", ours.server, peers.server, kReachOfServer, "ms");
    printRatio("by the clock, a job", ours.wall, peers.wall, kReachOfRun, "ms");
    std::printf("jobs lost: %d of %d; by lp: %d\n", ours.lost, kJobs, peers.lost);
    return ours.lost == 0 ? 0 : 1;
}
