#pragma once

#include "platform/printmanager/PMPageFormat.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

struct HostPanel;

/// Is told of what the dialog did in a session, each time after it was done. What people do in a
/// panel's own controls is not among it.
class SessionObserver
{
public:
    /// Operations on one panel that need no more than its name.
    enum class PanelOperation { Hide, Restore, Save, Summary, Help };

    virtual ~SessionObserver() = default;

    virtual void didShow(const HostPanel &panel) = 0;
    virtual void didPerform(PanelOperation operation, const HostPanel &panel) = 0;
    virtual void didMark(const QString &keyword, const QString &choice) = 0;
    /// `mapped` as in HostSession::setPaper().
    virtual void didSetPaper(const PMPaper &paper, const std::optional<QString> &mapped) = 0;
    virtual void didWriteTicket(const QString &key, const QVariant &value) = 0;
    virtual void didResizeWindow() = 0;
    virtual void didAskShouldPrint() = 0;
    /// The panels still live.
    virtual void willClose() = 0;
};
