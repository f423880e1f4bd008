// What the printer has left and what waits for it: asked for when it was found, and as long as the
// window is in use.
#include "dialog/printing/PrinterDoubts.h"
#include "dialog/window/DialogTabs.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/PrinterPopUp.h"

#include <QtCore/QDateTime>

void DialogWindow::askCondition()
{
    const QueueName queue = job().source().queue;
    if (queue.queue.isEmpty())
        return;
    m_controller.askCondition([this, queue](const Result<PrinterCondition> &condition) {
        const bool isOpen = m_state != State::Searching && job().source().queue == queue;
        if (condition && isOpen && m_condition != *condition)
            takeCondition(*condition);
    });
}

void DialogWindow::takeCondition(const PrinterCondition &condition)
{
    const QStringList toldDoubts = printerDoubts();
    const int parts = m_tabs->count();
    // The first one comes after the PPD, and may be of another one already.
    if (m_condition ? condition.changeTime != m_condition->changeTime
                    : condition.changeTime >= m_searchBegan)
        lookForExchange();
    m_condition = condition;
    m_header->printers()->setQueuedJobs(condition.queuedJobs);
    m_tabs->showSupplies(condition);
    if (m_tabs->count() != parts) {
        fitToTexts();
        moveButtonsLast();
    }
    if (m_state == State::Ready && printerDoubts() != toldDoubts)
        tellStanding();
}

void DialogWindow::forgetCondition()
{
    m_condition.reset();
    m_searchBegan = QDateTime::currentSecsSinceEpoch();
    m_header->printers()->setQueuedJobs(0);
}

/// Of a saved job nobody knows what it needs.
QStringList DialogWindow::printerDoubts() const
{
    return m_condition && !m_savedJob ? doubtsAboutPrinter(job(), *m_condition) : QStringList();
}
