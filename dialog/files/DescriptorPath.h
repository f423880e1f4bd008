#pragma once

#include <QtCore/QString>

#include <optional>

/// The number of the open file that the path stands for, whatever it is: "/dev/stdin",
/// "/dev/stdout", "/dev/stderr", "/dev/fd/N" and "/proc/self/fd/N". None for any other path.
std::optional<int> descriptorOf(const QString &path);
