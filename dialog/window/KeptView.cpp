#include "dialog/window/KeptView.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/DialogTabs.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace {

/// Of the part in front, which is scrolled itself or has something in it that is; null without one.
QScrollBar *scrollBarOf(const DialogTabs &tabs)
{
    const QWidget *part = tabs.currentWidget();
    const auto *area = qobject_cast<const QScrollArea *>(part);
    if (!area && part)
        area = part->findChild<QScrollArea *>();
    return area ? area->verticalScrollBar() : nullptr;
}

const QAbstractButton *disclosureOf(const HostPanel &panel)
{
    return panel.controls ? qobject_cast<const QAbstractButton *>(
                                controlNamed(*panel.controls, panel.controls->disclosureName()))
                          : nullptr;
}

} // namespace

KeptView::KeptView(QWidget &window, const DialogTabs &tabs, const PrintJob &job)
    : m_window(window), m_tabs(tabs), m_focus(window.focusWidget())
{
    window.setUpdatesEnabled(false);
    if (const QScrollBar *bar = scrollBarOf(tabs))
        m_scrolled = bar->value();
    if (m_focus && tabs.currentWidget() && tabs.currentWidget()->isAncestorOf(m_focus)) {
        m_focusInPart = m_focus->objectName();
        m_focus->clearFocus(); // nothing else is to have it meanwhile
        m_focus = nullptr;
    }
    if (!job.session())
        return;
    for (const HostPanel &panel : job.session()->panels())
        if (const QAbstractButton *disclosure = disclosureOf(panel))
            m_folds.insert(panel.name, disclosure->isChecked());
    for (const QListWidget *list : partsOfViews<QListWidget>(*job.session()))
        m_rows.insert(list->objectName(), list->currentRow());
}

void KeptView::unfold(const HostSession &session) const
{
    for (const HostPanel &panel : session.panels())
        if (disclosureOf(panel) && m_folds.contains(panel.name))
            static_cast<void>(foldSection(*panel.controls, m_folds.value(panel.name)));
    for (QListWidget *list : partsOfViews<QListWidget>(session))
        if (const auto row = m_rows.constFind(list->objectName()); row != m_rows.constEnd())
            list->setCurrentRow(*row);
}

KeptView::~KeptView()
{
    QWidget *part = m_tabs.currentWidget();
    QWidget *focus = m_focus;
    if (part && !m_focusInPart.isEmpty())
        focus = part->findChild<QWidget *>(m_focusInPart);
    if (focus)
        focus->setFocus();
    if (QScrollBar *bar = scrollBarOf(m_tabs))
        bar->setValue(m_scrolled);
    m_window.setUpdatesEnabled(true);
}
