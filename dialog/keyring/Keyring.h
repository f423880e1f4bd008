#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>

/// The desktop's keyring. Its service may not run, or ask its user to open it: so everything comes
/// from the event loop. On the main thread.
class Keyring
{
public:
    enum class Found {
        NoKeyring, ///< it cannot be used
        Nothing,   ///< under this key
        Entry,
    };
    using Then = std::function<void(Found found, QByteArray entry)>;

    virtual ~Keyring() = default;

    virtual void read(const QString &key, Then then) = 0;
    virtual void write(const QString &key, const QByteArray &entry) = 0;
};

/// Loads what knows the desktop's keyring, when it is asked for first: nothing of that is wanted
/// before a server asks for a password. Null where the program was built without it.
Keyring *desktopKeyring();
