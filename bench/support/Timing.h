#pragma once

#include <functional>
#include <vector>

/// What is measured against something else, and what came out.
struct Contender
{
    std::function<void()> step;           ///< what is timed
    std::function<void()> before = [] {}; ///< what goes before each step, untimed
    double microseconds = 0;
};

/// Measures all of them in turn, so that they see the same machine: `rounds` rounds, in each of
/// which every contender is timed `steps` times. A contender's figure is the lowest median of a
/// round: the median leaves out the strays within a round, the lowest one the rounds in which
/// somebody else had the machine.
void compare(const std::vector<Contender *> &contenders, int rounds, int steps);

/// Prints one row: what was compared, both figures, their ratio, and how far it may reach. The
/// answer says whether it is within reach.
bool printRatio(const char *what, double measured, double reference, double reach,
                const char *unit = "us");

/// The head of such rows.
void printHead(const char *title, const char *measured, const char *reference);
