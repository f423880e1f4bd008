#pragma once

#include <map>
#include <string>
#include <vector>

/// A program to run.
struct Command
{
    std::vector<std::string> words;                      ///< its path and its arguments
    std::map<std::string, std::string> environment = {}; ///< beside what this process has
    int exitStatus = 0;                                  ///< what it is to end with
};

/// What one run of a program has cost.
struct ProcessCost
{
    double cpuMilliseconds = 0; ///< user and system time of the process
    long peakKilobytes = 0;     ///< largest resident set
    int exitStatus = -1;
};

/// Runs the program with its output thrown away, and waits for it. Exit status 127 when it cannot
/// be started.
ProcessCost runProcess(const Command &command);

/// Runs all of them, so many at once, and waits for them. Ends this program when one of them fails.
std::vector<ProcessCost> runProcesses(const std::vector<Command> &commands, int atOnce);

double median(std::vector<double> values);

/// Two commands and the medians of their cost, run in turn so that both see the same machine. Ends
/// this program when one of them fails.
struct Comparison
{
    double cpuRatio = 0;
    double cpuMilliseconds[2] = {0, 0};
    double peakKilobytes[2] = {0, 0};
};

Comparison compareProcesses(const Command &measured, const Command &reference, int runs);

/// Prints one row: what was compared, both costs, the ratio and how far it may reach.
void printRow(const char *what, const Comparison &comparison, double reach);
