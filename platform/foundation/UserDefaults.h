#pragma once

#include "platform/Export.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// What a user's programs remember from run to run: one dictionary of values a domain.
///
/// A domain is a file in the user's configuration folder; a write is on the disk when
/// synchronize() returns.
class VELKARO_PLATFORM_EXPORT UserDefaults
{
public:
    /// The user's defaults.
    static UserDefaults &standardUserDefaults();

    /// Keeps the domains in this folder instead. A null folder: in memory alone, empty from now on,
    /// so that nothing of the user's is read or written.
    void setFolder(const QString &folder);

    /// Everything in the domain; empty when there is no such domain.
    QVariantMap persistentDomainForName(const QString &name) const;

    /// Replaces the domain as a whole.
    void setPersistentDomain(const QVariantMap &domain, const QString &forName);

    /// Writes to the disk what is not there yet. False when it cannot be written.
    bool synchronize();

private:
    friend class TransientDefaults;
    UserDefaults();
    QString fileOf(const QString &name) const;

    QString m_folder;
    QHash<QString, QVariantMap> m_memory;
    bool m_failed = false;
};

/// While it lives, the user's defaults are in memory alone and empty at first: nothing of the
/// user's is read or written. Afterwards they are as they were.
class VELKARO_PLATFORM_EXPORT TransientDefaults
{
public:
    TransientDefaults();
    ~TransientDefaults();
    TransientDefaults(const TransientDefaults &) = delete;
    TransientDefaults &operator=(const TransientDefaults &) = delete;

private:
    const UserDefaults m_former;
};
