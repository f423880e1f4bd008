#include "dialog/host/ChoiceForms.h"

#include <algorithm>

ChoiceForms::ChoiceForms(const QVariantMap &entry)
{
    for (auto groups = entry.cbegin(); groups != entry.cend(); ++groups)
        for (const QVariant &group : groups.value().toList())
            m_groups[groups.key()] += group.toStringList();
}

QStringList ChoiceForms::formsOf(const QString &keyword, const QString &choice) const
{
    const QList<QStringList> groups = m_groups.value(keyword);
    const auto found = std::ranges::find_if(
        groups, [&](const QStringList &group) { return group.contains(choice); });
    QStringList forms{choice};
    if (found != groups.end())
        forms += *found;
    forms.removeDuplicates();
    return forms;
}

bool ChoiceForms::areSame(const QString &keyword, const QString &one, const QString &other) const
{
    return formsOf(keyword, one).contains(other);
}
