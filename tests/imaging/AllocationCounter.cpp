#include "tests/imaging/AllocationCounter.h"

#include <sys/resource.h>

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<long> allocationCount;
std::atomic<std::size_t> byteCount;

void count(std::size_t size)
{
    ++allocationCount;
    byteCount += size;
}

long faultsSoFar()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

} // namespace

#ifdef __SANITIZE_ADDRESS__

// The sanitizer's library has it; the compiler does not ship the header.
extern "C" int __sanitizer_install_malloc_and_free_hooks(
    void (*allocated)(const volatile void *block, std::size_t size),
    void (*freed)(const volatile void *block));

namespace {
[[maybe_unused]] const int hooked = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void *, std::size_t size) { count(size); }, [](const volatile void *) {});
}

#else

// The program's malloc stands before the C library's for every library of the process; operator
// new ends here too. All others see it only where it is not hidden.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier): the C library's own names
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t members, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

[[gnu::visibility("default")]] void *malloc(std::size_t size) noexcept
{
    count(size);
    return __libc_malloc(size);
}

[[gnu::visibility("default")]] void *calloc(std::size_t members, std::size_t size) noexcept
{
    count(members * size);
    return __libc_calloc(members, size);
}

[[gnu::visibility("default")]] void *realloc(void *block, std::size_t size) noexcept
{
    count(size);
    return __libc_realloc(block, size);
}
}

#endif

AllocationCounter::AllocationCounter()
    : m_allocations(allocationCount), m_bytes(byteCount), m_pageFaults(faultsSoFar())
{}

long AllocationCounter::allocations() const
{
    return allocationCount - m_allocations;
}

std::size_t AllocationCounter::bytes() const
{
    return byteCount - m_bytes;
}

long AllocationCounter::pageFaults() const
{
    return faultsSoFar() - m_pageFaults;
}
