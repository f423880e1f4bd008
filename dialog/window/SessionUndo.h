#pragma once

#include "dialog/printing/PrintController.h"
#include "dialog/printing/SettingValues.h"
#include "dialog/printing/UndoHistory.h"
#include "dialog/replay/SessionJournal.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>
#include <optional>

/// Undo and redo of what a person settles: in the panels, in the page setup, in the other parts of
/// the dialog, and by choosing a preset.
///
/// A panel cannot be told to become what it was. So the session is opened once more, out of sight,
/// and brought to the same place by the events that led there, which gives the same state whatever
/// the panels keep to themselves. Alerts are neither shown again nor forgotten.
class SessionUndo : public QObject
{
    Q_OBJECT

public:
    /// The controller must outlive it, and open no printer before.
    explicit SessionUndo(PrintController &controller, QObject *parent = nullptr);

    /// A printer was opened, and the settings of the command line are made. Where it is the one
    /// that was open before, started from other settings, that is a step. `asked`
    /// are settings that were asked for by name, in the printer's own names.
    void begin(const QList<RequestedChoice> &asked);

    /// There is nothing to undo any more.
    void clear() { m_history.clear(); }

    /// What is going on was done in the field, by typing: it goes on with what was typed there
    /// before. Null: in none.
    void setField(const QString &name) { m_subject = name; }

    /// What was going on is over. Where a person did it, and a setting is another one since, it is
    /// a step; else it belongs to the last one. What the person picked is the setting of the name
    /// (SettingValues); null: whatever has changed. `state` is the job's as it is.
    void noteUser(const QString &name, const SettingState &state);
    void noteOwn(const SettingState &state);

    /// Why the settings have their values, as of what was noted last.
    SettingOrigins origins() const
    {
        return m_history.isEmpty() ? SettingOrigins() : m_history.current().origins;
    }

    /// Whether an alert was raised since this was asked last, or another state was gone to.
    bool takeAlerted();

    bool canUndo() const { return m_history.canUndo(); }
    bool canRedo() const { return m_history.canRedo(); }

    /// Has the job as it was before the last step, or after the one that was undone; there is one.
    /// The panels' views must not be on screen: they may have become others. After a fault all is
    /// as it is.
    Result<> undo();
    Result<> redo();

    /// The name of the panel that is told to be on screen; null without one.
    QString shownPanel() const { return panelShownAt(m_journal.place()); }

Q_SIGNALS:
    /// Somebody has used a control of a panel, or moved one.
    void acted();

private:
    struct Moment
    {
        std::shared_ptr<const PrinterOrigin> printer; ///< null: one without a PPD
        JournalPlace place;
        SettledState settled;
        SettingValues values;
        QList<PPDMark> shown; ///< SettingState::shown
        QList<double> sliders;
        SettingOrigins origins;
        /// What tells it from others, panels' secrets included (SettingsImage); null where few
        /// events led to it, or others followed at once.
        QByteArray image;
    };

    static bool areAlike(const Moment &left, const Moment &right);
    static bool isSamePrinter(const Moment &left, const Moment &right);
    Moment now(const SettingState &state) const;
    void takeImage();
    void awaitPause();
    Result<> goTo(const Moment &moment);
    Result<> reopenAt(const Moment &moment);
    void follow(const ReplayAction &action);
    void followDrag(const QString &keyword);

    PrintController &m_controller;
    SessionJournal m_journal;
    UndoHistory<Moment> m_history;
    JournalPlace m_asked; // where it was asked for alerts last
    QString m_subject;    // of what is going on
    QTimer m_pause;
};
