#include "dialog/window/ButtonRow.h"

#include <QtCore/QEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>

#include <algorithm>

namespace {

struct Place
{
    int line;
    int column;
};

// By how many groups stand in the first line, less one; each row indexed by ButtonRow::Group.
constexpr std::array<std::array<Place, 3>, 3> kPlaces{{
    {{{0, 0}, {1, 0}, {2, 0}}},
    {{{0, 0}, {0, 1}, {1, 0}}},
    {{{0, 0}, {0, 1}, {0, 2}}},
}};

} // namespace

ButtonRow::ButtonRow(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setColumnStretch(0, 1);
    for (QWidget *&group : m_groups) {
        group = new QWidget(this);
        (new QHBoxLayout(group))->setContentsMargins(0, 0, 0, 0);
    }
    arrange();
}

void ButtonRow::add(Group group, QWidget *widget, bool stretches)
{
    QWidget *holder = m_groups[static_cast<std::size_t>(group)];
    static_cast<QHBoxLayout *>(holder->layout())->addWidget(widget, stretches ? 1 : 0);
}

/// The width of a line of the first groups.
int ButtonRow::widthOfFirst(std::size_t groups) const
{
    int width = m_grid->horizontalSpacing() * static_cast<int>(groups - 1);
    for (std::size_t group = 0; group < groups; ++group)
        width += m_groups[group]->minimumSizeHint().width();
    return width;
}

QSize ButtonRow::sizeHint() const
{
    return {widthOfFirst(m_groups.size()), QWidget::sizeHint().height()};
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
    std::size_t inFirstLine = m_groups.size();
    while (inFirstLine > 1 && widthOfFirst(inFirstLine) > width())
        --inFirstLine;
    if (inFirstLine == m_inFirstLine && m_grid->count() > 0)
        return;
    m_inFirstLine = inFirstLine;
    for (std::size_t group = 0; group < m_groups.size(); ++group) {
        const Place place = kPlaces[inFirstLine - 1][group];
        const bool isAlone = place.column == 0 && place.line > 0;
        m_grid->removeWidget(m_groups[group]);
        m_grid->addWidget(m_groups[group], place.line, place.column, 1, isAlone ? -1 : 1,
                          group == 0 ? Qt::Alignment() : Qt::AlignRight);
    }
}
