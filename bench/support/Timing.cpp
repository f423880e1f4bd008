#include "bench/support/Timing.h"

#include "bench/support/ProcessCost.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>

namespace {

double timeStep(const Contender &contender)
{
    contender.before();
    const auto start = std::chrono::steady_clock::now();
    contender.step();
    const std::chrono::duration<double, std::micro> taken =
        std::chrono::steady_clock::now() - start;
    return taken.count();
}

double medianOfRound(const Contender &contender, int steps)
{
    std::vector<double> times(static_cast<std::size_t>(steps));
    std::ranges::generate(times, [&contender] { return timeStep(contender); });
    return median(times);
}

} // namespace

void compare(const std::vector<Contender *> &contenders, int rounds, int steps)
{
    for (Contender *contender : contenders)
        contender->microseconds = std::numeric_limits<double>::infinity();
    for (int round = 0; round < rounds; ++round)
        for (Contender *contender : contenders)
            contender->microseconds =
                std::min(contender->microseconds, medianOfRound(*contender, steps));
}

void printHead(const char *title, const char *measured, const char *reference)
{
    std::printf("\n%s\n  %-42s %14s %14s %8s\n", title, "", measured, reference, "ratio");
}

bool printRatio(const char *what, double measured, double reference, double reach, const char *unit)
{
    const double ratio = measured / reference;
    const bool met = ratio <= reach;
    std::printf("  %-42s %11.1f %s %11.1f %s %8.2f (at most %.2f)%s\n", what, measured, unit,
                reference, unit, ratio, reach, met ? "" : " MISSED");
    return met;
}
