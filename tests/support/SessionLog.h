#pragma once

#include "dialog/host/HostCallback.h"

#include <QtCore/QStringList>

/// What the panels asked of the host and what was posted, in one order:
///
///   "VKMediaType=Glossy"            a choice was offered and accepted
///   "VKMediaType=Glossy refused"
///   "resized"
///   "mono NO", "natural YES"        posted for the Color Settings panel
class SessionLog
{
public:
    explicit SessionLog(HostCallback &host);
    ~SessionLog();
    SessionLog(const SessionLog &) = delete;
    SessionLog &operator=(const SessionLog &) = delete;

    /// What was noted since the last call.
    QStringList take();

    /// Of these only the choices that were offered.
    QStringList takeOffers();

private:
    HostCallback &m_host;
    QStringList m_lines;
};
