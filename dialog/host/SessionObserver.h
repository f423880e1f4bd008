#pragma once

#include "dialog/host/HostCallback.h"
#include "platform/printmanager/PMPageFormat.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

struct HostPanel;

/// Is told of what happens in a session, each time after it was done: what the dialog did, and what
/// the panels asked of it. What people do in a panel's own controls is not among it. An observer
/// overrides what it wants to hear of.
class SessionObserver
{
public:
    /// Operations on one panel that need no more than its name.
    enum class PanelOperation { Hide, Restore, Save, Summary, Help };

    virtual ~SessionObserver() = default;

    /// A panel has called the dialog, and was answered.
    virtual void didAnswer(const HostCallback::Call &) {}

    virtual void didShow(const HostPanel &) {}
    virtual void didPerform(PanelOperation, const HostPanel &) {}
    /// A panel could not save or restore its values: in its own words, one sentence. After
    /// didPerform(), where that is told of it.
    virtual void didFail(PanelOperation, const HostPanel &, const QString & /*sentence*/) {}
    virtual void didMark(const QString & /*keyword*/, const QString & /*choice*/) {}
    /// `mapped` as in HostSession::setPaper().
    virtual void didSetPaper(const PMPaper &, const std::optional<QString> & /*mapped*/) {}
    virtual void didWriteTicket(const QString & /*key*/, const QVariant &) {}
    virtual void didResizeWindow() {}
    virtual void didAskShouldPrint() {}
    /// The panels still live.
    virtual void willClose() {}
};
