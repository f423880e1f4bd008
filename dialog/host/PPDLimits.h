#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <span>

/// How much there is in the text of a PPD, of everything that costs libcups more than its length.
struct PPDCensus
{
    qsizetype bytes = 0;
    qsizetype lines = 0;
    qsizetype groups = 0;         ///< and subgroups
    qsizetype options = 0;        ///< as often as one is opened
    qsizetype choices = 0;        ///< of the option that has most
    qsizetype papers = 0;         ///< names, sizes or printable areas, whichever are most
    qsizetype parameters = 0;     ///< of choices that the user completes, and those choices
    qsizetype constraints = 0;    ///< UIConstraints
    qsizetype newConstraints = 0; ///< cupsUIConstraints
    qsizetype newTerms = 0;       ///< options named in cupsUIConstraints and cupsUIResolver
    qsizetype attributes = 0;     ///< every other keyword
};

/// Counts in one pass, line by line: what stands in a quoted value of several lines is counted as
/// well. A PPD that is made to mislead the count is still bounded by its lines.
PPDCensus censusOf(QByteArrayView ppd);

/// How much of something a PPD may have.
struct PPDLimit
{
    const char *name; ///< for benchmarks and tests
    qsizetype PPDCensus::*count;
    qsizetype most;
    qsizetype largestReal; ///< over 6,565 PPDs of many makers; 0: not known
    const char *sentence;  ///< to translate in "PPDFile": %1 the file, %2 the limit
};

/// At least five times what the largest PPDs of real printers have, and each low enough that a PPD
/// at the limit opens within half a second. The first one is that of the length.
std::span<const PPDLimit> ppdLimits();

/// The limit of the text's length, in bytes.
inline constexpr qsizetype kLargestPPD = 4LL * 1024 * 1024;

/// What is told of a file that is above the limit.
QString sentenceOf(const PPDLimit &limit, const QString &path);

/// The first limit that is exceeded; null when none is.
const PPDLimit *exceededLimit(const PPDCensus &census);
