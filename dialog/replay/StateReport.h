#pragma once

#include "dialog/replay/JsonText.h"

#include <QtCore/QJsonObject>

class HostSession;

/// The state of every panel, by its name in scripts. What a panel tells nothing of is absent.
QJsonObject panelReports(const HostSession &session);

/// The session's whole state as the members `panels`, `marks`, `ticket` and `alertMemory` of a
/// line. Reading it changes nothing and loads no view. Null: no session, everything empty.
OrderedMembers stateReport(const HostSession *session);
