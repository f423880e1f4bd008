#include "tests/golden/Selection.h"

#include <QtCore/QHash>

#include <algorithm>

namespace {

/// What a name is worth that nothing chosen covers yet, and what is left of that afterwards.
constexpr double kOrdinary = 1;
constexpr double kFineName = 0.3;
constexpr double kKept = 0.02;

/// The names of all candidates by number, and how often the chosen ones have them.
class Census
{
public:
    QList<int> numbersOf(const Coverage &coverage)
    {
        QList<int> numbers;
        for (const QString &name : coverage.keys()) {
            const auto known = m_numbers.constFind(name);
            numbers += known == m_numbers.constEnd() ? add(name) : *known;
        }
        return numbers;
    }

    /// The rarer a name is among the chosen, the more it counts.
    double worthOf(const QList<int> &numbers) const
    {
        double worth = 0;
        for (const int number : numbers)
            worth += m_counts[number] == 0 ? m_worths[number]
                                           : kKept * m_worths[number] / m_counts[number];
        return worth;
    }

    void choose(const QList<int> &numbers)
    {
        for (const int number : numbers)
            ++m_counts[number];
    }

private:
    int add(const QString &name)
    {
        const int number = static_cast<int>(m_worths.size());
        m_numbers.insert(name, number);
        m_worths += isFine(name) ? kFineName : kOrdinary;
        m_counts += 0;
        return number;
    }

    QHash<QString, int> m_numbers;
    QList<double> m_worths;
    QList<int> m_counts;
};

} // namespace

QStringList selectedCases(const QList<Candidate> &candidates, int wanted)
{
    Census census;
    QList<QList<int>> numbers;
    for (const Candidate &candidate : candidates)
        numbers += census.numbersOf(candidate.coverage);
    QStringList selected;
    QList<bool> taken(candidates.size(), false);
    while (selected.size() < std::min<qsizetype>(wanted, candidates.size())) {
        QList<double> worths;
        for (qsizetype index = 0; index < candidates.size(); ++index)
            worths += taken[index] ? -1
                                   : census.worthOf(numbers[index]) /
                                         static_cast<double>(candidates[index].bytes);
        const auto best = std::ranges::max_element(worths) - worths.begin();
        taken[best] = true;
        census.choose(numbers[best]);
        selected += candidates[best].path;
    }
    return selected;
}
