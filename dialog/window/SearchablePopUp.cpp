#include "dialog/window/SearchablePopUp.h"

#include "dialog/window/DetailDelegate.h"
#include "dialog/window/SearchList.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>

namespace {

constexpr int kMostUnsearched = 10; // rows that can be taken in at a glance

} // namespace

SearchablePopUp::SearchablePopUp(QWidget *parent)
    : PopUpButton(parent), m_delegate(new DetailDelegate(this))
{}

bool SearchablePopUp::isSearched() const
{
    return count() > kMostUnsearched;
}

bool SearchablePopUp::isListOpen() const
{
    return (m_list && m_list->isVisible()) || (m_search && m_search->isVisible());
}

void SearchablePopUp::showPopup()
{
    if (isSearched()) {
        openSearch(QString());
        return;
    }
    if (!m_list) {
        // The list comes into being here, not when the dialog does.
        setItemDelegate(m_delegate);
        m_list = view()->window();
        m_list->installEventFilter(this);
    }
    PopUpButton::showPopup();
}

void SearchablePopUp::hidePopup()
{
    if (m_search)
        m_search->close();
    PopUpButton::hidePopup();
}

void SearchablePopUp::openSearch(const QString &typed)
{
    if (!m_search) {
        m_search = new SearchList(model(), m_delegate, this);
        connect(m_search, &SearchList::picked, this, &PopUpButton::pick);
        connect(m_search, &SearchList::closed, this, &SearchablePopUp::listClosed);
    }
    m_search->openAt(*this, currentIndex(), typed);
}

void SearchablePopUp::keyPressEvent(QKeyEvent *event)
{
    const QString typed = event->text();
    const bool isWord = !typed.isEmpty() && typed[0].isLetterOrNumber() &&
                        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (isSearched() && isWord)
        openSearch(typed);
    else
        PopUpButton::keyPressEvent(event);
}

bool SearchablePopUp::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::Hide)
        Q_EMIT listClosed();
    return PopUpButton::eventFilter(watched, event);
}
