#include "dialog/files/OpenFiles.h"

#include <sys/resource.h>

#include <algorithm>

namespace {

constexpr rlim_t kOthers = 256; // libraries, connections, pipes to other processes

} // namespace

void allowOpenFiles(std::size_t count)
{
    struct rlimit limit = {};
    const rlim_t wanted = static_cast<rlim_t>(count) + kOthers;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= wanted)
        return;
    limit.rlim_cur = std::min(wanted, limit.rlim_max);
    setrlimit(RLIMIT_NOFILE, &limit); // else the file that is one too many says so
}
