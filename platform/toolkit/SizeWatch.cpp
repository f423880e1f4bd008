#include "platform/toolkit/SizeWatch.h"

#include <QtGui/QResizeEvent>

namespace {

bool isNewHeight(const QEvent &event)
{
    if (event.type() != QEvent::Resize)
        return false;
    const auto &resize = static_cast<const QResizeEvent &>(event);
    return resize.size().height() != resize.oldSize().height();
}

} // namespace

SizeWatch::SizeWatch(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

bool SizeWatch::event(QEvent *event)
{
    // The view may be put into another window at any time before it is shown.
    if (event->type() == QEvent::Show) {
        followWindow();
        fire();
    }
    return QWidget::event(event);
}

void SizeWatch::followWindow()
{
    if (m_window == window())
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window();
    m_window->installEventFilter(this);
}

bool SizeWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && isNewHeight(*event) && isVisible())
        fire();
    return QWidget::eventFilter(watched, event);
}
