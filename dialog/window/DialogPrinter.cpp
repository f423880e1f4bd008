#include "dialog/cups/Certificates.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/job/PipeDocuments.h"
#include "dialog/window/DialogTabs.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/FirstSight.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/LayoutPane.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/PresetActions.h"
#include "dialog/window/PrinterPopUp.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/work/Sentences.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QFileInfo>
#include <QtCore/QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

/// What is offered after a fault: to do the same again, where it may come to another end.
QList<NoticeOffer> DialogWindow::offersAfter(FaultKind fault)
{
    switch (fault) {
    case FaultKind::NoPrinter:
    case FaultKind::Unreachable:
    case FaultKind::Silent:
    case FaultKind::NotFound:
    case FaultKind::Refused:
    case FaultKind::NeedsPassword:
        return {{u"retryButton"_s, tr("Retry"), [this] { retry(); }}};
    case FaultKind::Untrusted:
        return {{u"trustButton"_s, tr("Trust It"), [this] {
                     trustNextCertificate(nameOfServer(m_wishes.server));
                     retry();
                 }}};
    default:
        return {};
    }
}

/// What people read while the printer is looked for.
QString DialogWindow::waitFor(const PrinterSource &source)
{
    if (!source.ppdPath.isNull())
        return tr("Reading %1…").arg(QFileInfo(source.ppdPath).fileName());
    return source.queue.queue.isEmpty()
               ? tr("Looking for a printer…")
               : tr("Asking %1 about its settings…").arg(source.queue.queue);
}

/// Where nobody has named a printer, the dialog begins with the likeliest one of the server's.
void DialogWindow::choosePrinter()
{
    const PrinterSource open{m_wishes.server, {}, {}};
    beginSearch(open);
    m_controller.listPrinters(
        PrintController::Asking::Somebody, [this, open](const Result<QList<Destination>> &list) {
            if (list)
                m_header->printers()->setDestinations(*list);
            const Result<PrinterChoice> choice =
                list ? m_controller.choosePrinter(*list) : Result<PrinterChoice>(list.fault());
            if (!choice) {
                takePrinter(choice.fault());
                return;
            }
            m_choice = *choice;
            findPrinter({m_wishes.server, choice->queue, {}, usualStart()});
        });
}

void DialogWindow::findPrinter(const PrinterSource &source)
{
    beginSearch(source);
    m_controller.findPrinter(source,
                             [this](const Result<FoundPrinter> &found) { takePrinter(found); });
}

/// Opens the printer again with other settings.
void DialogWindow::startFrom(const QString &preset, const StartingSettings &start)
{
    PrinterSource source = job().source();
    source.queue.instance = preset;
    source.start = start;
    source.kept.reset();
    m_header->printers()->refreshPresets(); // it may be one of those that were changed
    closePrinter();
    findPrinter(source);
}

void DialogWindow::beginSearch(const PrinterSource &source)
{
    setState(State::Searching);
    forgetCondition();
    m_header->printers()->setCurrent(source.queue);
    tell(NoticeBar::Kind::Information, waitFor(source));
}

/// Does anew what has failed at the server.
void DialogWindow::retry()
{
    const PrinterSource source = job().source();
    if (m_state == State::Ready)
        print();
    else if (source.queue.queue.isEmpty())
        choosePrinter();
    else
        findPrinter(source);
}

void DialogWindow::takePrinter(const Result<FoundPrinter> &found)
{
    m_printerState = found ? Result<>() : found.fault();
    m_isExchanged = false; // it may have been told of the former one until now
    m_shortcomings = found ? found->shortcomings : QList<Fault>();
    m_startNotes = found ? found->notes : QStringList();
    if (found.faultKind() == FaultKind::PPD)
        m_outcome = found.fault();
    m_tabs->setEnabled(bool(found)); // before they have parts, each of whose controls would be told
    showPrinter();
    if (const QString outcome = exchangeOutcome(); !outcome.isNull())
        m_startNotes.prepend(outcome);
    m_standing = standing();
    setState(found ? State::Ready : State::NoPrinter);
    m_presets->show(m_state == State::Ready);
    tellStanding();
    const bool isFirst = !m_requestedSettingsAreMade;
    if (found)
        makeRequestedSettings();
    m_presets->confirm(m_state == State::Ready);
    m_events.skipChanges(); // nothing of this has the user done in the window
    if (m_state == State::Ready && !m_savedJob)
        m_undo->begin(isFirst ? m_controller.namedWishes().wanted : QList<RequestedChoice>());
    else if (m_state == State::NoPrinter || m_savedJob)
        m_undo->clear();
    if (const DialogTabs::Part *part = m_tabs->currentPart())
        fillPart(part->page); // it was filled before the settings were made that are wished
    watchPrinters();
}

