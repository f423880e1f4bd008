#pragma once

#include "platform/toolkit/PopUpButton.h"

#include <QtCore/QPointer>

class DetailDelegate;
class SearchList;

/// A pop-up button whose rows show their details (PopUpButton::setDetails()). When there are more
/// than ten, its list is searched by typing, also while it is closed.
class SearchablePopUp : public PopUpButton
{
    Q_OBJECT

public:
    explicit SearchablePopUp(QWidget *parent = nullptr);

    /// Whether the user has the list open: its rows must stay where they are.
    bool isListOpen() const;

    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    void listClosed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isSearched() const;
    void openSearch(const QString &typed);

    DetailDelegate *m_delegate;
    SearchList *m_search = nullptr; // null before the first search
    QPointer<QWidget> m_list;       // the short list's window; null before it was first open
};
