#include "dialog/window/SearchModel.h"

#include "platform/toolkit/PopUpButton.h"

#include <algorithm>

namespace {

/// "4 × 6 in" is found by "4x6", too.
QString foundBy(QString text)
{
    return text.remove(u' ').replace(u'×', u'x');
}

} // namespace

void SearchModel::setWords(const QString &words)
{
    m_words = words.split(u' ', Qt::SkipEmptyParts);
    for (QString &word : m_words)
        word = foundBy(word);
    invalidateFilter();
}

bool SearchModel::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (m_words.isEmpty())
        return true;
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (!index.flags().testFlag(Qt::ItemIsEnabled)) // a heading
        return false;
    const QString title = foundBy(index.data(Qt::DisplayRole).toString());
    const QString detail = foundBy(index.data(PopUpButton::kDetailRole).toString());
    return std::ranges::all_of(m_words, [&](const QString &word) {
        return title.contains(word, Qt::CaseInsensitive) ||
               detail.contains(word, Qt::CaseInsensitive);
    });
}
