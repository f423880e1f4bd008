#include "dialog/job/JobLayout.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/FeaturePicks.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/FeaturesPane.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/LayoutPane.h"
#include "dialog/window/Mnemonics.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/PanelPane.h"
#include "dialog/window/ScrolledBody.h"
#include "dialog/window/SentSettings.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QSignalBlocker>
#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPageSetup = "setup"_L1;
constexpr auto kFeatures = "features"_L1;
constexpr auto kLayout = "layout"_L1;
constexpr auto kSummary = "summary"_L1;

/// Whether the panel has anything to show for this PPD.
bool hasKeywords(const HostPanel &panel)
{
    return !panel.panel->supportedPPDOptionKeys().value_or(QStringList()).isEmpty();
}

QString tabTitle(const QString &text)
{
    return withoutMnemonic(displayText(text));
}

} // namespace

/// The tabs for the printer that is open now, the first panel in front.
void DialogWindow::buildParts()
{
    removeParts();
    const QSignalBlocker quiet(m_tabs);
    m_pageSetup->reload();
    m_header->showJobSettings(!m_savedJob);
    if (!m_savedJob) {
        m_parts.push_back({kPageSetup, m_pageSetup, nullptr});
        m_tabs->addTab(m_pageSetup, tr("Page Setup"));
    }
    if (job().session() && !m_savedJob)
        for (const HostPanel &panel : job().session()->panels()) {
            if (!hasKeywords(panel))
                continue;
            auto *pane = new PanelPane(m_tabs);
            connect(pane, &PanelPane::viewResized, this,
                    [this] { QTimer::singleShot(0, this, &DialogWindow::followView); });
            m_parts.push_back({panel.name, pane, &panel});
            m_tabs->addTab(pane, tabTitle(panel.panel->panelName()));
        }
    if (!m_savedJob && !featuresOf(job()).isEmpty()) {
        m_parts.push_back({kFeatures, m_features, nullptr});
        m_tabs->addTab(m_features, tr("Printer Features"));
    }
    if (!m_savedJob) {
        m_layout->reload();
        m_parts.push_back({kLayout, m_layout, nullptr});
        m_tabs->addTab(m_layout, tabTitle(tr("Layout & Job")));
    }
    m_parts.push_back({kSummary, m_summary, nullptr});
    giveAccessibleName(m_summary, tr("Summary"));
    m_tabs->addTab(m_summary, tr("Summary"));
    setTitleWithMnemonic(*m_print, printTitle());
    giveMnemonics(*m_tabs);
    fitToTexts();
    m_tabs->setCurrentIndex(m_parts.size() > 1 && m_parts[1].panel ? 1 : 0);
    changePart();
    setHeight(std::max(height(), layout()->totalSizeHint().height()));
}

void DialogWindow::removeParts()
{
    m_coversAreListed = false;
    m_layout->setCoverPages({});
    const QSignalBlocker quiet(m_tabs);
    m_shownPanel = nullptr;
    m_tabs->clear();     // the pages themselves stay
    m_features->clear(); // before its PPD goes
    for (const Part &part : m_parts)
        if (part.panel)
            delete part.page; // gives the view back to its panel
    m_parts.clear();
}

const DialogWindow::Part *DialogWindow::currentPart() const
{
    const auto found = std::ranges::find(m_parts, m_tabs->currentWidget(), &Part::page);
    return found == m_parts.end() ? nullptr : &*found;
}

bool DialogWindow::showPart(const QString &name)
{
    const auto found = std::ranges::find(m_parts, name, &Part::name);
    if (name.isEmpty() || found == m_parts.end())
        return false;
    m_tabs->setCurrentWidget(found->page);
    return true;
}

QWidget *DialogWindow::shownPart() const
{
    const auto *pane = qobject_cast<PanelPane *>(m_tabs->currentWidget());
    return pane && pane->view() ? pane->view() : m_tabs->currentWidget();
}

void DialogWindow::changePart()
{
    const Part *part = currentPart();
    if (!part)
        return;
    tellEvent(); // what the user has done before
    hideShownPanel();
    const bool wasMissing = std::exchange(m_viewIsMissing, false);
    if (part->panel) {
        m_shownPanel = part->panel;
        QWidget *view = job().session()->show(*part->panel);
        if (view)
            giveCaptionMnemonics(*view, mnemonicsIn(*this));
        static_cast<PanelPane *>(part->page)->setView(view);
        m_viewIsMissing = !view;
    }
    if (part->page == m_features)
        m_features->reload();
    if (part->page == m_layout)
        listCoverPages();
    if (part->page == m_summary)
        m_summary->setSections(summarySections());
    if (!part->panel)
        settleMnemonics(*part->page, mnemonicsIn(*this));
    moveButtonsLast();
    if (m_viewIsMissing || wasMissing || !m_pageSetup->isAcceptable() ||
        !m_features->isAcceptable())
        tellStanding();
    fitToPart();
    noteOwnEvent();
}

/// What a part has made of late has come behind the buttons in the tab order.
void DialogWindow::moveButtonsLast()
{
    for (QPushButton *button : {m_help, m_save, m_cancel, m_print})
        if (QWidget *last = previousInFocusChain(); last != button)
            setTabOrder(last, button);
}

