#include "dialog/window/DialogTabs.h"

#include "dialog/cups/PrinterCondition.h"
#include "dialog/printing/FeaturePicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/PrinterDoubts.h"
#include "dialog/window/FeaturesPane.h"
#include "dialog/window/LayoutPane.h"
#include "dialog/window/Mnemonics.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/PanelPane.h"
#include "dialog/window/SummaryPart.h"
#include "dialog/window/SuppliesPane.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPageSetup = "setup"_L1;
constexpr auto kFeatures = "features"_L1;
constexpr auto kLayout = "layout"_L1;
constexpr auto kSummary = "summary"_L1;
constexpr auto kSupplies = "supplies"_L1;

/// Whether the panel has anything to show for this PPD.
bool hasKeywords(const HostPanel &panel)
{
    return !panel.panel->supportedPPDOptionKeys().value_or(QStringList()).isEmpty();
}

} // namespace

DialogTabs::DialogTabs(PrintJob &job, QWidget *parent)
    : QTabWidget(parent),
      m_job(job),
      m_all(new QToolButton(this)),
      m_pageSetup(new PageSetupPane(job, this)),
      m_features(new FeaturesPane(job, this)),
      m_layout(new LayoutPane(job, this)),
      m_summary(new SummaryPart(this))
{
    setObjectName(u"parts"_s);
    m_all->setObjectName(u"allPartsButton"_s);
    m_all->setFocusPolicy(Qt::TabFocus);
    m_all->setArrowType(Qt::DownArrow);
    giveAccessibleName(m_all, tr("All Parts"));
    m_all->hide();
    connect(m_all, &QToolButton::clicked, this, &DialogTabs::listParts);
    connect(this, &QTabWidget::currentChanged, this, [this] {
        if (const Part *part = currentPart())
            m_chosen = part->name;
    });
    for (QWidget *pane : {static_cast<QWidget *>(m_pageSetup), static_cast<QWidget *>(m_features),
                          static_cast<QWidget *>(m_layout), static_cast<QWidget *>(m_summary)})
        pane->hide(); // a tab only where there is something to show
}

bool DialogTabs::event(QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        showAllButton(tabBar()->sizeHint().width() > width());
    return QTabWidget::event(event);
}

/// A corner keeps the room of a button that is hidden.
void DialogTabs::showAllButton(bool isShown)
{
    if (isShown == (cornerWidget() != nullptr))
        return;
    setCornerWidget(isShown ? m_all : nullptr);
    m_all->setVisible(isShown);
}

void DialogTabs::listParts()
{
    auto *list = new QMenu(m_all);
    list->setObjectName(u"allParts"_s);
    list->setAttribute(Qt::WA_DeleteOnClose);
    for (int index = 0; index < count(); ++index) {
        QAction *part = list->addAction(tabText(index));
        part->setCheckable(true);
        part->setChecked(index == currentIndex());
        connect(part, &QAction::triggered, this, [this, index] { setCurrentIndex(index); });
    }
    list->popup(m_all->mapToGlobal(QPoint(0, m_all->height())));
}

void DialogTabs::addPart(const QString &name, QWidget *page, const QString &title,
                         const HostPanel *panel)
{
    m_parts.push_back({name, page, panel});
    addTab(page, withoutMnemonic(displayText(title)));
}

void DialogTabs::build(bool isSavedJob)
{
    removeParts();
    const QSignalBlocker quiet(this);
    m_pageSetup->reload();
    if (!isSavedJob) {
        addPart(kPageSetup, m_pageSetup, tr("Page Setup"));
        addPanels();
        if (!featuresOf(m_job).isEmpty())
            addPart(kFeatures, m_features, tr("Printer Features"));
        m_layout->reload();
        addPart(kLayout, m_layout, tr("Layout & Job"));
    }
    addPart(kSummary, m_summary, tr("Summary"));
    giveAccessibleName(m_summary->pane(), tr("Summary"));
    if (!showPart(m_chosen))
        setCurrentIndex(m_parts.size() > 1 && m_parts[1].panel ? 1 : 0);
}

