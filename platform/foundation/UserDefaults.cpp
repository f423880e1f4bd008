#include "platform/foundation/UserDefaults.h"

#include "platform/foundation/SettingsPath.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

UserDefaults::UserDefaults()
    : m_folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
               QStringLiteral("/velkaro-print"))
{}

UserDefaults &UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults;
    return defaults;
}

void UserDefaults::setFolder(const QString &folder)
{
    m_folder = folder;
    m_memory.clear();
}

QString UserDefaults::fileOf(const QString &name) const
{
    return settingsPath(m_folder + u'/' + name + QStringLiteral(".ini"));
}

QVariantMap UserDefaults::persistentDomainForName(const QString &name) const
{
    if (m_folder.isNull())
        return m_memory.value(name);
    QVariantMap domain;
    const QSettings settings(fileOf(name), QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        domain.insert(key, settings.value(key));
    return domain;
}

void UserDefaults::setPersistentDomain(const QVariantMap &domain, const QString &forName)
{
    if (m_folder.isNull()) {
        m_memory.insert(forName, domain);
        return;
    }
    QSettings settings(fileOf(forName), QSettings::IniFormat);
    settings.clear();
    for (auto entry = domain.cbegin(); entry != domain.cend(); ++entry)
        settings.setValue(entry.key(), entry.value());
    settings.sync();
    m_failed = m_failed || settings.status() != QSettings::NoError;
}

bool UserDefaults::synchronize()
{
    const bool written = !m_failed;
    m_failed = false;
    return written;
}

TransientDefaults::TransientDefaults() : m_former(UserDefaults::standardUserDefaults())
{
    UserDefaults::standardUserDefaults().setFolder(QString());
}

TransientDefaults::~TransientDefaults()
{
    UserDefaults::standardUserDefaults() = m_former;
}
