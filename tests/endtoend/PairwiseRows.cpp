#include "tests/endtoend/PairwiseRows.h"

#include <numeric>
#include <set>

namespace {

/// The pairs that no row has yet. A value has a number among those of all factors.
class OpenPairs
{
public:
    explicit OpenPairs(const std::vector<int> &sizes) : m_offsets(sizes.size())
    {
        std::exclusive_scan(sizes.begin(), sizes.end(), m_offsets.begin(), 0);
        m_values = static_cast<std::size_t>(std::accumulate(sizes.begin(), sizes.end(), 0));
        m_open.assign(m_values * m_values, 1);
    }

    bool isOpen(std::size_t factor, int value, std::size_t other, int otherValue) const
    {
        return m_open[place(factor, value) * m_values + place(other, otherValue)] != 0;
    }

    void close(std::size_t factor, int value, std::size_t other, int otherValue)
    {
        const std::size_t one = place(factor, value);
        const std::size_t two = place(other, otherValue);
        m_open[one * m_values + two] = m_open[two * m_values + one] = 0;
    }

private:
    std::size_t place(std::size_t factor, int value) const
    {
        return static_cast<std::size_t>(m_offsets[factor] + value);
    }

    std::vector<int> m_offsets;
    std::size_t m_values = 0;
    std::vector<char> m_open;
};

constexpr int kUnset = -1;

/// The value of the factor that has the most open pairs with the values that are set. Where several
/// have, the row's number chooses, so that all values come by.
int bestValue(const OpenPairs &pairs, const std::vector<int> &sizes, const PairwiseRow &row,
              std::size_t factor, std::size_t number)
{
    int best = 0;
    int most = -1;
    for (int step = 0; step < sizes[factor]; ++step) {
        const int value = static_cast<int>((number + static_cast<std::size_t>(step)) %
                                           static_cast<std::size_t>(sizes[factor]));
        int gain = 0;
        for (std::size_t other = 0; other < row.size(); ++other)
            if (other != factor && row[other] != kUnset)
                gain += pairs.isOpen(factor, value, other, row[other]) ? 1 : 0;
        if (gain > most) {
            most = gain;
            best = value;
        }
    }
    return best;
}

void complete(PairwiseRow &row, OpenPairs &pairs, const std::vector<int> &sizes, std::size_t number)
{
    for (std::size_t factor = 0; factor < row.size(); ++factor)
        if (row[factor] == kUnset)
            row[factor] = bestValue(pairs, sizes, row, factor, number);
    for (std::size_t one = 0; one < row.size(); ++one)
        for (std::size_t other = 0; other < one; ++other)
            pairs.close(one, row[one], other, row[other]);
}

} // namespace

std::vector<PairwiseRow> pairwiseRows(const std::vector<int> &sizes)
{
    OpenPairs pairs(sizes);
    std::vector<PairwiseRow> rows;
    for (std::size_t one = 0; one < sizes.size(); ++one)
        for (std::size_t other = one + 1; other < sizes.size(); ++other)
            for (int value = 0; value < sizes[one]; ++value)
                for (int otherValue = 0; otherValue < sizes[other]; ++otherValue) {
                    if (!pairs.isOpen(one, value, other, otherValue))
                        continue;
                    PairwiseRow row(sizes.size(), kUnset);
                    row[one] = value;
                    row[other] = otherValue;
                    complete(row, pairs, sizes, rows.size());
                    rows.push_back(row);
                }
    return rows;
}

PairCount countPairs(const std::vector<int> &sizes, const std::vector<PairwiseRow> &rows)
{
    PairCount count;
    for (std::size_t one = 0; one < sizes.size(); ++one)
        for (std::size_t other = 0; other < one; ++other) {
            std::set<std::pair<int, int>> had;
            for (const PairwiseRow &row : rows)
                had.emplace(row[one], row[other]);
            count.all +=
                static_cast<std::size_t>(sizes[one]) * static_cast<std::size_t>(sizes[other]);
            count.had += had.size();
        }
    return count;
}
