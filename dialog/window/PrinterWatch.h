#pragma once

#include "dialog/cups/Destinations.h"
#include "dialog/work/Result.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

class PrintController;
class QWidget;

/// Keeps the list of a server's printers fresh while a window is in use: it is asked for anew some
/// seconds after each answer, unless the window is in the background. One question at a time, and
/// none on the window's thread.
class PrinterWatch : public QObject
{
    Q_OBJECT

public:
    /// Controller and window must outlive the watch.
    PrinterWatch(PrintController &controller, QWidget &window);

    enum class First { Soon, Later };

    /// Asks from now on, as soon as the window has been seen or after the first pause.
    void begin(First first);

    /// Whether it asks, or has been asking.
    bool hasBegun() const { return m_hasBegun; }

    /// The time from an answer to the next question; 5 seconds unless told otherwise.
    void setPause(std::chrono::milliseconds pause) { m_timer.setInterval(pause); }

Q_SIGNALS:
    void listed(const Result<QList<Destination>> &list);

private:
    void askAgain();
    void ask();

    PrintController &m_controller;
    QWidget &m_window;
    QTimer m_timer;
    bool m_hasBegun = false;
};
