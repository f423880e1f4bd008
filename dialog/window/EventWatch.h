#pragma once

#include "dialog/host/SessionObserver.h"
#include "dialog/printing/SettingState.h"

#include <QtCore/QObject>

#include <optional>

class PrintController;

/// What an event has come to.
struct EventOutcome
{
    /// What the user picked. A null keyword: nothing that a panel told of; an empty one: nothing,
    /// the dialog did it by itself. A null choice: the pick was refused, or is none of the PPD.
    PPDMark pick;
    PPDMark refused; ///< the user's pick, where it was refused; a null keyword: it was not
    QString refusal; ///< of the pick, or of what its rules asked for; null: nothing was refused
    QList<SettingChange> changes; ///< beside the pick

    bool isNobodys() const { return pick.keyword.isEmpty() && !pick.keyword.isNull(); }
};

/// Follows the sessions of a controller from one event of the window to the next: what a person
/// picks, what panels ask for then, and what has changed when all of that is over.
class EventWatch : public QObject, private SessionObserver
{
    Q_OBJECT

public:
    /// The controller must outlive it, and open no printer before.
    explicit EventWatch(PrintController &controller, QObject *parent = nullptr);

    /// Something is going on, in the settings that are picked (a null keyword: not known which).
    void note();
    void note(const PPDMark &pick);

    /// What the dialog does by itself is going on, as when another part comes in front.
    void noteOwn();

    /// The keyword that was picked in what is going on; null where nothing is.
    QString picked() const { return m_isNoted ? m_pick.keyword : QString(); }

    /// What is going on is over. None where nothing is, and while an alert in the midst of it waits
    /// for its answer: over() comes once more after that.
    std::optional<EventOutcome> take();

    /// What has changed until now, and is not told of, has the user not done.
    void skipChanges() { static_cast<void>(takeChanges()); }

    /// Nothing is going on, and nobody has done what was.
    void forget();

    /// What the job was set to when something was over last.
    const SettingState &state() const { return m_state; }

Q_SIGNALS:
    /// What was going on has nothing left to do: to be told before anything is painted, so that all
    /// of it is painted once.
    void over();

    /// A panel's view has become higher or lower.
    void viewResized();

    /// A panel could not save or restore its values: in its own words.
    void failed(const QString &sentence);

private:
    void didAnswer(const HostCallback::Call &call) override;
    void didMark(const QString &keyword, const QString &choice) override;
    void didSetPaper(const PMPaper &paper, const std::optional<QString> &mapped) override;
    void didWriteTicket(const QString &key, const QVariant &value) override;
    void didFail(PanelOperation operation, const HostPanel &panel,
                 const QString &sentence) override;
    QList<SettingChange> takeChanges();

    PrintController &m_controller;
    SettingState m_state;
    PPDMark m_pick;    ///< in what is going on; a null keyword: none yet
    PPDMark m_refused; ///< likewise
    QString m_refusal;
    bool m_isNoted = false;
    int m_level = 0; ///< of the event loop in which it was noted
};
