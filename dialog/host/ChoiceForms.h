#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// Which choices of a PPD keyword are forms of one another, as a bundle tells it (PDEChoiceForms):
/// people choose one of them, and the plug-in marks the form that the job needs. Where one takes
/// the place of another nothing has changed for them.
class ChoiceForms
{
public:
    /// None.
    ChoiceForms() = default;

    /// From the entry of the bundle; what has not its form counts for nothing.
    explicit ChoiceForms(const QVariantMap &entry);

    /// The forms of the keyword's choice, itself first.
    QStringList formsOf(const QString &keyword, const QString &choice) const;

    /// Whether both are the same choice, or forms of one another.
    bool areSame(const QString &keyword, const QString &one, const QString &other) const;

private:
    QHash<QString, QList<QStringList>> m_groups; ///< by keyword
};
