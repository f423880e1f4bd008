#pragma once

#include <QtCore/QList>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtDBus/QDBusVirtualObject>

/// A session's bus of the test's own, which programs that are started find, and on it, where
/// wanted, a desktop that takes notifications.
class NotificationDesk : public QDBusVirtualObject
{
public:
    enum class Kind { None, Plain, Markup };

    explicit NotificationDesk(Kind kind);
    ~NotificationDesk() override;

    /// Why there is no bus; null when there is one.
    QString fault() const { return m_fault; }

    struct Shown
    {
        QString title;
        QString text;
        int urgency = -1;
        unsigned replaced = 0; ///< the number of the one whose place it takes; 0: none
    };
    const QList<Shown> &shown() const { return m_shown; }

    /// The numbers of those that were taken away; the first that was shown has the number 1.
    const QList<unsigned> &closed() const { return m_closed; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &path) const override;

private:
    const Kind m_kind;
    QProcess m_bus;
    QByteArray m_former;
    QString m_fault;
    QList<Shown> m_shown;
    QList<unsigned> m_closed;
};
