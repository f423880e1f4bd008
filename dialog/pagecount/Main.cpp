// Prints how many pages the PDF on standard input has, and nothing where it cannot be known. A
// process of its own: a PDF comes from anybody, and may be made to take all memory and all time of
// whoever reads it.

#include <qpdf/qpdf-c.h>

#include <cstdio>
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
    qpdf_data pdf = qpdf_init();
    qpdf_silence_errors(pdf);
    qpdf_set_suppress_warnings(pdf, QPDF_TRUE);
    // Without a page: no PDF, one that is damaged, or one that wants a password.
    const bool isRead = (qpdf_read(pdf, "/proc/self/fd/0", nullptr) & QPDF_ERRORS) == 0;
    const int pages = isRead ? qpdf_get_num_pages(pdf) : 0;
    qpdf_cleanup(&pdf);
    if (pages > 0)
        std::printf("%d\n", pages);
    return pages > 0 ? 0 : 1;
}
