#include "dialog/window/DialogTabs.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/FeaturesPane.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/JobSummary.h"
#include "dialog/window/LayoutPane.h"
#include "dialog/window/Mnemonics.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/ScrolledBody.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/window/SummaryPart.h"

#include <QtGui/QScreen>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>

#include <algorithm>
#include <utility>

/// The tabs for the printer that is open now.
void DialogWindow::buildParts()
{
    removeParts();
    buildTabs();
    changePart();
    setHeight(std::max(height(), layout()->totalSizeHint().height()));
}

void DialogWindow::buildTabs()
{
    m_tabs->build(m_savedJob.has_value());
    m_header->showJobSettings(!m_savedJob);
    setTitleWithMnemonic(*m_print, printTitle());
    giveMnemonics(*m_tabs);
    fitToTexts();
}

void DialogWindow::removeParts()
{
    m_coversAreListed = false;
    m_tabs->removeParts();
}

void DialogWindow::changePart()
{
    const DialogTabs::Part *part = m_tabs->currentPart();
    if (!part)
        return;
    tellEvent(); // what the user has done before
    const bool wasMissing = m_tabs->isViewMissing();
    m_tabs->hidePanel();
    m_tabs->showPanel();
    fillPart(part->page);
    if (!part->panel)
        settleMnemonics(*part->page, mnemonicsIn(*this));
    m_notice->settleMnemonics();
    moveButtonsLast();
    if (m_tabs->isViewMissing() || wasMissing || !m_tabs->pageSetup()->isAcceptable() ||
        !m_tabs->features()->isAcceptable())
        tellStanding();
    fitToPart();
    m_events.noteOwn();
}

/// The dialog's own panes have something to show only when they come in front.
void DialogWindow::fillPart(const QWidget *page)
{
    if (page == m_tabs->pageSetup())
        m_tabs->pageSetup()->fill();
    if (page == m_tabs->features())
        m_tabs->features()->reload();
    if (page == m_tabs->layoutPane()) {
        m_tabs->layoutPane()->fill();
        listCoverPages();
    }
    if (page == m_tabs->summary())
        m_tabs->summary()->setSections(summarySections());
}

/// What a part has made of late has come behind the buttons in the tab order.
void DialogWindow::moveButtonsLast()
{
    for (QPushButton *button : {m_help, m_save, m_cancel, m_print}) {
        QWidget *last = previousInFocusChain();
        while (last->focusPolicy() == Qt::NoFocus && last != this)
            last = last->previousInFocusChain(); // the toolkit puts nothing behind such a one
        if (last != button)
            setTabOrder(last, button);
    }
}

/// The part that has come in front gets the room that it needs.
void DialogWindow::fitToPart()
{
    const DialogTabs::Part *part = m_tabs->currentPart();
    m_partHeight = part ? part->page->sizeHint().height() : 0;
    layout()->activate();
    if (!part)
        return;
    setWidth(width() + std::max(0, part->page->sizeHint().width() - part->page->width()));
    if (isVisible() && part->panel)
        setHeight(height() + std::max(0, m_partHeight - part->page->height()));
}

/// The view in front has grown or shrunk by itself: the window goes with it. Its panel may wait to
/// hear that the window has come to its size.
void DialogWindow::followView()
{
    const DialogTabs::Part *part = m_tabs->currentPart();
    if (!part || !part->panel || !job().session() || !job().session()->isRunning())
        return;
    const int wanted = part->page->sizeHint().height();
    const int change = wanted - m_partHeight;
    m_partHeight = wanted;
    layout()->activate();
    if (change < 0)
        setHeight(height() + std::max(change, wanted - part->page->height()));
    else if (wanted > part->page->height())
        setHeight(height() + wanted - part->page->height());
    job().session()->windowDidResize();
}

/// All there is, the titles of the tabs too, is there to be read, as far as the screen allows it.
void DialogWindow::fitToTexts()
{
    layout()->activate();
    const int tabs = m_tabs->tabBar()->sizeHint().width() - m_tabs->width();
    const int buttons = m_buttons->sizeHint().width() - m_buttons->width();
    const int head = m_head->sizeHint().width() - m_head->width();
    setWidth(width() + std::max({0, tabs, buttons, head}));
}

/// A picture has no screen.
QSize DialogWindow::mostSize() const
{
    return m_wishes.isPicture ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : screen()->availableSize();
}

void DialogWindow::setWidth(int width)
{
    const int most = mostSize().width();
    resize(std::max(this->width(), std::min(width, most)), height());
}

void DialogWindow::setHeight(int height)
{
    const int most = mostSize().height();
    resize(width(), std::min(height, most));
}

QList<SummarySection> DialogWindow::summarySections()
{
    if (m_savedJob)
        return savedJobSections();
    std::vector<const HostPanel *> panels;
    for (const DialogTabs::Part &part : m_tabs->parts())
        if (part.panel)
            panels.push_back(part.panel);
    QList<SummarySection> sections = summaryOf(job(), panels);
    m_undo->noteOwn(::settingState(job())); // the panels may have changed what is sent
    addOrigins(sections, job(), m_undo->origins());
    return sections;
}

/// Once for a printer, when the cover pages can be seen.
void DialogWindow::listCoverPages()
{
    if (job().source().queue.queue.isEmpty() || std::exchange(m_coversAreListed, true))
        return;
    m_controller.listCoverPages([this](const Result<QStringList> &covers) {
        if (covers)
            m_tabs->layoutPane()->setCoverPages(*covers);
    });
}
