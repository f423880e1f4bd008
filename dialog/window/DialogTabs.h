#pragma once

#include <QtWidgets/QTabWidget>

#include <vector>

struct HostPanel;
class FeaturesPane;
class LayoutPane;
class PageSetupPane;
class PanelPane;
class PopUpButton;
class PrintJob;
class SuppliesPane;
class SummaryPart;
class QToolButton;
struct PrinterCondition;

/// The tabs of the dialog: its own panes, which live as long as it does and are tabs where there is
/// something to show, and a pane for each panel of the job's printer. Where there is no room for
/// all titles, a button beside them lists them all.
class DialogTabs : public QTabWidget
{
    Q_OBJECT

public:
    /// A tab.
    struct Part
    {
        QString name;
        QWidget *page = nullptr;
        const HostPanel *panel = nullptr; ///< of the session; null for the dialog's own panes
    };

    /// The job must outlive the tabs.
    explicit DialogTabs(PrintJob &job, QWidget *parent = nullptr);

    PageSetupPane *pageSetup() const { return m_pageSetup; }
    FeaturesPane *features() const { return m_features; }
    LayoutPane *layoutPane() const { return m_layout; }
    SummaryPart *summary() const { return m_summary; }

    /// The tabs for the printer that is open now, in front the part that the user has chosen, where
    /// it is there again, else the first panel; for a job that was saved the summary alone. Says
    /// nothing of it, and shows no panel yet.
    void build(bool isSavedJob);

    /// Takes all tabs away, and gives the panels' views back; before their session closes.
    void removeParts();

    /// Shows what the printer has left, where it tells of anything, behind the other tabs.
    void showSupplies(const PrinterCondition &printer);

    const std::vector<Part> &parts() const { return m_parts; }
    /// What is in front; null without tabs.
    const Part *currentPart() const;

    /// Whether a part of the dialog's own has the name, for some printers at least.
    static bool isPartName(const QString &name);

    /// Shows the part of the name ("summary", or a panel's). False without such a part.
    bool showPart(const QString &name);

    /// What is in front: a panel's view, or one of the dialog's own panes.
    QWidget *shownPart() const;

    /// Has the panel in front come on screen, where it is one's tab.
    void showPanel();

    /// Has the panel that was shown last save and leave the screen.
    void hidePanel();

    /// Gives the panels' views back, before their session closes and another one takes its place.
    void releaseViews();

    /// Takes the panels of the session in place of the former one's; the panel of the name has been
    /// shown (null: none). The one in front comes on screen.
    void exchangePanels(const QString &shown);

    /// Whether the panel in front has no view.
    bool isViewMissing() const { return m_viewIsMissing; }

Q_SIGNALS:
    /// The view of a panel has come to another size by itself.
    void viewResized();

    /// The signals of a panel's pane.
    void explanationWanted(const QWidget *part, const QPoint &place);
    void tipWanted(QWidget *part, const QPoint &place);
    void listOpened(PopUpButton *popup);
    void listClosed();

protected:
    bool event(QEvent *event) override;

private:
    void showAllButton(bool isShown);
    void listParts();
    void addPart(const QString &name, QWidget *page, const QString &title,
                 const HostPanel *panel = nullptr);
    void addPanels();
    void removeSupplies();
    void putView(PanelPane &pane, QWidget *view);

    PrintJob &m_job;
    QToolButton *m_all; ///< lists the parts
    PageSetupPane *m_pageSetup;
    FeaturesPane *m_features;
    LayoutPane *m_layout;
    SummaryPart *m_summary;
    SuppliesPane *m_supplies = nullptr; ///< null before a printer has told of any
    std::vector<Part> m_parts;
    QString m_chosen; ///< the part that the user has chosen last; null: none yet
    const HostPanel *m_shownPanel = nullptr;
    bool m_viewIsMissing = false; // of m_shownPanel
};
