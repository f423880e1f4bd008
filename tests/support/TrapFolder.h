#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <thread>

/// A folder with a picture and a FIFO that nothing may open. Who opens the FIFO to read it, which
/// would wait for ever, is set free at once: the test fails and does not hang.
class TrapFolder
{
public:
    TrapFolder();
    ~TrapFolder();
    TrapFolder(const TrapFolder &) = delete;
    TrapFolder &operator=(const TrapFolder &) = delete;

    QString path() const { return m_folder.path(); }
    QString picture() const { return m_folder.filePath(QStringLiteral("p.png")); }
    QString fifo() const { return m_folder.filePath(QStringLiteral("f")); }

    /// Whether a file of the folder has been opened since the last call.
    bool wasOpened();

private:
    // A short path: the texts of a PPD are.
    QTemporaryDir m_folder{QStringLiteral("/tmp/vk-XXXXXX")};
    int m_watch; // inotify
    std::jthread m_freeing;
};