/// The printer's name in the header, and its parts.
void DialogWindow::showPrinter()
{
    showName();
    buildParts();
    m_header->reload();
}

/// That of a queue has the preset in it.
void DialogWindow::showName()
{
    const PrinterSource &source = job().source();
    QString title;
    if (!source.ppdPath.isNull())
        title =
            job().session() ? ppdText(job().ppd()->nickname) : QFileInfo(source.ppdPath).fileName();
    m_header->printers()->setCurrent(source.queue, title);
}

/// What was wished, on the first printer that opens.
void DialogWindow::makeRequestedSettings()
{
    if (std::exchange(m_requestedSettingsAreMade, true))
        return;
    if (!m_wishes.panel.isNull() && !showPart(m_wishes.panel)) {
        endWithoutPanel();
        return;
    }
    m_settingState = m_controller.makeRequestedSettings();
    if (!m_settingState && job().source().start.kind == StartingSettings::Kind::LastUsed) {
        // What is asked for now counts more than what was used last.
        m_requestedSettingsAreMade = false;
        startFrom({}, {});
        return;
    }
    if (!m_wishes.paper.isNull() || !m_wishes.choices.empty()) {
        m_tabs->pageSetup()->reload();
        moveButtonsLast();
        m_tabs->layoutPane()->reload();
        m_header->reload();
    }
    // After what the picks among them have told.
    if (!m_settingState)
        QTimer::singleShot(0, this,
                           [this] { tell(NoticeBar::Kind::Warning, m_settingState.sentence()); });
}

/// A wrong word of the command line: nobody would look for the settings where they are not.
void DialogWindow::endWithoutPanel()
{
    const QString sentence = DialogTabs::isPartName(m_wishes.panel)
                                 ? tr("This printer has nothing for the part %1.")
                                 : tr("There is no panel %1.");
    m_settingState = Fault{FaultKind::Request, sentence.arg(m_wishes.panel)};
    m_outcome = m_settingState;
    if (!m_wishes.isPicture)
        QTimer::singleShot(0, this, &DialogWindow::reject);
}

/// What is told as long as it is true and nothing newer is to be told.
DialogWindow::Notice DialogWindow::standing()
{
    Notice missing = whatIsMissing();
    if (!m_choice || missing.kind != NoticeBar::Kind::Information)
        return missing;
    const QString chosen = choiceSentence(*m_choice);
    missing.sentence =
        missing.sentence.isNull() ? chosen : joinedSentences({chosen, missing.sentence});
    return missing;
}

DialogWindow::Notice DialogWindow::whatIsMissing()
{
    using Kind = NoticeBar::Kind;
    if (!m_printerState)
        return {Kind::Error, m_printerState.sentence(), offersAfter(m_printerState.fault().kind)};
    if (m_header->printers()->isCurrentGone())
        return {Kind::Warning, tr("The printer %1 is no longer on the print server. Choose another "
                                  "one; the settings of this job stay.")
                                   .arg(job().source().queue.queue)};
    if (m_isExchanged)
        return exchangeNotice();
    if (m_savedJob)
        return savedJobNotice();
    if (!job().session())
        return withoutPPD();
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

DialogWindow::Notice DialogWindow::withoutPPD() const
{
    const QString alone = tr("%1 It prints with the settings of this dialog alone.")
                              .arg(missingPPD(job().source().queue.queue));
    if (m_startNotes.isEmpty())
        return {NoticeBar::Kind::Information, alone};
    return {NoticeBar::Kind::Warning, joinedSentences({m_startNotes.constFirst(), alone})};
}

/// Lists the printers from now on, where there is a server that can be asked.
void DialogWindow::watchPrinters()
{
    const std::optional<FaultKind> fault = m_printerState.faultKind();
    const bool isReached = !fault || fault == FaultKind::PPD || fault == FaultKind::NotFound ||
                           fault == FaultKind::NoPrinter;
    const bool isFileAlone =
        !job().source().ppdPath.isNull() && job().source().queue.queue.isEmpty();
    if (!isReached || isFileAlone || m_wishes.isPicture)
        return;
    if (m_watch.hasBegun()) {
        askCondition();
        return;
    }
    m_header->printers()->setSearching(!m_choice);
    m_watch.begin(m_choice ? PrinterWatch::First::Later : PrinterWatch::First::Soon);
    if (m_choice) // otherwise it comes with the list
        QTimer::singleShot(kFirstSight, this, &DialogWindow::askCondition);
}

void DialogWindow::takeList(const Result<QList<Destination>> &list)
{
    if (list)
        m_header->printers()->setDestinations(*list);
    else
        m_header->printers()->setListFailed();
    askCondition();
    if (m_state != State::Ready || standing().sentence == m_standing.sentence)
        return;
    m_standing = standing();
    tellStanding();
}

void DialogWindow::closePrinter()
{
    removeParts();
    m_controller.closePrinter();
}
