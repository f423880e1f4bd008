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

[[noreturn]] void becomeProgram(const std::vector<std::string> &command)
{
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
}

} // namespace

ProcessCost runProcess(const std::vector<std::string> &command)
{
    const pid_t child = fork();
    if (child == 0)
        becomeProgram(command);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return {milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), usage.ru_maxrss,
            WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Comparison compareProcesses(const std::vector<std::string> &measured,
                            const std::vector<std::string> &reference, int runs)
{
    std::vector<double> cpu[2];
    std::vector<double> peak[2];
    for (int run = 0; run < runs; ++run) {
        const ProcessCost costs[2] = {runProcess(measured), runProcess(reference)};
        for (int side = 0; side < 2; ++side) {
            if (costs[side].exitStatus != 0) {
                std::fprintf(stderr, "%s ended with status %d\n",
                             (side == 0 ? measured : reference)[0].c_str(), costs[side].exitStatus);
                std::exit(1);
            }
            cpu[side].push_back(costs[side].cpuMilliseconds);
            peak[side].push_back(static_cast<double>(costs[side].peakKilobytes));
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
    std::printf("%-44s %8.2f ms %8.2f ms %6.2f (at most %.1f) %8.0f KB %8.0f KB\n", what,
                comparison.cpuMilliseconds[0], comparison.cpuMilliseconds[1], comparison.cpuRatio,
                reach, comparison.peakKilobytes[0], comparison.peakKilobytes[1]);
}
