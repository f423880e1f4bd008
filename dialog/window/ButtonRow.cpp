#include "dialog/window/ButtonRow.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>

#include <algorithm>

ButtonRow::ButtonRow(QWidget *parent) : QWidget(parent), m_lines(new QHBoxLayout(this))
{
    m_lines->setContentsMargins(0, 0, 0, 0);
    for (QWidget *&group : m_groups) {
        group = new QWidget(this);
        (new QHBoxLayout(group))->setContentsMargins(0, 0, 0, 0);
        const bool isFirst = &group == m_groups.data();
        m_lines->addWidget(group, isFirst ? 1 : 0, isFirst ? Qt::Alignment() : Qt::AlignRight);
    }
}

void ButtonRow::add(Group group, QWidget *widget, bool stretches)
{
    QWidget *holder = m_groups[static_cast<std::size_t>(group)];
    static_cast<QHBoxLayout *>(holder->layout())->addWidget(widget, stretches ? 1 : 0);
}

int ButtonRow::widthOfALine() const
{
    int width = m_lines->spacing() * static_cast<int>(m_groups.size() - 1);
    for (const QWidget *group : m_groups)
        width += group->minimumSizeHint().width();
    return width;
}

QSize ButtonRow::sizeHint() const
{
    return {widthOfALine(), QWidget::sizeHint().height()};
}

QSize ButtonRow::minimumSizeHint() const
{
    int widest = 0;
    for (const QWidget *group : m_groups)
        widest = std::max(widest, group->minimumSizeHint().width());
    return {widest, QWidget::minimumSizeHint().height()};
}

void ButtonRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

/// A button may have got another title.
bool ButtonRow::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        arrange();
    return QWidget::event(event);
}

void ButtonRow::arrange()
{
    m_lines->setDirection(widthOfALine() <= width() ? QBoxLayout::LeftToRight
                                                    : QBoxLayout::TopToBottom);
}
