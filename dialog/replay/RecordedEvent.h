#pragma once

#include "dialog/replay/JsonText.h"
#include "dialog/replay/ReplayEvent.h"
#include "dialog/replay/SessionFollower.h"
#include "platform/ppd/CupsPPD.h"

class HostSession;

/// The event as it stands in a script, without its answers; secrets among the PPD's values are left
/// out. Of the events that a session can be followed by.
OrderedMembers recordedEvent(const ReplayAction &action, ppd_file_t *ppd);

/// How the session was opened, under that path of its PPD.
OrderedMembers recordedOpen(const HostSession &session, const QString &ppd);

/// The line of the event with its answers, without its end.
QByteArray scriptLine(OrderedMembers event, const FollowedAnswers &answers);

/// Whether every alert has its answer.
bool areGiven(const FollowedAnswers &answers);
