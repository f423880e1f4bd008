#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>

/// A real X server that shows its screen to nobody, for as long as the object lives.
class DisplayServer
{
public:
    DisplayServer();
    ~DisplayServer();

    /// Why there is no server; null when it runs.
    QString fault() const { return m_fault; }

    /// Has this process and those that it starts from now on use the server, before any window.
    void use() const;

private:
    bool start();

    QProcess m_process;
    QByteArray m_name; // ":5"
    QString m_fault;
};
