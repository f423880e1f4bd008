#include "dialog/window/DetailDelegate.h"

#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace {

constexpr int kRowMargin = 4;
constexpr int kNarrow = 160;              // a list wants no more for itself
constexpr qreal kStrengthOfDetails = 0.7; // of the colour of the text

QString titleOf(const QModelIndex &index)
{
    return index.data(Qt::DisplayRole).toString();
}

QString detailOf(const QModelIndex &index)
{
    return index.data(PopUpButton::kDetailRole).toString();
}

QRect textArea(const QStyleOptionViewItem &option)
{
    return option.rect.adjusted(2 * kRowMargin, kRowMargin, -2 * kRowMargin, -kRowMargin);
}

} // namespace

void DetailDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    QStyleOptionViewItem row(option);
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const QRect area = textArea(row);
    const int line = row.fontMetrics.lineSpacing();
    const auto elided = [&](const QString &text) {
        return row.fontMetrics.elidedText(text, Qt::ElideRight, area.width());
    };
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    QColor color = row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    painter->save();
    painter->setFont(row.font);
    painter->setPen(color);
    painter->drawText(QRect(area.left(), area.top(), area.width(), line), Qt::AlignVCenter,
                      elided(titleOf(index)));
    color.setAlphaF(static_cast<float>(color.alphaF() * kStrengthOfDetails));
    painter->setPen(color);
    painter->drawText(QRect(area.left(), area.top() + line, area.width(), line), Qt::AlignVCenter,
                      elided(detailOf(index)));
    painter->restore();
}

QSize DetailDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {kNarrow, 2 * option.fontMetrics.lineSpacing() + 2 * kRowMargin};
}

bool DetailDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                               const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const int room = textArea(option).width();
    const bool isCut = option.fontMetrics.horizontalAdvance(titleOf(index)) > room ||
                       option.fontMetrics.horizontalAdvance(detailOf(index)) > room;
    showToolTip(event->globalPos(), isCut ? titleOf(index) + u'\n' + detailOf(index) : QString(),
                view);
    return true;
}
