#pragma once

#include "dialog/replay/ReplayEvent.h"

#include <QtCore/QJsonValue>
#include <QtCore/QString>

class HostSession;

/// What an event's own work came to. With an error nothing has changed.
struct ReplayWork
{
    QJsonValue result;
    QString error;
    QString fatal; ///< why the script cannot go on
};

// The work of the events that need no more than a session whose panels live.

ReplayWork perform(HostSession &session, const ReplayShow &event);
ReplayWork perform(HostSession &session, const ReplayPanelCall &event);
ReplayWork perform(HostSession &session, const ReplayPick &event);
ReplayWork perform(HostSession &session, const ReplaySlide &event);
ReplayWork perform(HostSession &session, const ReplayRevert &event);
ReplayWork perform(HostSession &session, const ReplayFold &event);
ReplayWork perform(HostSession &session, const ReplayPaper &event);
ReplayWork perform(HostSession &session, const ReplayMark &event);
ReplayWork perform(HostSession &session, const ReplayTicket &event);
ReplayWork perform(HostSession &session, const ReplayWatch &event);
ReplayWork perform(HostSession &session, const ReplayPost &event);
ReplayWork perform(HostSession &session, const ReplayPrint &event);
