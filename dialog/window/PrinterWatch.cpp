#include "dialog/window/PrinterWatch.h"

#include "dialog/printing/PrintController.h"
#include "dialog/window/FirstSight.h"

#include <QtWidgets/QWidget>

namespace {

constexpr std::chrono::seconds kPause{5};

} // namespace

PrinterWatch::PrinterWatch(PrintController &controller, QWidget &window)
    : QObject(&window), m_controller(controller), m_window(window)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kPause);
    connect(&m_timer, &QTimer::timeout, this, &PrinterWatch::askAgain);
}

void PrinterWatch::begin(First first)
{
    m_hasBegun = true;
    if (first == First::Soon)
        QTimer::singleShot(kFirstSight, this, &PrinterWatch::ask);
    else
        m_timer.start();
}

void PrinterWatch::askAgain()
{
    if (m_window.isActiveWindow())
        ask();
    else
        m_timer.start();
}

void PrinterWatch::ask()
{
    m_controller.listPrinters(PrintController::Asking::Nobody,
                              [this](const Result<QList<Destination>> &list) {
                                  m_timer.start();
                                  Q_EMIT listed(list);
                              });
}
