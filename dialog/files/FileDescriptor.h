#pragma once

#include <unistd.h>
#include <utility>

/// Owns an open file of the system; closes it.
class FileDescriptor
{
public:
    /// Takes the descriptor; a negative one stands for none.
    explicit FileDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileDescriptor()
    {
        if (isOpen())
            close(m_descriptor);
    }

    /// Closes it. False, with errno, when what was written has not arrived.
    bool shut() { return close(std::exchange(m_descriptor, -1)) == 0; }

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }

private:
    int m_descriptor;
};
