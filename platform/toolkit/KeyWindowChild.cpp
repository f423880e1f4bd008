#include "platform/toolkit/KeyWindowChild.h"

#include "platform/toolkit/KeyWindow.h"

KeyWindowChild::KeyWindowChild(QWidget *window) : m_window(window)
{
    if (!window)
        return;
    m_formerParent = window->parentWidget();
    m_formerFlags = window->windowFlags();
    QWidget *parent = keyWindow();
    if (parent && parent != window)
        window->setParent(parent, m_formerFlags | Qt::Dialog);
}

KeyWindowChild::~KeyWindowChild()
{
    if (!m_window)
        return;
    m_window->hide();
    if (m_window->parentWidget() != m_formerParent)
        m_window->setParent(m_formerParent, m_formerFlags);
}
