#pragma once

#include <cstddef>
#include <vector>

/// A value for each factor, by its number from 0.
using PairwiseRow = std::vector<int>;

/// Rows in which every two values of two factors come together at least once; `sizes` has how many
/// values each factor has, at least one. Few rows, not the fewest; the same ones every time.
std::vector<PairwiseRow> pairwiseRows(const std::vector<int> &sizes);

/// How many pairs of values there are, and how many of them the rows have.
struct PairCount
{
    std::size_t all = 0;
    std::size_t had = 0;
};
PairCount countPairs(const std::vector<int> &sizes, const std::vector<PairwiseRow> &rows);
