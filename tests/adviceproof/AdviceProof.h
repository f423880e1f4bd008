#pragma once

#include "dialog/advice/Remedy.h"
#include "dialog/host/PPDMarks.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

// Everything here happens in copies of this process, which has no session itself: each begins with
// a session of its own, opened anew.

/// A printer with settings that were made on it one after the other, as a person would.
struct ProofState
{
    QString ppd; ///< its path
    QList<PPDMark> walk;
};

/// Up to `most` changes, each one that could be made then; another walk for each seed.
QList<PPDMark> randomWalk(const QString &ppd, quint32 seed, int most);

/// What is said of the choices of the PPD that are not to be had in the state; of up to `most` of
/// them, chosen by chance.
QList<Advice> adviceOnWhatIsLacking(const ProofState &state, quint32 seed, int most);

/// Whether the changes, made in order, give the choice: picked and saved it is marked, the changes
/// stand, and nothing is wrong that was not before.
bool isGivenBy(const ProofState &state, const QList<SettingChange> &changes, const PPDMark &wanted);

/// The first set of so many changes that gives the choice, looked for by trying all of them, each
/// in a copy of its own; none when there is none.
std::optional<QList<PPDMark>> anySetThatGives(const ProofState &state, int size,
                                              const PPDMark &wanted);
