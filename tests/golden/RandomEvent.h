#pragma once

#include "tests/golden/PPDFacts.h"
#include "tests/golden/Random.h"
#include "tests/golden/SessionView.h"

#include <QtCore/QJsonObject>

/// What the next event of a session is chosen from.
struct EventContext
{
    const SessionView &view;
    const PPDFacts &facts;
    int number; ///< of the event, for names that come once in a session
};

/// A random event but `open`: mostly one that can be carried out as the session stands, else one
/// that cannot. Often with answers to alerts, whether it raises any or not.
QJsonObject randomEvent(Random &random, const EventContext &context);
