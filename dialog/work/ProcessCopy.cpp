#include "dialog/work/ProcessCopy.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kInterval = 5; // ms between two questions whether it was given up
constexpr std::size_t kPart = 4096;

void writeAll(int descriptor, QByteArray bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written =
            write(descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            _exit(1); // nobody reads any more
        bytes.remove(0, std::max<ssize_t>(written, 0));
    }
}

void leaveStandardStreams()
{
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    dup2(nothing, STDIN_FILENO);
    dup2(nothing, STDOUT_FILENO);
    close(nothing);
}

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    setrlimit(resource, &both);
}

/// Nothing of what this process would do at its end is the copy's to do.
[[noreturn]] void doTheWork(int lines, std::chrono::seconds mostCPU,
                            const std::function<void(const ProcessCopy::Tell &)> &work)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM})
        std::signal(signal, SIG_DFL);
    std::signal(SIGPIPE, SIG_IGN);
    limit(RLIMIT_CPU, static_cast<rlim_t>(mostCPU.count()));
    limit(RLIMIT_CORE, 0);
    leaveStandardStreams();
    work([lines](const QByteArray &line) { writeAll(lines, line + '\n'); });
    _exit(0);
}

} // namespace

ProcessCopy::ProcessCopy(std::chrono::seconds mostCPU,
                         const std::function<void(const Tell &)> &work)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    m_process = fork();
    if (m_process == 0) {
        close(ends[0]);
        doTheWork(ends[1], mostCPU, work);
    }
    m_lines = ends[0];
    close(ends[1]);
}

ProcessCopy::~ProcessCopy()
{
    if (m_lines >= 0)
        close(m_lines);
    if (m_process < 0)
        return;
    kill(m_process, SIGKILL);
    while (waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::optional<QByteArray> ProcessCopy::nextLine(const std::function<bool()> &isGivenUp)
{
    for (;;) {
        if (const qsizetype end = m_read.indexOf('\n'); end >= 0) {
            const QByteArray line = m_read.left(end);
            m_read.remove(0, end + 1);
            return line;
        }
        if (isGivenUp && isGivenUp())
            return std::nullopt;
        pollfd ready{m_lines, POLLIN, 0};
        if (poll(&ready, 1, isGivenUp ? kInterval : -1) <= 0)
            continue;
        std::array<char, kPart> part{};
        const ssize_t got = read(m_lines, part.data(), part.size());
        if (got == 0 || (got < 0 && errno != EINTR))
            return std::nullopt;
        m_read.append(part.data(), std::max<ssize_t>(got, 0));
    }
}
