#pragma once

#include "platform/toolkit/PopUpButton.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QHash>
#include <QtGui/QIcon>

#include <optional>
#include <vector>

/// The items of a pop-up button. A printer may have thousands of choices, and the rules look a
/// dozen of them up at every pick: they are found by a hash of their represented objects.
class PopUpModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    /// Replaces all items, all of them enabled.
    void setItems(const std::vector<PopUpButton::Item> &items);

    /// See PopUpButton::setPictures().
    void setPictures(PopUpButton::PictureOf pictureOf);

    /// See PopUpButton::setDetails(), refreshDetails() and hasItems().
    void setDetails(PopUpButton::TextOf detailOf);
    void refreshDetails();
    bool hasItems(const std::vector<PopUpButton::Item> &items) const;

    /// The titles that take the most room, as far as can be told without measuring them: no more
    /// than `most`.
    QStringList longestTitles(std::size_t most) const;

    /// The row of the first item with the represented object; -1 without one. No item is found by a
    /// null object.
    int rowOfObject(const QString &object) const;

    /// The row of the first item with the title; -1 without one.
    int rowOfTitle(const QString &title) const;

    /// Null for a row that is not there.
    QString representedObject(int row) const;

    /// Whether the row can be picked. False for a row that is not there.
    bool isEnabled(int row) const;

    /// Lets the row be picked, or not.
    void setEnabled(int row, bool enabled);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row
    {
        PopUpButton::Item item;
        bool enabled = true;
        mutable std::optional<QIcon> icon = std::nullopt; ///< none until it is first drawn
    };

    const QIcon &iconOf(const Row &row) const;
    QString detailOf(const Row &row) const;

    const Row *rowAt(int row) const;

    std::vector<Row> m_rows;
    QHash<QString, int> m_rowOfObject;
    PopUpButton::PictureOf m_pictureOf;
    PopUpButton::TextOf m_detailOf;
};
