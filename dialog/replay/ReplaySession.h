#pragma once

#include "dialog/host/HostSession.h"
#include "dialog/host/SessionObserver.h"
#include "dialog/replay/AlertAnswerer.h"
#include "dialog/replay/NotificationLog.h"
#include "dialog/replay/ReplayEvent.h"
#include "dialog/replay/ReplayPictures.h"
#include "dialog/replay/ReplayWork.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>

/// Runs the events of a replay script on a real session: the plug-in, its real widgets, real
/// alerts. The dialog's window is a plain one that is never shown.
///
/// Needs a QApplication. From its creation on the process's user defaults are in memory alone.
class ReplaySession : private SessionObserver
{
public:
    /// `bundlePath` names the plug-in; null: the program's own. It is used whatever printer a
    /// PPD is of. Pictures are written on these terms, and never over a PPD that the script has
    /// opened.
    explicit ReplaySession(const QString &bundlePath = QString(), const OutputTerms &terms = {});
    ~ReplaySession() override;
    ReplaySession(const ReplaySession &) = delete;
    ReplaySession &operator=(const ReplaySession &) = delete;

    /// Runs the event: its line of output, or why the script cannot go on.
    Result<QByteArray> run(const ReplayEvent &event);

    /// The session that is open at present, or was last; null before the first one.
    HostSession *session() const { return m_session.get(); }

private:
    ReplayWork work(const ReplayAction &action);
    ReplayWork perform(const ReplayOpen &event);
    ReplayWork perform(const ReplayWindow &event);
    ReplayWork perform(const ReplayPicture &event);
    ReplayWork perform(const ReplayState &event);
    ReplayWork perform(const ReplayClose &event);

    void openWindow(std::optional<double> height);
    void setWindowHeight(std::optional<double> height);
    void closeSession();
    void didAnswer(const HostCallback::Call &call) override;

    QString m_bundlePath;
    ReplayPictures m_pictures;
    NotificationLog m_notifications; // registered before any panel
    AlertAnswerer m_answerer;
    QJsonArray m_calls;
    int m_events = 0;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<HostSession> m_session;
};
