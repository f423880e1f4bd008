#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtDBus/QDBusVirtualObject>

/// A desktop's keyring for a test: the org.freedesktop.secrets service on a bus of its own, which
/// is the session's bus as long as the object lives. There may be one in a process: libraries keep
/// to the first bus that they find, and the bus runs as long as the process does.
class SecretStore : public QDBusVirtualObject
{
public:
    SecretStore();
    ~SecretStore() override;

    /// Why there is no keyring; null when it is there.
    QString fault() const { return m_fault; }

    /// The texts that are kept, whatever stands for them.
    QList<QByteArray> kept() const;

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &path) const override;

private:
    struct Item
    {
        QMap<QString, QString> attributes;
        QByteArray value;
    };

    QVariantList answer(const QDBusMessage &message);
    QVariantList createItem(const QVariantList &given);
    QVariantList getSecrets(const QVariantList &given) const;

    const QByteArray m_former; ///< the address of the bus before; null: there was none
    QString m_fault;
    QList<Item> m_items;
};
