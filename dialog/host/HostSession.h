#pragma once

#include "dialog/host/ChoiceForms.h"
#include "dialog/host/HostCallback.h"
#include "dialog/host/PPDFile.h"
#include "dialog/host/PaperAdvice.h"
#include "dialog/host/PlugInLoader.h"
#include "dialog/host/SessionObserver.h"
#include "dialog/host/SessionOptions.h"
#include "platform/pde/PDEPanel.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class PDEPanelControls;
class PDEPanelInspection;

/// A panel of the session.
struct HostPanel
{
    std::unique_ptr<PDEPanel> panel;
    /// What it tells of its controls; null when it tells nothing.
    PDEPanelControls *controls = nullptr;
    /// Its own look into itself; null when it has none.
    PDEPanelInspection *inspection = nullptr;
    /// Its name in scripts: the one that its controls have, else the panel's kind.
    QString name;
};

struct SliderRange
{
    double least = 0;
    double greatest = 0;
};

/// The answers of the panels when Print was pressed.
struct PrintAnswer
{
    bool proceed = true;
    QStringList asked; ///< names, in order; the last one vetoed unless `proceed`
};

/// The host of a plug-in's panels, without any window: the opened PPD, the callback object that the
/// panels share, the plug-in, its bundle and its panels.
///
/// The order of calls:
///   1. open() reads the PPD and loads the plug-in; nothing else in the process changes;
///   2. start() creates the panels and has them restore their values;
///   3. the operations, in any order, on the main thread;
///   4. close() releases the panels; the PPD's marks and the ticket can still be read. Destroying
///      the session closes it.
///
/// Notifications that the session posts have the callback object (notificationObject()) as their
/// object, as the panels' own have.
class HostSession
{
public:
    /// The session on the PPD of `options`, never null; a fault when that cannot be used. One whose
    /// plug-in could not be loaded has plugInFault(), and will have no panels. Reads the file: not
    /// on a thread that people wait for.
    static Result<std::unique_ptr<HostSession>> open(const SessionOptions &options);

    /// The same on what openPPD() gave for that file, on whichever thread. Reads the plug-in alone.
    static std::unique_ptr<HostSession> open(const SessionOptions &options, OpenedPPD ppd);

    ~HostSession();
    HostSession(const HostSession &) = delete;
    HostSession &operator=(const HostSession &) = delete;

    /// From now on the observer is told of the session, after those that were there before. Not
    /// owned: it is removed before it is destroyed, or outlives the session. One that is there
    /// before start() misses nothing.
    void addObserver(SessionObserver *observer) { m_observers += observer; }
    void removeObserver(SessionObserver *observer) { m_observers.removeOne(observer); }

    void start();
    void close();

    const SessionOptions &options() const { return m_options; }
    const std::optional<PlugInFault> &plugInFault() const { return m_plugIn.fault; }

    /// Whether a plug-in was loaded, panels or not.
    bool hasPlugIn() const { return m_plugIn.plugIn != nullptr; }

    ppd_file_t *ppd() const { return m_ppd.get(); }
    /// The marks of the PPD before anybody has made any: OpenedPPD::defaults.
    const QList<PPDMark> &defaultMarks() const { return m_defaultMarks; }
    /// The text of the PPD as it was opened (OpenedPPD::text), while the session lives.
    int ppdText() const { return m_ppdText->get(); }

    PMPrintSettings &ticket() { return m_callback->ticket(); }
    PMPageFormat &pageFormat() { return m_callback->format(); }
    const PMPrintSettings &ticket() const { return m_callback->ticket(); }
    const PMPageFormat &pageFormat() const { return m_callback->format(); }

    /// Whether the panels live: between start() and close().
    bool isRunning() const { return m_running; }

    /// In display order; empty before start() and after close().
    const std::vector<HostPanel> &panels() const { return m_panels; }

    /// Null when there is no such panel.
    const HostPanel *panelNamed(const QString &name) const;

    /// The panel's view as it is now; null before it is loaded. Never loads it.
    QWidget *loadedView(const HostPanel &panel) const;

    /// What a script reports as marked: `PageSize`, `Duplex`, the keywords that the bundle wants
    /// watched, and those of the panels; keyword to choice, without those where nothing is marked.
    QMap<QString, QString> reportedMarks() const;

    /// The choice by the names that the session knows it by, whatever their case: the keyword as
    /// the reported marks have it, else as the PPD spells it, and the choice as the PPD spells it.
    /// A name that the PPD lacks stays as it is.
    PPDMark spelled(const QString &keyword, const QString &choice) const;

