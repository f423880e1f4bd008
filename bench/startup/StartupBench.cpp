// What whole runs of the program cost, each against the least that a program of its kind costs.
#include "bench/support/ProcessCost.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

constexpr int kRuns = 41;

std::string writeScript(const std::string &folder)
{
    std::string path = folder + "/startup.jsonl";
    std::ofstream script(path);
    script << R"({"do": "open", "ppd": ")" << SAMPLE_PPD << "\"}\n"
           << R"({"do": "show", "panel": "print"})" << '\n'
           << R"({"do": "show", "panel": "color"})" << '\n';
    return path;
}

} // namespace

int main()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const std::string program = PROGRAM;
    const std::string bench = BENCH_FOLDER;
    const std::string script = writeScript(bench);
    const Command core{{bench + "/empty-core-program"}};
    const Command widgets{{bench + "/empty-widgets-program"}};

    std::printf("CPU time of whole processes, median of %d runs in turn\n", kRuns);
    printRow("--help against an empty core program",
             compareProcesses({{program, "--help"}}, core, kRuns), 1.5);
    printRow("--version against an empty core program",
             compareProcesses({{program, "--version"}}, core, kRuns), 1.5);
    printRow("replay of both panels against an empty window",
             compareProcesses({{program, "--replay", script}}, widgets, kRuns), 1.7);
    return 0;
}
