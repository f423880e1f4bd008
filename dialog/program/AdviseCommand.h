#pragma once

/// How a dialog starts the program to find out, beside itself, why a choice is not to be had: a
/// replay of standard input that prints the lines of its questions alone, and lets a question be as
/// soon as another line arrives. For Adviser, not for people.
inline constexpr auto kAdviseOption = "--advise";

/// `bundlePath` is the first argument after the option; without one the plug-in is looked for.
int runAdviseCommand(int &argc, char **argv);
