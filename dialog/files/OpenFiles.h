#pragma once

#include <cstddef>

/// Lets the process hold that many files open beside what else it needs, as far as the system
/// allows: its usual limit of some thousand is one that a program may raise by itself.
void allowOpenFiles(std::size_t count);
