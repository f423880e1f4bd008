#include "bench/support/ProcessCost.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

double milliseconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) * 1000.0 + static_cast<double>(time.tv_usec) / 1000.0;
}

[[noreturn]] void becomeProgram(const Command &command)
{
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    for (const auto &[name, value] : command.environment)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<char *> arguments;
    for (const std::string &word : command.words)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
}

void endUnless(int exitStatus, const Command &command)
{
    if (exitStatus == command.exitStatus)
        return;
    std::fprintf(stderr, "%s ended with status %d\n", command.words[0].c_str(), exitStatus);
    std::exit(1);
}

ProcessCost runOrEnd(const Command &command)
{
    const ProcessCost cost = runProcess(command);
    endUnless(cost.exitStatus, command);
    return cost;
}

pid_t start(const Command &command)
{
    const pid_t child = fork();
    if (child == 0)
        becomeProgram(command);
    return child;
}

/// Waits for the process, or for any one of those that were started (-1). Its id.
pid_t waitFor(pid_t process, ProcessCost &cost)
{
    int status = 0;
    rusage usage{};
    const pid_t ended = wait4(process, &status, 0, &usage);
    cost = {milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), usage.ru_maxrss,
            WIFEXITED(status) ? WEXITSTATUS(status) : -1};
    return ended;
}

} // namespace

ProcessCost runProcess(const Command &command)
{
    ProcessCost cost;
    waitFor(start(command), cost);
    return cost;
}

std::vector<ProcessCost> runProcesses(const std::vector<Command> &commands, int atOnce)
{
    std::vector<ProcessCost> costs(commands.size());
    std::map<pid_t, std::size_t> running;
    std::size_t next = 0;
    while (next < commands.size() || !running.empty()) {
        if (next < commands.size() && static_cast<int>(running.size()) < atOnce) {
            running.emplace(start(commands[next]), next);
            ++next;
            continue;
        }
        ProcessCost cost;
        const auto ended = running.find(waitFor(-1, cost));
        if (ended == running.end()) // somebody else's: the print server is a child, too
            continue;
        costs[ended->second] = cost;
        endUnless(cost.exitStatus, commands[ended->second]);
        running.erase(ended);
    }
    return costs;
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Comparison compareProcesses(const Command &measured, const Command &reference, int runs)
{
    const Command *commands[2] = {&measured, &reference};
    std::vector<double> cpu[2];
    std::vector<double> peak[2];
    for (int run = 0; run < runs; ++run) {
        for (int side = 0; side < 2; ++side) {
            const ProcessCost cost = runOrEnd(*commands[side]);
            cpu[side].push_back(cost.cpuMilliseconds);
            peak[side].push_back(static_cast<double>(cost.peakKilobytes));
        }
    }
    Comparison result;
    for (int side = 0; side < 2; ++side) {
        result.cpuMilliseconds[side] = median(cpu[side]);
        result.peakKilobytes[side] = median(peak[side]);
    }
    result.cpuRatio = result.cpuMilliseconds[0] / result.cpuMilliseconds[1];
    return result;
}

void printRow(const char *what, const Comparison &comparison, double reach)
{
    std::printf("%-44s %8.2f ms %8.2f ms %6.2f (at most %.1f)%s %8.0f KB %8.0f KB\n", what,
                comparison.cpuMilliseconds[0], comparison.cpuMilliseconds[1], comparison.cpuRatio,
                reach, comparison.cpuRatio <= reach ? "" : " MISSED", comparison.peakKilobytes[0],
                comparison.peakKilobytes[1]);
}
