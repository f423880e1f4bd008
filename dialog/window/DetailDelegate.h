#pragma once

#include <QtWidgets/QStyledItemDelegate>

/// Draws the rows of a list in two lines: the title, and under it the detail of the item
/// (PopUpButton::kDetailRole). A row whose texts are cut off tells them whole in a tool tip.
class DetailDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};
