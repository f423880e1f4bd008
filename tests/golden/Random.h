#pragma once

#include <QtCore/QList>
#include <QtCore/QtGlobal>

#include <random>

/// Chance that is the same on every machine: the engine's numbers are laid down by the standard,
/// what is made of them here.
class Random
{
public:
    /// One of many independent rows of numbers: `index` under `seed`.
    Random(quint32 seed, quint32 index) : m_engine(firstState(seed, index)) {}

    /// From 0 to `count` - 1; `count` is at least 1.
    int below(int count)
    {
        return static_cast<int>(m_engine() % static_cast<std::mt19937::result_type>(count));
    }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool chance(int percent) { return below(100) < percent; }

    /// The list must not be empty.
    template <typename Item> Item pick(const QList<Item> &list)
    {
        return list.at(below(static_cast<int>(list.size())));
    }

private:
    static std::mt19937 firstState(quint32 seed, quint32 index)
    {
        std::seed_seq sequence{seed, index};
        return std::mt19937(sequence);
    }

    std::mt19937 m_engine;
};