void DialogWindow::hideShownPanel()
{
    if (m_shownPanel) {
        // A panel may read the ticket again behind its user's back: for the summary, say.
        job().session()->save(*m_shownPanel);
        job().session()->hide(*m_shownPanel);
    }
    m_shownPanel = nullptr;
}

/// The part that has come in front gets the height that it needs.
void DialogWindow::fitToPart()
{
    const Part *part = currentPart();
    m_partHeight = part ? part->page->sizeHint().height() : 0;
    layout()->activate();
    if (!part || !part->panel)
        return;
    setWidth(width() + std::max(0, part->page->sizeHint().width() - part->page->width()));
    if (isVisible())
        setHeight(height() + std::max(0, m_partHeight - part->page->height()));
}

/// The view in front has grown or shrunk by itself: the window goes with it. Its panel may wait to
/// hear that the window has come to its size.
void DialogWindow::followView()
{
    const Part *part = currentPart();
    if (!part || !part->panel || !job().session() || !job().session()->isRunning())
        return;
    const int wanted = part->page->sizeHint().height();
    const int change = wanted - m_partHeight;
    m_partHeight = wanted;
    layout()->activate();
    if (change < 0)
        setHeight(height() + std::max(change, m_body->lackingSize().height()));
    else if (wanted > part->page->height())
        setHeight(height() + wanted - part->page->height());
    job().session()->windowDidResize();
}

/// All there is, the titles of the tabs too, is there to be read, as far as the screen allows it.
void DialogWindow::fitToTexts()
{
    layout()->activate();
    const int tabs = m_tabs->tabBar()->sizeHint().width() - m_tabs->width();
    const int buttons = m_buttons->sizeHint().width() - m_body->width();
    setWidth(width() + std::max({0, tabs, buttons, m_body->lackingSize().width()}));
}

void DialogWindow::setWidth(int width)
{
    const int most = screen()->availableGeometry().width();
    resize(std::max(this->width(), std::min(width, most)), height());
}

void DialogWindow::setHeight(int height)
{
    const int most = screen()->availableGeometry().height();
    resize(width(), std::min(height, most));
}

QList<SummarySection> DialogWindow::summarySections()
{
    if (m_savedJob)
        return savedJobSections();
    QList<SummarySection> sections;
    QList<PanelSummary> told;
    for (const Part &part : m_parts) {
        if (!part.panel)
            continue;
        PDEPanel &panel = *part.panel->panel;
        const QVariantMap info = job().session()->summary(*part.panel);
        told += {panel.supportedPPDOptionKeys().value_or(QStringList()), info};
        sections += sectionOf(panel.panelName(), info);
    }
    // Panels may change what is sent while they sum it up.
    sections.prepend(ownSection());
    sections += layoutSection();
    sections += SummarySection{tr("Also Sent"), linesOfTheRest(job(), told)};
    return sections;
}

SummarySection DialogWindow::ownSection() const
{
    const HostSettings &settings = job().settings();
    SummarySection own{tr("Page Setup"), {}};
    if (const std::optional<PMPaper> sheet = job().sheet())
        own.lines += {tr("Paper in the Printer"), paperText(job().ppd(), *sheet)};
    if (const std::optional<PMPaper> page = job().documentPage())
        own.lines += {tr("Document Page"), paperText(job().ppd(), *page)};
    own.lines += {tr("Scaling"), scalingTitle(settings.scaling, job().scalingCase())};
    const bool isLandscape = job().orientation() == PMOrientation::Landscape;
    own.lines += {tr("Orientation"), isLandscape ? tr("Landscape") : tr("Portrait")};
    own.lines += {tr("Copies"), QString::number(settings.copies)};
    own.lines += {tr("Pages"), settings.pageRanges.isEmpty() ? tr("All") : settings.pageRanges};
    for (const QString &keyword : job().ownKeywords()) {
        ppd_option_t *option = findOption(job().ppd(), keyword);
        const ppd_choice_t *choice = findChoice(option, markedChoice(job().ppd(), keyword));
        if (choice)
            own.lines += {ppdText(option->text), ppdText(choice->text)};
    }
    if (job().offersColorMatching()) {
        const bool byPrinter = job().colorMatching() == PrintJob::ColorMatching::Printer;
        own.lines +=
            {tr("Color Management"), byPrinter ? tr("By the Printer") : tr("By the Application")};
    }
    return own;
}

SummarySection DialogWindow::layoutSection() const
{
    SummarySection section{tr("Layout & Job"), {}};
    if (!job().ownTitle().isEmpty())
        section.lines += {tr("Job Title"), job().ownTitle()};
    for (const LayoutSetting &setting : layoutSettings())
        if (const QString &value = job().settings().layout.*setting.value; !value.isEmpty())
            section.lines += {layoutTitle(setting), layoutText(setting, value)};
    return section;
}

/// Once for a printer, when the cover pages can be seen.
void DialogWindow::listCoverPages()
{
    if (job().source().queue.queue.isEmpty() || std::exchange(m_coversAreListed, true))
        return;
    m_controller.listCoverPages([this](const Result<QStringList> &covers) {
        if (covers)
            m_layout->setCoverPages(*covers);
    });
}
