#pragma once

#include "dialog/host/SessionObserver.h"
#include "dialog/replay/ReplayEvent.h"
#include "platform/toolkit/AlertObserver.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <memory>
#include <vector>

class HostSession;
class QAbstractButton;
class RadioMatrix;

/// The answer that an alert was given, filled in when it is given.
struct FollowedAnswer
{
    int button = 0;
    bool suppression = false; ///< whether the alert has the box at all
    bool suppressed = false;
    bool given = false;
};

/// To the alerts that an event has raised, in order.
using FollowedAnswers = std::vector<std::shared_ptr<FollowedAnswer>>;

/// Follows real sessions, one after the other, as the events of a replay script: what the dialog
/// does, what people do in the panels' controls (through the controls' own user signals, whichever
/// panel it is), and how they answer alerts. It is a witness of the process's alerts.
class SessionFollower : public QObject, public SessionObserver, public AlertObserver
{
public:
    SessionFollower();
    ~SessionFollower() override;

    void alertShown(const ShownAlert &alert) override;

    void didShow(const HostPanel &panel) override;
    void didPerform(PanelOperation operation, const HostPanel &panel) override;
    void didMark(const QString &keyword, const QString &choice) override;
    void didSetPaper(const PMPaper &paper, const std::optional<QString> &mapped) override;
    void didWriteTicket(const QString &key, const QVariant &value) override;
    void didResizeWindow() override;
    void didAskShouldPrint() override;
    void willClose() override;

protected:
    /// Follows the session from now on, until it closes.
    void follow(HostSession &session);

    /// Null while no session is followed.
    const HostSession *session() const { return m_session; }

    /// An event has ended. The answers to its sheets are still to be given.
    virtual void note(const ReplayAction &action, const FollowedAnswers &answers) = 0;

    /// A sheet was answered.
    virtual void sheetAnswered() {}

private:
    void noteAction(const ReplayAction &action);
    void followControls(const HostPanel &panel);
    void followControl(const HostPanel &of, const QString &name, QWidget *control);
    void followMatrix(const QString &panel, const QString &name, RadioMatrix *matrix);
    void followPanelButtons(const HostPanel &panel);
    void followOtherParts(const QWidget &view);
    void deferSurroundings();
    void noteSurroundings();

    HostSession *m_session = nullptr;
    FollowedAnswers m_answers; // to the alerts of the event that is going on
    QSet<QString> m_followed;  // the panels whose controls are followed
    double m_notedHeight = -1; // of the window; negative: no key window
    bool m_windowChanged = false;
    bool m_watchFired = false;
    bool m_deferred = false;
};
