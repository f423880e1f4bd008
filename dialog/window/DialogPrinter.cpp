#include "dialog/job/PipeDocuments.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/PrinterPopUp.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QFileInfo>
#include <QtCore/QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

/// What people read while the printer is looked for.
QString DialogWindow::waitFor(const PrinterSource &source)
{
    if (!source.ppdPath.isNull())
        return tr("Reading %1…").arg(QFileInfo(source.ppdPath).fileName());
    return source.queue.queue.isEmpty()
               ? tr("Looking for a printer…")
               : tr("Asking %1 about its settings…").arg(source.queue.queue);
}

void DialogWindow::findPrinter(const PrinterSource &source)
{
    setState(State::Searching);
    m_header->printers()->setCurrent(source.queue);
    tell(NoticeBar::Kind::Information, waitFor(source));
    m_controller.findPrinter(source,
                             [this](const Result<FoundPrinter> &found) { takePrinter(found); });
}

void DialogWindow::takePrinter(const Result<FoundPrinter> &found)
{
    m_printerState = found ? Result<>() : found.fault();
    m_shortcomings = found ? found->shortcomings : QList<Fault>();
    m_startNotes = found ? found->notes : QStringList();
    if (found.faultKind() == FaultKind::PPD)
        m_outcome = found.fault();
    showPrinter();
    if (!found)
        m_standing = {NoticeBar::Kind::Error, found.sentence()};
    else if (job().session())
        m_standing = whatIsMissing();
    else
        m_standing = {NoticeBar::Kind::Information,
                      tr("%1 It prints with the settings of this dialog alone.")
                          .arg(missingPPD(job().source().queue.queue))};
    setState(found ? State::Ready : State::NoPrinter);
    showPresets();
    tellStanding();
    if (found)
        makeRequestedSettings();
    confirmPreset();
    // Of a server that cannot be reached there is no list.
    const bool isReached = found || found.faultKind() == FaultKind::PPD ||
                           found.faultKind() == FaultKind::NotFound ||
                           found.faultKind() == FaultKind::NoPrinter;
    const bool isFileAlone =
        !job().source().ppdPath.isNull() && job().source().queue.queue.isEmpty();
    if (isReached && !isFileAlone)
        listPrinters();
}

/// The printer's name in the header, and its parts.
void DialogWindow::showPrinter()
{
    const PrinterSource &source = job().source();
    QString title;
    if (!source.ppdPath.isNull())
        title =
            job().session() ? ppdText(job().ppd()->nickname) : QFileInfo(source.ppdPath).fileName();
    m_header->printers()->setCurrent(source.queue, title);
    buildParts();
    m_header->reload();
}

/// What was wished, on the first printer that opens.
void DialogWindow::makeRequestedSettings()
{
    if (std::exchange(m_requestedSettingsAreMade, true))
        return;
    m_settingState = m_controller.makeRequestedSettings();
    if (!m_settingState && job().source().start.kind == StartingSettings::Kind::LastUsed) {
        // What is asked for now counts more than what was used last.
        m_requestedSettingsAreMade = false;
        startFrom({}, {});
        return;
    }
    if (!m_wishes.panel.isNull() && !showPart(m_wishes.panel) && m_settingState)
        m_settingState = Fault{FaultKind::Request, tr("There is no panel %1.").arg(m_wishes.panel)};
    if (!m_wishes.paper.isNull() || !m_wishes.choices.empty()) {
        m_pageSetup->reload();
        moveButtonsLast();
        m_header->reload();
    }
    // After what the picks among them have told.
    if (!m_settingState)
        QTimer::singleShot(0, this,
                           [this] { tell(NoticeBar::Kind::Warning, m_settingState.sentence()); });
}

DialogWindow::Notice DialogWindow::whatIsMissing() const
{
    using Kind = NoticeBar::Kind;
    if (!m_shortcomings.isEmpty())
        return {Kind::Warning, m_shortcomings.constFirst().sentence};
    if (!m_startNotes.isEmpty())
        return {Kind::Warning, m_startNotes.constFirst()};
    if (!m_documentState)
        return {Kind::Error, m_documentState.sentence()};
    if (hasPipes(job().documents()))
        return {Kind::Information, tr("Reading the document to its end…")};
    if (job().documents().empty())
        return {Kind::Information, tr("Choose a document to print.")};
    if (m_wishes.output.isNull() && job().source().queue.queue.isEmpty())
        return {Kind::Information, tr("No queue was chosen: the job can be saved to a file.")};
    return {};
}

void DialogWindow::listPrinters()
{
    if (std::exchange(m_printersAreListed, true) || m_wishes.isPicture)
        return;
    m_header->printers()->setSearching(true);
    m_controller.listPrinters([this](const Result<QList<Destination>> &list) {
        if (list)
            m_header->printers()->setDestinations(*list);
        else
            m_header->printers()->setListFailed();
    });
}

void DialogWindow::closePrinter()
{
    removeParts();
    m_controller.closePrinter();
}
