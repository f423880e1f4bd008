#include "dialog/files/DescriptorPath.h"

#include <array>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array kStandard{std::pair("/dev/stdin", STDIN_FILENO),
                               std::pair("/dev/stdout", STDOUT_FILENO),
                               std::pair("/dev/stderr", STDERR_FILENO)};

} // namespace

std::optional<int> descriptorOf(const QString &path)
{
    for (const auto &[name, descriptor] : kStandard)
        if (path == QLatin1String(name))
            return descriptor;
    for (const char *folder : {"/dev/fd/", "/proc/self/fd/"}) {
        bool isNumber = false;
        const uint number = path.startsWith(QLatin1String(folder))
                                ? path.mid(QLatin1String(folder).size()).toUInt(&isNumber)
                                : 0;
        if (isNumber)
            return static_cast<int>(number);
    }
    return std::nullopt;
}
