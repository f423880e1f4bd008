#pragma once

#include <QtCore/QByteArray>

#include <chrono>
#include <functional>
#include <optional>

/// A copy of this process that does some work and tells of it in lines. Whatever the work changes
/// it changes in the copy alone, and nothing that it does wrong is more than its own end.
///
/// Only the calling thread is in the copy. It has no standard input and output, ends with this
/// process at the latest, and when it has used up its CPU time.
class ProcessCopy
{
public:
    /// Tells one line, without its end, which must not be in it.
    using Tell = std::function<void(const QByteArray &line)>;

    ProcessCopy(std::chrono::seconds mostCPU, const std::function<void(const Tell &)> &work);
    /// Ends it.
    ~ProcessCopy();
    ProcessCopy(const ProcessCopy &) = delete;
    ProcessCopy &operator=(const ProcessCopy &) = delete;

    /// Waits for the next line; none when there is no more, or when it was given up: `isGivenUp`
    /// (null: never) is asked every few milliseconds.
    std::optional<QByteArray> nextLine(const std::function<bool()> &isGivenUp = {});

private:
    int m_process = -1; // negative: there is none
    int m_lines = -1;   // the descriptor that they come from
    QByteArray m_read;
};
