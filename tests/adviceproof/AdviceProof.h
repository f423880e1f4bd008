#pragma once

#include "dialog/advice/Remedy.h"
#include "dialog/host/PPDMarks.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QSet>
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

/// Of which choices something is to be proved, and how much is tried for it.
struct ProofExtent
{
    int most = 0;       ///< choices, of those that are not to be had
    quint32 seed = 0;   ///< which they are, by chance
    int impossible = 1; ///< sets of up to so many changes, where nothing is said to give the choice
    bool hasPairs = false; ///< sets of two, where it is said to take three
};

/// What is said of one choice, held against trying.
struct Proof
{
    Advice advice;
    /// Whether each of the first two remedies gives the choice in a session opened anew: picked and
    /// saved it is marked, the changes stand, and nothing is wrong that was not before.
    bool isGiven = false;
    int tried = 0;          ///< all sets of up to so many changes were tried
    QList<PPDMark> smaller; ///< one of them that gives the choice; empty: none does
    /// Changes, of some that were tried alone in copies of their own, that give the choice and are
    /// not said to, or the other way round.
    QList<PPDMark> unlike;
};

/// Proves what is said of choices that are not to be had in the state. A state in which nothing is
/// different from one of `seen` is passed over; else it is added.
QList<Proof> proofsIn(const ProofState &state, const ProofExtent &extent, QSet<QByteArray> &seen);
