#include "dialog/window/ScrolledBody.h"

#include "platform/toolkit/PanelPoint.h"

#include <QtCore/QEvent>

namespace {

// On a very small screen. Points.
constexpr int kLeastBodyWidth = 200;
constexpr int kLeastBodyHeight = 100;

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

QSize ScrolledBody::lackingSize() const
{
    return widget()->minimumSizeHint() - size();
}

QSize ScrolledBody::sizeHint() const
{
    return widget() ? widget()->sizeHint() : QScrollArea::sizeHint();
}

QSize ScrolledBody::minimumSizeHint() const
{
    return sizeHint().boundedTo({toPixels(kLeastBodyWidth), toPixels(kLeastBodyHeight)});
}

/// A scroll area tells nobody that its content wants another size.
bool ScrolledBody::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}
