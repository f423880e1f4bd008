#pragma once

#include <string>
#include <vector>

/// What one run of a program has cost.
struct ProcessCost
{
    double cpuMilliseconds = 0; ///< user and system time of the process
    long peakKilobytes = 0;     ///< largest resident set
    int exitStatus = -1;
};

/// Runs the program with its output thrown away, and waits for it. Exit status 127 when it cannot
/// be started.
ProcessCost runProcess(const std::vector<std::string> &command);

double median(std::vector<double> values);

/// Two commands and the medians of their cost, run in turn so that both see the same machine.
struct Comparison
{
    double cpuRatio = 0;
    double cpuMilliseconds[2] = {0, 0};
    double peakKilobytes[2] = {0, 0};
};

Comparison compareProcesses(const std::vector<std::string> &measured,
                            const std::vector<std::string> &reference, int runs);

/// Prints one row: what was compared, both costs, the ratio and how far it may reach.
void printRow(const char *what, const Comparison &comparison, double reach);
