#pragma once

#include "dialog/advice/Remedy.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/work/Result.h"

#include <QtCore/QList>

#include <functional>
#include <optional>

class HostSession;
class PrintJob;

/// The choice of the session's PPD, as that spells it; a fault of kind Request when there is no
/// such setting, or not the choice.
Result<PPDMark> choiceOfPPD(const HostSession &session, const QString &keyword,
                            const QString &choice);

/// Makes the remedy's changes in order and picks the choice, as a person would; the panels'
/// controls are filled (prepareControls()). Alerts that come up wait for whoever answers them.
void applyRemedy(PrintJob &job, const Remedy &remedy, const PPDMark &wanted);

/// What can be said of the choice (choiceOfPPD()) as the session's settings are now. All of it is
/// tried out in a copy of this process, in which the caller's is the only thread: the session stays
/// as it is, alerts and user defaults too. None when it was given up (`isGivenUp`, null: never), or
/// the copy came to a bad end. `tellFirst` is told what can be said as soon as one remedy is known.
std::optional<Advice> adviceOn(HostSession &session, const PPDMark &wanted,
                               const std::function<bool()> &isGivenUp = {},
                               const std::function<void(const Advice &)> &tellFirst = {});

/// The same of several choices at once, which takes less than one after the other; in whatever
/// order. Not of all of them when the copy came to a bad end.
QList<Advice> adviceOnEach(HostSession &session, const QList<PPDMark> &wanted);
