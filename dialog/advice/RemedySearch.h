#pragma once

#include "dialog/advice/Remedy.h"

#include <functional>

class Scratch;

/// The most settings that a remedy changes.
inline constexpr int kMostChanges = 3;

/// What a search has found.
struct FoundRemedies
{
    Advice::Outcome outcome = Advice::Outcome::Unknown;
    QList<Remedy> remedies; ///< as Advice has them
};

/// Looks for the smallest sets of changes that give the scratch's wanted choice: first all of one
/// setting, then, when there are none, of two, then of three.
///
/// All single changes are tried. Of two and three settings each change is tried on top of those
/// that made a difference to other settings before; of the choices of one setting that made the
/// same difference, on top of the first.
/// `tellFirst` is told of the first remedy when it is found; there may be better ones.
FoundRemedies findRemedies(Scratch &scratch,
                           const std::function<void(const Remedy &)> &tellFirst = {});
