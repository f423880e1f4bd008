#pragma once

#include <cstddef>

/// What the whole process, its libraries included, took from the heap and from the kernel since
/// the object was made.
class AllocationCounter
{
public:
    AllocationCounter();

    long allocations() const;
    std::size_t bytes() const;
    /// Pages that were touched for the first time.
    long pageFaults() const;

private:
    long m_allocations;
    std::size_t m_bytes;
    long m_pageFaults;
};
