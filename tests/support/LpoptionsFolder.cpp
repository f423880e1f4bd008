#include "tests/support/LpoptionsFolder.h"

#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

using namespace Qt::StringLiterals;

LpoptionsFolder::LpoptionsFolder()
{
    QDir(m_folder.path()).mkpath(u"home/.cups"_s);
    QDir(m_folder.path()).mkpath(u"etc"_s);
    qputenv("HOME", QFile::encodeName(home()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.filePath(u"config"_s)));
    qputenv("CUPS_SERVERROOT", QFile::encodeName(m_folder.filePath(u"etc"_s)));
}

LpoptionsFolder::~LpoptionsFolder()
{
    qputenv("HOME", m_home);
    qputenv("XDG_CONFIG_HOME", m_configuration);
    qputenv("CUPS_SERVERROOT", m_serverRoot);
}

void LpoptionsFolder::writeUser(const QByteArray &text) const
{
    writeFile(userFile(), text);
}

void LpoptionsFolder::writeSystem(const QByteArray &text) const
{
    writeFile(m_folder.filePath(u"etc/lpoptions"_s), text);
}

QByteArray LpoptionsFolder::user() const
{
    QFile file(userFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
