#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// A home and a configuration folder of the test's own, with the lpoptions files of a user and of a
/// system; the environment is as it was afterwards.
class LpoptionsFolder
{
public:
    LpoptionsFolder();
    ~LpoptionsFolder();
    LpoptionsFolder(const LpoptionsFolder &) = delete;
    LpoptionsFolder &operator=(const LpoptionsFolder &) = delete;

    QString home() const { return m_folder.path() + QStringLiteral("/home"); }
    QString userFile() const { return home() + QStringLiteral("/.cups/lpoptions"); }

    void writeUser(const QByteArray &text) const;
    void writeSystem(const QByteArray &text) const;
    QByteArray user() const; ///< empty without the file

private:
    const QTemporaryDir m_folder;
    const QByteArray m_home = qgetenv("HOME");
    const QByteArray m_configuration = qgetenv("XDG_CONFIG_HOME");
    const QByteArray m_serverRoot = qgetenv("CUPS_SERVERROOT");
};
