#pragma once

#include "dialog/cups/Destinations.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

class CaptionLabel;
class PopUpButton;
class QHBoxLayout;
class QWidget;
class SearchablePopUp;

/// The pop-up of printers, each with its place and its state, and with a word on the chosen one
/// beside it. Until the server has answered it lists the chosen one alone and says that it
/// searches. A list that the user has open keeps its rows: newer ones come when it is closed.
class PrinterPopUp : public QObject
{
    Q_OBJECT

public:
    /// Pop-up and word are children of the parent: so is the label before them, which assistive
    /// technology looks for there.
    explicit PrinterPopUp(QWidget *parent);

    /// Both in a row, which the caller owns.
    QHBoxLayout *newRow() const;

    /// Shows the printer that is open; `title` for one that is no queue (a PPD file).
    void setCurrent(const QueueName &queue, const QString &title = QString());

    /// While the list is on its way.
    void setSearching(bool searching);

    void setDestinations(const QList<Destination> &destinations);

    /// Shows the presets that the user has by now, without waiting for the server's next list.
    void refreshPresets();

    /// How many jobs the queue of the printer that is open has.
    void setQueuedJobs(int count);

    /// Says that there is no list to be had.
    void setListFailed();

    /// Whether the server has listed the printer that is open, and does so no more.
    bool isCurrentGone() const { return m_wasListed && !current(); }

    PopUpButton *popup() const;

Q_SIGNALS:
    /// The user has picked a queue, perhaps the one that is open.
    void picked(const QueueName &queue);

private:
    const Destination *current() const;
    QString detailOf(const QString &key) const;
    QString wordOn(const Destination &printer) const;
    void fill();
    void tellState();

    SearchablePopUp *m_popup;
    CaptionLabel *m_state;
    QueueName m_current;
    QString m_currentTitle;
    QList<Destination> m_destinations;
    QHash<QString, qsizetype> m_indexOfKey; ///< in m_destinations, by textOf(Destination::name)
    int m_queuedJobs = 0;
    bool m_searching = false;
    bool m_listFailed = false;
    bool m_wasListed = false; ///< the printer that is open
};
