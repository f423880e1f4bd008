#include "dialog/window/PanelPane.h"

#include "dialog/window/ViewWidth.h"
#include "platform/toolkit/PanelPoint.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

namespace {

// On a very small screen. Points.
constexpr int kLeastViewWidth = 200;
constexpr int kLeastViewHeight = 34;
constexpr int kTopMargin = 8;

} // namespace

PanelPane::PanelPane(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // it scrolls to the control that has it
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setViewportMargins(0, kTopMargin, 0, 0);
    // The tab's own background lies behind the view.
    viewport()->setAutoFillBackground(false);
}

PanelPane::~PanelPane()
{
    releaseView();
}

void PanelPane::setView(QWidget *view)
{
    if (view != m_view)
        takeView(view);
    if (view)
        fitWidth(*view);
    updateGeometry();
}

void PanelPane::takeView(QWidget *view)
{
    releaseView();
    m_view = view;
    if (!view)
        return;
    setWidget(view);
    view->setAutoFillBackground(false);
    view->show();
    view->installEventFilter(this);
    for (QWidget *part : view->findChildren<QWidget *>())
        part->installEventFilter(this);
}

void PanelPane::releaseView()
{
    if (!m_view)
        return;
    m_view->removeEventFilter(this);
    for (QWidget *part : m_view->findChildren<QWidget *>())
        part->removeEventFilter(this);
    m_view->hide();
    takeWidget()->setParent(nullptr);
    m_view = nullptr;
}

QSize PanelPane::sizeHint() const
{
    const QSize view = m_view ? m_view->size() : QSize(0, 0);
    // Beside a bar that scrolls it up and down nothing is to be scrolled to the side.
    return view + QSize(verticalScrollBar()->sizeHint().width(), 2 * kTopMargin);
}

QSize PanelPane::minimumSizeHint() const
{
    return sizeHint().boundedTo({toPixels(kLeastViewWidth), toPixels(kLeastViewHeight)});
}

/// A pop-up makes its list, a window of its own, when that is first opened.
void PanelPane::watchList(QWidget *list, QEvent *event)
{
    auto *popup = qobject_cast<PopUpButton *>(list->parent());
    if (!popup || list->windowType() != Qt::Popup) // a tip has the pop-up for its parent, too
        return;
    if (event->type() == QEvent::Show)
        Q_EMIT listOpened(popup);
    else if (event->type() == QEvent::Hide)
        Q_EMIT listClosed();
}

bool PanelPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded && qobject_cast<PopUpButton *>(watched))
        static_cast<QChildEvent *>(event)->child()->installEventFilter(this);
    else if (watched->isWidgetType())
        watchList(static_cast<QWidget *>(watched), event);
    if (watched == m_view && event->type() == QEvent::Resize) {
        updateGeometry();
        Q_EMIT viewResized();
    }
    // Of what is switched off, too; fields for text have a menu of their own.
    if (event->type() == QEvent::ContextMenu && !qobject_cast<QLineEdit *>(watched)) {
        Q_EMIT explanationWanted(static_cast<QWidget *>(watched),
                                 static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    if (event->type() == QEvent::ToolTip)
        Q_EMIT tipWanted(static_cast<QWidget *>(watched),
                         static_cast<QHelpEvent *>(event)->globalPos());
    return QScrollArea::eventFilter(watched, event);
}
