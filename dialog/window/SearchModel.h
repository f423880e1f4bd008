#pragma once

#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QStringList>

/// The rows of a list in which every wanted word is found, in whatever case, in the title or in the
/// detail (PopUpButton::kDetailRole). All rows while no word is wanted.
class SearchModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// The words, with spaces between them.
    void setWords(const QString &words);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
};
