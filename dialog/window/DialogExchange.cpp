// The queue of the open printer was given another PPD, or other defaults, on its server.
#include "dialog/cups/QueuePPD.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/work/Sentences.h"

using namespace Qt::StringLiterals;

/// Somebody has changed the queue: its PPD, or what it is called.
void DialogWindow::lookForExchange()
{
    if (m_savedJob) // its settings are of no PPD
        return;
    m_controller.lookForExchange(
        [this, origin = m_controller.origin()](const Result<bool> &exchanged) {
            if (!exchanged || !*exchanged || origin != m_controller.origin())
                return;
            m_isExchanged = true;
            m_standing = standing();
            if (m_state == State::Ready)
                tellStanding();
        });
}

/// Not at once: the user may be in the midst of something.
DialogWindow::Notice DialogWindow::exchangeNotice()
{
    const QString reason = exchangedPPD(job().source().queue.queue).sentence;
    return {NoticeBar::Kind::Warning,
            joinedSentences({reason, tr("What is shown are the former settings.")}),
            {{u"reloadButton"_s, tr("Reload"), [this, reason] { openExchanged(reason); }}}};
}

/// Opens the printer as its server has it now, with what the user had settled.
void DialogWindow::openExchanged(const QString &reason)
{
    m_kept = keptSettings(job(), m_undo->origins());
    m_exchange = reason;
    PrinterSource source = job().source();
    source.kept = m_kept->options;
    closePrinter();
    findPrinter(source);
}

/// What has become of it; null where the PPD was not exchanged.
QString DialogWindow::exchangeOutcome()
{
    if (!job().source().kept)
        m_kept.reset(); // another printer was opened instead, or other settings
    if (!m_kept || !m_printerState)
        return {};
    const QString loss = lossSentence(*m_kept, job());
    m_kept.reset();
    if (!job().session())
        return m_exchange;
    return joinedSentences({m_exchange,
                            loss.isNull() ? tr("Your settings are as they were.") : loss,
                            tr("Look at the settings before you print.")});
}
