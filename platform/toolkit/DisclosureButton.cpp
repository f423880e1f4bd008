#include "platform/toolkit/DisclosureButton.h"

#include "platform/toolkit/CaptionLabel.h"

#include <QtCore/QEvent>
#include <QtGui/QKeySequence>
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

CaptionLabel *DisclosureButton::caption() const
{
    const bool hasOne = parentWidget() && !m_caption.isEmpty();
    return hasOne ? parentWidget()->findChild<CaptionLabel *>(m_caption) : nullptr;
}

void DisclosureButton::setMnemonic(const QString &titled)
{
    setShortcut(QKeySequence::mnemonic(titled));
    if (CaptionLabel *label = caption())
        label->setMnemonic(titled);
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