    /// The PPD keywords that no panel shows and the plug-in wants the dialog to offer.
    QStringList watchedKeywords() const;

    /// The PPD keyword whose text is the title of a value of the ticket, as the plug-in says; null
    /// when it says nothing of the key.
    QString keywordOfTicketKey(const QString &key) const;

    /// The PPD keywords that title a value of the ticket: a panel has a control for that.
    QStringList titledKeywords() const;

    /// The numbers that the sliders of the panels take, as the plug-in says; none when it does not.
    std::optional<SliderRange> sliderRange() const;

    /// The keys of the ticket under which the plug-in keeps what is folded and unfolded in its
    /// views: nothing that a printer is to do.
    QStringList foldStateKeys() const;

    /// The bundle of the plug-in; null without one.
    const Bundle *bundle() const { return m_plugIn.bundle.get(); }

    /// Which choices are forms of one another, as the plug-in says.
    const ChoiceForms &choiceForms() const { return m_choiceForms; }

    /// The names of the papers that the printer takes on both sides, as the plug-in says; none when
    /// it says nothing of it.
    std::optional<QStringList> twoSidedPapers() const;

    /// What the plug-in advises for some papers.
    const QList<PaperAdvice> &paperAdvice() const { return m_paperAdvice; }

    /// The standard attributes that say the same as choices of the printer, as the plug-in says.
    const QList<AttributeRule> &attributeRules() const { return m_plugIn.attributeRules; }

    /// Which of the plug-in's alerts the user wants to see, yes or no; those that were never shown
    /// are missing.
    QVariantMap alertMemory() const;

    /// The object of the session's notifications; an address to compare with.
    const void *notificationObject() const;

    // --- Operations on one panel -----------------------------------------------------------------

    /// Takes the panel's view on first use and tells the panel that it is about to be shown. Null,
    /// and the panel is told nothing, when it has no view. The panel owns the view.
    QWidget *show(const HostPanel &panel);
    bool hide(const HostPanel &panel);
    bool restore(const HostPanel &panel);
    bool save(const HostPanel &panel);
    QVariantMap summary(const HostPanel &panel);
    bool help(const HostPanel &panel);

    // --- Operations on the job -------------------------------------------------------------------

    /// A choice made by the dialog itself: marked whatever it conflicts with, reported to every
    /// panel by its own names (spelled()), and for `Duplex` followed by the duplex-change
    /// notification. False, and nothing happens, without such a choice.
    bool markElsewhere(const QString &keyword, const QString &choice);

    /// Another page setup: the format's paper, the marked `PageSize` where the PPD has a choice
    /// named `ppdName`, and with `mapped` the name of the paper that the document is scaled to
    /// (null: none any more); then the paper-change notification.
    void setPaper(const PMPaper &paper, const std::optional<QString> &mapped = std::nullopt);

    /// An invalid value removes the key.
    void writeTicket(const QString &key, const QVariant &value);

    /// Has every panel restore its values: after a change of the marks as a whole.
    void restoreAll();

    /// Asks the panels in order whether the job may be printed, up to the first veto.
    PrintAnswer askShouldPrint();

    /// The dialog's window has another height: every loaded view of a panel posts the toolkit's
    /// tracking-areas notification.
    void windowDidResize();

private:
    explicit HostSession(const SessionOptions &options);
    QVariant infoValue(QLatin1String key) const;
    void prepareCallback();
    void createPanels();
    void post(const QString &name);
    bool restoreValues(const HostPanel &panel);
    void tellFault(SessionObserver::PanelOperation operation, const HostPanel &panel,
                   const QString &sentence) const;
    void tell(const std::function<void(SessionObserver &)> &what) const;

    SessionOptions m_options;
    QList<PPDMark> m_defaultMarks;
    std::shared_ptr<const FileDescriptor> m_ppdText;
    PPDHandle m_ppd; // outlives the panels, which read it
    PlugInLoad m_plugIn;
    ChoiceForms m_choiceForms;
    QList<PaperAdvice> m_paperAdvice;
    std::shared_ptr<HostCallback> m_callback;
    std::vector<HostPanel> m_panels;
    QHash<const PDEPanel *, QPointer<QWidget>> m_views; // that were taken from the panels
    QStringList m_reportedKeywords;
    QList<SessionObserver *> m_observers;
    bool m_running = false;
};
