#include "panel/KeywordControls.h"

#include "platform/toolkit/ViewConnections.h"

#include <algorithm>

KeywordControls::KeywordControls(std::span<const KeywordControl> table)
{
    for (const KeywordControl &row : table)
        rows_.push_back({row.keyword, &outlets_[row.control], &outlets_[row.label]});
}

void KeywordControls::connect(ViewConnections &connections)
{
    for (auto &[name, widget] : outlets_) {
        if (!name.isEmpty())
            connections.outlet(name, widget);
    }
}

const KeywordControls::Row *KeywordControls::row(const QString &keyword) const
{
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row &candidate) {
        return candidate.keyword == keyword;
    });
    return found == rows_.end() ? nullptr : &*found;
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
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row &candidate) {
        return control && *candidate.control == control;
    });
    return found == rows_.end() ? QString() : QString(found->keyword);
}
