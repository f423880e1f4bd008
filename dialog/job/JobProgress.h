#pragma once

#include <QtCore/QtGlobal>

#include <atomic>

/// How far a job has come, told by the thread that sends or writes it to whoever waits. What is
/// noted here holds, even when that thread is given up.
class JobProgress
{
public:
    /// Bytes of the documents that have gone out or were written.
    qint64 bytes() const { return m_bytes; }
    void add(qint64 bytes) { m_bytes += bytes; }

    /// The number that the server gave the job; 0 before that.
    int id() const { return m_id; }
    void setId(int id) { m_id = id; }

    /// Whether the server has taken the job with all its documents.
    bool isAccepted() const { return m_isAccepted; }
    void setAccepted() { m_isAccepted = true; }

    /// Whether the job was sent held, until it is known to be as it was shown.
    bool isOnTrial() const { return m_isOnTrial; }
    void setOnTrial(bool isOnTrial) { m_isOnTrial = isOnTrial; }

private:
    std::atomic<qint64> m_bytes = 0;
    std::atomic<int> m_id = 0;
    std::atomic<bool> m_isAccepted = false;
    std::atomic<bool> m_isOnTrial = false;
};
