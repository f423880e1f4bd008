#include "dialog/window/PanelPane.h"

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

namespace {

constexpr int kLeastHeight = 80; // of a pane on a very small screen
constexpr int kTopMargin = 8;

} // namespace

PanelPane::PanelPane(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // it scrolls to the control that has it
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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
    if (view == m_view)
        return;
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
    updateGeometry();
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
    return view + QSize(0, 2 * kTopMargin);
}

QSize PanelPane::minimumSizeHint() const
{
    return {sizeHint().width(), std::min(sizeHint().height(), kLeastHeight)};
}

bool PanelPane::eventFilter(QObject *watched, QEvent *event)
{
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
    return QScrollArea::eventFilter(watched, event);
}
