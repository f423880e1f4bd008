#include "dialog/window/ScrolledBody.h"

#include "platform/toolkit/PanelPoint.h"

#include <QtCore/QEvent>
#include <QtGui/QResizeEvent>

namespace {

// On a very small screen. Points.
constexpr int kLeastBodyWidth = 200;
constexpr int kLeastBodyHeight = 20;

} // namespace

ScrolledBody::ScrolledBody(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // it scrolls to the control that has it
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
}

void ScrolledBody::setContent(QWidget *content)
{
    setWidget(content);
    content->setAutoFillBackground(false);
}

QSize ScrolledBody::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    QSize size = widget()->sizeHint();
    // A layout takes a height for the width for one that cannot be less.
    if (width() < size.width() && widget()->hasHeightForWidth())
        size.setHeight(widget()->heightForWidth(width()));
    return size;
}

QSize ScrolledBody::minimumSizeHint() const
{
    return sizeHint().boundedTo({toPixels(kLeastBodyWidth), toPixels(kLeastBodyHeight)});
}

void ScrolledBody::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (event->oldSize().width() != width() && widget() && widget()->hasHeightForWidth())
        updateGeometry();
}

/// A scroll area tells nobody that its content wants another size.
bool ScrolledBody::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}
