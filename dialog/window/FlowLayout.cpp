#include "dialog/window/FlowLayout.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <algorithm>

FlowLayout::FlowLayout(QWidget *parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addLayout(QLayout *layout)
{
    addChildLayout(layout);
    addItem(layout);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items += item;
    invalidate();
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    int height = -spacing();
    for (const Line &line : linesFor(width - margins.left() - margins.right()))
        height += spacing() + heightOf(line);
    return std::max(0, height) + margins.top() + margins.bottom();
}

QSize FlowLayout::sizeHint() const
{
    QSize size(-spacing(), 0);
    for (const QLayoutItem *item : m_items)
        if (!item->isEmpty()) {
            const QSize hint = item->sizeHint();
            size = {size.width() + spacing() + hint.width(),
                    std::max(size.height(), hint.height())};
        }
    return size.expandedTo({0, 0}).grownBy(contentsMargins());
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect &whole)
{
    QLayout::setGeometry(whole);
    QRect area = whole.marginsRemoved(contentsMargins());
    for (const Line &line : linesFor(area.width())) {
        place(line, area);
        area.setTop(area.top() + heightOf(line) + spacing());
    }
}

QList<FlowLayout::Line> FlowLayout::linesFor(int width) const
{
    QList<Line> lines;
    int taken = 0;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const int least = item->minimumSize().width();
        const bool isFirst = lines.isEmpty() || taken + spacing() + least > width;
        if (isFirst)
            lines += Line();
        taken = isFirst ? least : taken + spacing() + least;
        lines.last() += item;
    }
    return lines;
}

int FlowLayout::heightOf(const Line &line) const
{
    int height = 0;
    for (const QLayoutItem *item : line)
        height = std::max(height, item->sizeHint().height());
    return height;
}

/// At the top of the area. The items have their middles at one height, and of the room beyond their
/// least widths the first take what they ask for.
void FlowLayout::place(const Line &line, const QRect &area) const
{
    int spare = area.width() + spacing();
    for (const QLayoutItem *item : line)
        spare -= item->minimumSize().width() + spacing();
    const int height = heightOf(line);
    int left = area.left();
    for (QLayoutItem *item : line) {
        const QSize hint = item->sizeHint();
        const int least = item->minimumSize().width();
        const int more = std::clamp(hint.width() - least, 0, std::max(0, spare));
        spare -= more;
        const QRect frame(left, area.top() + (height - hint.height()) / 2, least + more,
                          hint.height());
        item->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), area, frame));
        left += frame.width() + spacing();
    }
}
