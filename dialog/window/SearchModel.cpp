#include "dialog/window/SearchModel.h"

#include "platform/toolkit/PopUpButton.h"

#include <algorithm>

void SearchModel::setWords(const QString &words)
{
    m_words = words.split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool SearchModel::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (m_words.isEmpty())
        return true;
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const QString title = index.data(Qt::DisplayRole).toString();
    const QString detail = index.data(PopUpButton::kDetailRole).toString();
    return std::ranges::all_of(m_words, [&](const QString &word) {
        return title.contains(word, Qt::CaseInsensitive) ||
               detail.contains(word, Qt::CaseInsensitive);
    });
}
