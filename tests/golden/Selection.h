#pragma once

#include "tests/golden/Coverage.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

/// A case that may be chosen.
struct Candidate
{
    QString path;
    qint64 bytes; ///< of the case and its recording
    Coverage coverage;
};

/// So many cases that together cover as much as they can in few bytes: first what nothing covers
/// yet, then what few do.
QStringList selectedCases(const QList<Candidate> &candidates, int wanted);
