// Prints how many pages the PDF on standard input has, and nothing where it cannot be known. A
// process of its own: a PDF comes from anybody, and may be made to take all memory and all time of
// whoever reads it.

#include <qpdf/QPDF.hh>

#include <cstddef>
#include <cstdio>
#include <exception>
#include <sys/resource.h>

namespace {

[[maybe_unused]] constexpr rlim_t kMostMemory = 1'000'000'000; // bytes
constexpr rlim_t kMostSeconds = 10;                            // of CPU time

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    setrlimit(resource, &both);
}

} // namespace

int main()
{
#ifndef __SANITIZE_ADDRESS__ // which takes terabytes of addresses and little memory
    limit(RLIMIT_AS, kMostMemory);
#endif
    limit(RLIMIT_CPU, kMostSeconds);
    limit(RLIMIT_CORE, 0);
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.processFile("/proc/self/fd/0");
        const std::size_t pages = pdf.getAllPages().size();
        if (pages == 0)
            return 1;
        std::printf("%zu\n", pages);
        return 0;
    } catch (const std::exception &) {
        return 1; // no PDF, one that is damaged, or one that wants a password
    }
}
