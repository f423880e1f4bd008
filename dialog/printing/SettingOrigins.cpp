#include "dialog/printing/SettingOrigins.h"

#include <QtCore/QStringList>

namespace {

using enum SettingOrigin::Kind;

QStringList otherwise(const SettingValues &before, const SettingValues &now)
{
    QStringList names = before.keys();
    for (const QString &name : now.keys())
        if (!before.contains(name))
            names += name;
    names.removeIf([&](const QString &name) { return before.value(name) == now.value(name); });
    return names;
}

} // namespace

void SettingOrigins::begin(const SettingValues &defaults, const SettingValues &now,
                           const QHash<QString, SettingOrigin> &named)
{
    m_origins.clear();
    m_lastPick = {};
    takeNamed(defaults, now, named);
}

void SettingOrigins::takeNamed(const SettingValues &before, const SettingValues &now,
                               const QHash<QString, SettingOrigin> &named)
{
    for (const QString &name : otherwise(before, now))
        m_origins.insert(name, {Rules, {}, {}});
    for (auto entry = named.cbegin(); entry != named.cend(); ++entry)
        if (now.contains(entry.key()))
            m_origins.insert(entry.key(), *entry);
}

void SettingOrigins::takePick(const QString &name, const SettingValues &before,
                              const SettingValues &now)
{
    const QStringList changed = otherwise(before, now);
    if (changed.contains(name))
        m_lastPick = {name, now.value(name)};
    for (const QString &one : changed) {
        const bool isPicked = name.isNull() || one == name;
        m_origins.insert(one, isPicked ? SettingOrigin{You, {}, {}}
                                       : SettingOrigin{Because, {}, {name, now.value(name)}});
    }
}

void SettingOrigins::takeRules(const SettingValues &before, const SettingValues &now)
{
    for (const QString &name : otherwise(before, now))
        m_origins.insert(name, m_lastPick.keyword.isNull()
                                   ? SettingOrigin{Rules, {}, {}}
                                   : SettingOrigin{Because, {}, m_lastPick});
}
