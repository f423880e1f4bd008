#include "panel/KeywordControls.h"

#include "platform/toolkit/ViewConnections.h"

#include <algorithm>

KeywordControls::KeywordControls(std::span<const KeywordControl> table)
{
    for (const KeywordControl &row : table)
        m_rows.push_back({row.keyword, &m_outlets[row.control], &m_outlets[row.label]});
}

void KeywordControls::connect(ViewConnections &connections)
{
    for (auto &[name, widget] : m_outlets) {
        if (!name.isEmpty())
            connections.outlet(name, widget);
    }
}

const KeywordControls::Row *KeywordControls::row(const QString &keyword) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row &candidate) {
        return candidate.keyword == keyword;
    });
    return found == m_rows.end() ? nullptr : &*found;
}

QWidget *KeywordControls::control(const QString &keyword) const
{
    const Row *found = row(keyword);
    return found ? *found->control : nullptr;
}

QWidget *KeywordControls::label(const QString &keyword) const
{
    const Row *found = row(keyword);
    return found ? *found->label : nullptr;
}

QString KeywordControls::keyword(const QWidget *control) const
{
    // An outlet that is not connected is null too, and must not answer for no control at all.
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row &candidate) {
        return control && *candidate.control == control;
    });
    return found == m_rows.end() ? QString() : QString(found->keyword);
}
