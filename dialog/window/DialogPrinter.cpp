#include "dialog/cups/ServerConnection.h"
#include "dialog/replay/Recorder.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/PrinterPopUp.h"
#include "dialog/work/BackgroundCall.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QFileInfo>

#include <memory>
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
    m_notice->tell(NoticeBar::Kind::Information, waitFor(source));
    delete m_call;
    m_call = new BackgroundCall(
        this, kServerTimeout,
        [this, source](CallGuard &guard) -> BackgroundCall::Outcome {
            const auto fetched = std::make_shared<FetchedPrinter>(fetchPrinter(source, guard));
            return [this, source, fetched] { takePrinter(source, *fetched); };
        },
        [this, source] {
            FetchedPrinter none = givenUpPrinter(source);
            takePrinter(source, none);
        });
}

void DialogWindow::takePrinter(const PrinterSource &source, FetchedPrinter &fetched)
{
    PrinterSource found = source;
    found.queue = fetched.queue;
    m_header->printers()->setCurrent(found.queue);
    if (!fetched.ppdPath.isNull()) {
        openPPD(found, fetched);
        return;
    }
    const bool isUsable = fetched.ppd.answer.isGood() && !found.queue.queue.isEmpty();
    if (isUsable) {
        m_job.setPrinter(found,
                         {nullptr, applySavedOptions(nullptr, savedOptions(found.queue)), {}});
        m_standing = {NoticeBar::Kind::Information,
                      tr("%1 It prints with the settings of this dialog alone.")
                          .arg(fetched.ppd.answer.sentence)};
    } else {
        m_job.setPrinter(found, {});
        m_standing = {NoticeBar::Kind::Error, fetched.ppd.answer.isGood()
                                                  ? tr("There is no printer to print to.")
                                                  : fetched.ppd.answer.sentence};
    }
    buildParts();
    m_header->reload();
    setState(isUsable ? State::Ready : State::NoPrinter);
    tellStanding();
    if (isUsable || fetched.ppd.answer.fault == ServerFault::NotFound ||
        fetched.ppd.answer.isGood())
        listPrinters();
}

void DialogWindow::openPPD(const PrinterSource &source, FetchedPrinter &fetched)
{
    const QString path = fetched.ppdPath;
    SessionOptions options;
    options.ppdPath = path;
    options.bundlePath = m_line.plugIn;
    options.callObserver = [this](const HostCallback::Call &call) { noteAnswer(call); };
    OpenedPrinter printer = openPrinter(options, std::move(fetched.opened),
                                        savedOptions(source.queue), [this](HostSession &session) {
                                            if (m_recorder && m_recordingError.isNull())
                                                m_recorder->attach(session, &m_recordingError);
                                        });
    const bool isFile = !source.ppdPath.isNull();
    const QString title =
        printer.session ? ppdText(printer.session->ppd()->nickname) : QFileInfo(path).fileName();
    m_header->printers()->setCurrent(source.queue, isFile ? title : QString());
    const QString error =
        isFile ? printer.error : errorOfQueue(printer.error, path, source.queue.queue);
    const bool isOpen = printer.session != nullptr;
    m_job.setPrinter(source, std::move(printer));
    buildParts();
    m_header->reload();
    m_standing = isOpen ? whatIsMissing() : Notice{NoticeBar::Kind::Error, error};
    if (!isOpen)
        m_exitStatus = ExitStatus::Usage;
    setState(isOpen ? State::Ready : State::NoPrinter);
    tellStanding();
    if (isOpen)
        makeRequestedSettings();
    if (!source.queue.queue.isEmpty())
        listPrinters();
}

/// What the command line asks for, on the first printer that opens.
void DialogWindow::makeRequestedSettings()
{
    if (std::exchange(m_requestedSettingsAreMade, true))
        return;
    if (!m_line.paper.isNull())
        m_settingError = choosePaper(m_job, m_line.paper);
    for (const RequestedChoice &wanted : m_line.choices) {
        const QString error = makeSetting(m_job, wanted.keyword, wanted.choice, m_refusal);
        if (m_settingError.isNull())
            m_settingError = error;
    }
    if (!m_line.panel.isNull() && !showPart(m_line.panel) && m_settingError.isNull())
        m_settingError = tr("There is no panel %1.").arg(m_line.panel);
    if (!m_line.paper.isNull() || !m_line.choices.empty()) {
        m_pageSetup->reload();
        moveButtonsLast();
        m_header->reload();
    }
    if (!m_settingError.isNull())
        m_notice->tell(NoticeBar::Kind::Warning, m_settingError);
}

DialogWindow::Notice DialogWindow::whatIsMissing() const
{
    using Kind = NoticeBar::Kind;
    if (m_job.session() && m_job.session()->plugInFault())
        return {Kind::Warning, m_job.session()->plugInFault()->sentence};
    const bool hasPanels =
        std::ranges::any_of(m_parts, [](const Part &part) { return part.panel; });
    if (m_job.session() && !hasPanels)
        return {Kind::Information, tr("This printer has none of the settings that the panels are "
                                      "for. It prints with the settings of this dialog alone.")};
    if (!m_documentError.isNull())
        return {Kind::Error, m_documentError};
    if (hasPipes(m_job.documents()))
        return {Kind::Information, tr("Reading the document to its end…")};
    if (m_job.documents().empty())
        return {Kind::Information, tr("Choose a document to print.")};
    if (m_line.output.isNull() && m_job.source().queue.queue.isEmpty())
        return {Kind::Information, tr("No queue was chosen: the job can be saved to a file.")};
    return {};
}

void DialogWindow::listPrinters()
{
    if (std::exchange(m_printersAreListed, true) || !m_line.screenshot.isNull())
        return;
    m_header->printers()->setSearching(true);
    new BackgroundCall(
        this, kServerTimeout,
        [this, server = m_line.server](CallGuard &guard) -> BackgroundCall::Outcome {
            const DestinationList list = listDestinations(server, guard);
            return [this, list] {
                if (list.answer.isGood())
                    m_header->printers()->setDestinations(list.destinations);
                else
                    m_header->printers()->setListFailed();
            };
        },
        [this] { m_header->printers()->setListFailed(); });
}

void DialogWindow::closePrinter()
{
    removeParts();
    m_job.closePrinter();
}
