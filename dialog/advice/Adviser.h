#pragma once

#include "dialog/advice/Remedy.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/replay/SessionScript.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <functional>
#include <memory>
#include <optional>

class HostSession;
class QProcess;

/// Tells a window why a choice is not to be had, and how it is. A process beside the dialog's finds
/// out, which does what the session has seen once more, unseen; it is started with the first
/// question, and ends with the session. However it ends, nothing else happens for it.
///
/// The order of calls: follow() with every session before it starts (a session hook of
/// PrintController); ask() at any time, when no alert is open. What a window makes of an answer:
///
///   - a choice that is not to be had, a control that is switched off: ask of it, show the
///     sentence; remedies().at(0) is what "Get it" does (applyRemedy());
///   - a choice that was refused: the remedies, as words (remedyWords()), are the buttons.
class Adviser : public QObject
{
public:
    /// None: it cannot be explained.
    using Then = std::function<void(const std::optional<Advice> &)>;

    explicit Adviser(QObject *parent = nullptr);
    ~Adviser() override;

    /// Follows the session from its beginning, in the place of the one before. It must have ended
    /// before this does.
    void follow(HostSession &session);

    /// Asks of a choice of the PPD, as the session is now. `then` is told once, from the event
    /// loop; never, when another question, whatever happens in the session, or abandon() comes
    /// first.
    void ask(const PPDMark &wanted, Then then);

    /// Nobody wants to know any more.
    void abandon();

    bool isAsked() const { return m_then != nullptr; }

private:
    bool start();
    void sendScript();
    void send(const QByteArray &lines);
    void read();
    void answer(const std::optional<Advice> &advice);
    void endProcess();

    SessionScript m_events; ///< of the session, that nobody has asked anything after
    HostSession *m_session = nullptr;
    QByteArrayList m_script;             ///< of the session, up to the last question
    qsizetype m_sent = 0;                ///< lines of it that the process has
    int m_awaited = 0;                   ///< answers to come; only the last one is wanted
    std::unique_ptr<QProcess> m_process; ///< null: not running
    QTimer m_patience;
    Then m_then;
};
