#pragma once

#include "dialog/cups/Destinations.h"

#include <QtWidgets/QWidget>

class PopUpButton;
class QLabel;

/// The pop-up of printers, with a word on the chosen one. Until the server has answered it lists
/// the chosen one alone and says that it searches.
class PrinterPopUp : public QWidget
{
    Q_OBJECT

public:
    explicit PrinterPopUp(QWidget *parent = nullptr);

    /// Shows the printer that is open; `title` for one that is no queue (a PPD file).
    void setCurrent(const QueueName &queue, const QString &title = QString());

    /// While the list is on its way.
    void setSearching(bool searching);

    void setDestinations(const QList<Destination> &destinations);

    /// Says that there is no list to be had.
    void setListFailed();

    PopUpButton *popup() const { return m_popup; }

Q_SIGNALS:
    /// The user has picked a queue, perhaps the one that is open.
    void picked(const QueueName &queue);

private:
    void fill();
    void tellState();

    PopUpButton *m_popup;
    QLabel *m_state;
    QueueName m_current;
    QString m_currentTitle;
    QList<Destination> m_destinations;
    bool m_searching = false;
    bool m_listFailed = false;
};
