#pragma once

#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>

#include <functional>
#include <memory>

/// Where an accessible object is: the program's name on the bus, and its path there.
struct AccessiblePlace
{
    QString program;
    QDBusObjectPath path;
};
QDBusArgument &operator<<(QDBusArgument &argument, const AccessiblePlace &place);
const QDBusArgument &operator>>(const QDBusArgument &argument, AccessiblePlace &place);
Q_DECLARE_METATYPE(AccessiblePlace)
Q_DECLARE_METATYPE(QList<AccessiblePlace>)

/// An object as it is told over the bus.
struct ToldObject
{
    QString role; ///< "slider", "check box", ...
    QString name;
    QString description;
    AccessiblePlace place;
};

/// A display, a session bus and a bus for assistive technology of the test's own.
class AccessibilityBus
{
public:
    AccessibilityBus();
    ~AccessibilityBus();

    /// Null when all of them run; else what does not.
    const QString &fault() const { return m_fault; }

    /// For programs that are to be seen there.
    const QProcessEnvironment &environment() const { return m_environment; }

    /// Everything that all programs tell, each program's root first.
    QList<ToldObject> everything() const;

    /// A number of an object's value: "MinimumValue", "MaximumValue", "CurrentValue".
    double value(const ToldObject &object, const QString &property) const;

private:
    QByteArray start(QProcess &process, const QString &program, const QStringList &arguments);
    QDBusConnection bus() const { return QDBusConnection(QStringLiteral("accessibility")); }
    QList<AccessiblePlace> children(const AccessiblePlace &place) const;
    QVariant property(const AccessiblePlace &place, const QString &interface,
                      const QString &name) const;
    void tell(const AccessiblePlace &place, QList<ToldObject> &told) const;

    QProcess m_display;
    QProcess m_session;
    QProcess m_launcher;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QString m_fault;
};
