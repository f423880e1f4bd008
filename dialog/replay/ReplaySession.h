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
#include <QtCore/QJsonObject>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

/// Runs the events of a replay script on a real session: the plug-in, its real widgets, real
/// alerts. The dialog's window is a plain one that is never shown.
///
/// Needs a QApplication. From its creation on the process's user defaults are in memory alone.
class ReplaySession : private SessionObserver
{
public:
    /// What a session is opened with.
    enum class Likeness {
        Everywhere, ///< the same texts on every machine
        ToDialog,   ///< texts in the user's language, and the plug-in that is for the printer
    };

    /// `bundlePath` names the plug-in; null: the program's own. It is used whatever printer a
    /// PPD is of. Pictures are written on these terms, and never over a PPD that the script has
    /// opened.
    explicit ReplaySession(const QString &bundlePath = QString(), const OutputTerms &terms = {},
                           Likeness likeness = Likeness::Everywhere);
    ~ReplaySession() override;
    ReplaySession(const ReplaySession &) = delete;
    ReplaySession &operator=(const ReplaySession &) = delete;

    /// Answers why a choice is not to be had, without changing the session; a fault says why it
    /// cannot.
    using Explainer = std::function<Result<QJsonObject>(HostSession &, const QString &keyword,
                                                        const QString &choice)>;

    /// Who answers the event that asks; without one it cannot be carried out.
    void setExplainer(Explainer explainer) { m_explainer = std::move(explainer); }

    /// Runs the event: its line of output, or why the script cannot go on.
    Result<QByteArray> run(const ReplayEvent &event);

    /// The session that is open at present, or was last; null before the first one.
    HostSession *session() const { return m_session.get(); }

private:
    ReplayWork work(const ReplayAction &action);
    ReplayWork perform(const ReplayOpen &event);
    ReplayWork perform(const ReplayWindow &event);
    ReplayWork perform(const ReplayPicture &event);
    ReplayWork perform(const ReplayWhy &event);
    ReplayWork perform(const ReplayState &event);
    ReplayWork perform(const ReplayClose &event);

    void openWindow(std::optional<double> height);
    void setWindowHeight(std::optional<double> height);
    void closeSession();
    void didAnswer(const HostCallback::Call &call) override;

    Likeness m_likeness;
    QString m_bundlePath; ///< null: the plug-in that is for the printer
    Explainer m_explainer;
    ReplayPictures m_pictures;
    NotificationLog m_notifications; // registered before any panel
    AlertAnswerer m_answerer;
    QJsonArray m_calls;
    int m_events = 0;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<HostSession> m_session;
};
