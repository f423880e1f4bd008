#pragma once

#include "dialog/host/SessionObserver.h"
#include "dialog/replay/RecordedScript.h"
#include "platform/toolkit/AlertObserver.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class HostSession;
class QAbstractButton;
class RadioMatrix;

/// Notes a real session as a replay script: what the dialog does, what people do in the panels'
/// controls (through the controls' own user signals, whichever panel it is), and how they answer
/// alerts. Running the script leads to the same state.
///
/// The order of calls: open(); then for each session attach() between HostSession::open() and
/// start(); at the end finish(). The PPD is copied beside the script, so that both together can be
/// sent elsewhere. Without finish() no file is left, but for what a crash leaves.
///
/// While it lives it is the process's alert observer, and hands alerts on to the former one.
class Recorder : public QObject, public SessionObserver, public AlertObserver
{
public:
    Recorder();
    ~Recorder() override;

    /// A fault when the script may not or cannot be written.
    Result<> open(const QString &path, const OutputTerms &terms);

    /// Tells every line to somebody (RecordedScript::open()) instead. Then no finish() is needed.
    void open(std::function<void(const QByteArray &line)> tell) { m_script.open(std::move(tell)); }

    /// Notes the session from its beginning, under that path of its PPD, which is not copied.
    void attach(HostSession &session, const QString &ppd);

    /// Notes the session from its beginning. A fault when its PPD cannot be copied: then nothing
    /// more is noted. The session must close before finish().
    Result<> attach(HostSession &session);

    /// Ends the recording. The first fault when not all could be noted: then nothing of it is left.
    Result<> finish();

    void alertShown(const ShownAlert &alert) override;

    void didShow(const HostPanel &panel) override;
    void didPerform(PanelOperation operation, const HostPanel &panel) override;
    void didMark(const QString &keyword, const QString &choice) override;
    void didSetPaper(const PMPaper &paper, const std::optional<QString> &mapped) override;
    void didWriteTicket(const QString &key, const QVariant &value) override;
    void didResizeWindow() override;
    void didAskShouldPrint() override;
    void willClose() override;

private:
    Result<QString> copyPPD();
    OrderedMembers openEvent(const QString &ppd) const;
    void note(const char *kind, const OrderedMembers &members = {});
    void followControls(const HostPanel &panel);
    void followControl(const HostPanel &of, const QString &name, QWidget *control);
    void followMatrix(const QString &panel, const QString &name, RadioMatrix *matrix);
    void followPanelButtons(const HostPanel &panel);
    void followOtherParts(const QWidget &view);
    void deferSurroundings();
    void noteSurroundings();

    RecordedScript m_script;
    Result<> m_state;                                  // the first fault
    std::vector<std::unique_ptr<OutputFile>> m_copies; // of PPDs
    HostSession *m_session = nullptr;
    QSet<QString> m_followed;  // the panels whose controls are followed
    double m_notedHeight = -1; // of the window; negative: no key window
    bool m_windowChanged = false;
    bool m_watchFired = false;
    bool m_deferred = false;
    AlertObserver *m_former;
};
