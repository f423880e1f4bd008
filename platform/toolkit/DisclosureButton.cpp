#include "platform/toolkit/DisclosureButton.h"

#include <QtCore/QEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionToolButton>
#include <QtWidgets/QStylePainter>

DisclosureButton::DisclosureButton(QWidget *parent) : QToolButton(parent)
{
    setCheckable(true);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::toggled, this, &DisclosureButton::turnArrow);
    turnArrow();
}

void DisclosureButton::turnArrow()
{
    const auto folded = layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
    setArrowType(isChecked() ? Qt::DownArrow : folded);
}

QSize DisclosureButton::minimumSizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    return {side, side};
}

void DisclosureButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        turnArrow();
    QToolButton::changeEvent(event);
}

void DisclosureButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // The arrow tells the state; a sunken frame around it would only repeat it.
    option.state.setFlag(QStyle::State_On, false);
    QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
}
