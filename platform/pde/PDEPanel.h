#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <optional>

class QWidget;

/// One panel of the print dialog, as the dialog drives it. A plug-in implements it; the dialog owns
/// the object and destroys it when the dialog closes.
///
/// The order of calls during a session:
///   1. restoreValuesAndReturnError() right after creation, and again whenever the dialog has
///      changed the marked choices as a whole;
///   2. panelView() once, before the panel is first shown, then willShow();
///   3. PPDOptionKeyValueDidChange() for each choice that is marked elsewhere in the dialog;
///   4. shouldHide() when another panel takes its place, willShow() when it comes back;
///   5. summaryInfo() for the summary, shouldShowHelp() when help is asked for;
///   6. shouldPrint() when Print was pressed; false vetoes the job.
///
/// Everything is called on the main thread, one call at a time.
class PDEPanel
{
public:
    virtual ~PDEPanel() = default;

    /// The panel is about to come on screen: it brings its controls up to date.
    virtual void willShow() = 0;

    /// The panel is about to leave the screen. False would keep it there.
    virtual bool shouldHide() = 0;

    /// Writes the panel's values into the ticket. `error` may be null; a panel that fails answers
    /// false and sets it to one sentence.
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    /// Reads the panel's values from the PPD's marked choices and the ticket. `error` as above.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;

    /// The PPD keywords that the panel manages, in display order; none when it has no list.
    virtual std::optional<QStringList> supportedPPDOptionKeys() const = 0;

    /// A choice has been marked elsewhere. Keywords of other panels are reported too.
    virtual void PPDOptionKeyValueDidChange(const QString &keyword, const QString &choice) = 0;

    /// The panel's view, owned by the panel and loaded on first use; null when it cannot be loaded.
    virtual QWidget *panelView() = 0;

    /// The localised title of the panel.
    virtual QString panelName() const = 0;

    /// The identifier of the panel's kind, the same in every language.
    virtual QString panelKind() const = 0;

    /// The panel's lines of the summary (PDESummary.h): option titles and value texts.
    virtual QVariantMap summaryInfo() = 0;

    /// False: the panel has opened its own help. True: the dialog should show its own.
    virtual bool shouldShowHelp() = 0;

    /// Whether the job may be printed. A panel that answers false has told the user why, where
    /// there is something to tell.
    virtual bool shouldPrint() = 0;

    /// The panel's side of the optional interface with this identifier, which carries its version:
    /// PDEPanelControls, PDEPanelInspection. Null: it has none. Asked on creation, through
    /// panelExtension(); answered with extensionAmong() (PDEExtension.h).
    virtual void *extension([[maybe_unused]] QLatin1String identifier) { return nullptr; }
};