void DialogTabs::addPanels()
{
    if (!m_job.session())
        return;
    for (const HostPanel &panel : m_job.session()->panels()) {
        if (!hasKeywords(panel))
            continue;
        auto *pane = new PanelPane(this);
        connect(pane, &PanelPane::viewResized, this, &DialogTabs::viewResized);
        connect(pane, &PanelPane::explanationWanted, this, &DialogTabs::explanationWanted);
        connect(pane, &PanelPane::tipWanted, this, &DialogTabs::tipWanted);
        connect(pane, &PanelPane::listOpened, this, &DialogTabs::listOpened);
        connect(pane, &PanelPane::listClosed, this, &DialogTabs::listClosed);
        addPart(panel.name, pane, panel.panel->panelName(), &panel);
    }
}

void DialogTabs::showSupplies(const PrinterCondition &printer)
{
    if (printer.supplies.isEmpty() && printer.loaded.isEmpty()) {
        removeSupplies();
        return;
    }
    if (!m_supplies)
        m_supplies = new SuppliesPane(this);
    m_supplies->setSupplies(printer.supplies, loadedTexts(m_job, printer));
    if (indexOf(m_supplies) >= 0)
        return;
    addPart(kSupplies, m_supplies, tr("Supplies"));
    setTabText(indexOf(m_supplies), withMnemonic(tr("Supplies"), mnemonicsInFront(*window())));
    if (m_chosen == kSupplies)
        setCurrentWidget(m_supplies);
}

void DialogTabs::removeSupplies()
{
    std::erase_if(m_parts, [](const Part &part) { return part.name == kSupplies; });
    if (m_supplies)
        removeTab(indexOf(m_supplies));
}

void DialogTabs::removeParts()
{
    m_layout->setCoverPages({});
    const QSignalBlocker quiet(this);
    m_shownPanel = nullptr;
    clear();             // the pages themselves stay
    m_features->clear(); // before its PPD goes
    for (const Part &part : m_parts)
        if (part.panel)
            delete part.page; // gives the view back to its panel
    m_parts.clear();
}

const DialogTabs::Part *DialogTabs::currentPart() const
{
    const auto found = std::ranges::find(m_parts, currentWidget(), &Part::page);
    return found == m_parts.end() ? nullptr : &*found;
}

bool DialogTabs::isPartName(const QString &name)
{
    return QStringList{kPageSetup, kFeatures, kLayout, kSummary, kSupplies}.contains(name);
}

bool DialogTabs::showPart(const QString &name)
{
    const auto found = std::ranges::find(m_parts, name, &Part::name);
    if (name.isEmpty() || found == m_parts.end())
        return false;
    setCurrentWidget(found->page);
    return true;
}

QWidget *DialogTabs::shownPart() const
{
    const auto *pane = qobject_cast<PanelPane *>(currentWidget());
    return pane && pane->view() ? pane->view() : currentWidget();
}

void DialogTabs::showPanel()
{
    m_viewIsMissing = false;
    const Part *part = currentPart();
    if (!part || !part->panel)
        return;
    m_shownPanel = part->panel;
    QWidget *view = m_job.session()->show(*part->panel);
    putView(static_cast<PanelPane &>(*part->page), view);
    m_viewIsMissing = !view;
}

void DialogTabs::putView(PanelPane &pane, QWidget *view)
{
    if (view)
        givePanelMnemonics(*view, mnemonicsIn(*window()));
    pane.setView(view);
}

void DialogTabs::hidePanel()
{
    if (m_shownPanel) {
        // A panel may read the ticket again behind its user's back: for the summary, say.
        m_job.session()->save(*m_shownPanel);
        m_job.session()->hide(*m_shownPanel);
    }
    m_shownPanel = nullptr;
}

void DialogTabs::releaseViews()
{
    m_shownPanel = nullptr;
    m_features->clear();
    for (Part &part : m_parts)
        if (std::exchange(part.panel, nullptr))
            static_cast<PanelPane *>(part.page)->releaseView();
}

void DialogTabs::exchangePanels(const QString &shown)
{
    const HostSession *session = m_job.session();
    for (Part &part : m_parts) {
        auto *pane = qobject_cast<PanelPane *>(part.page);
        part.panel = pane ? session->panelNamed(part.name) : nullptr;
        if (part.panel)
            putView(*pane, session->loadedView(*part.panel));
        if (part.panel && part.name == shown)
            m_shownPanel = part.panel;
    }
    if (m_shownPanel && m_shownPanel == currentPart()->panel)
        return;
    hidePanel();
    showPanel();
}
