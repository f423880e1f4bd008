#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QString>

/// What is marked of an option.
struct PPDMark
{
    QString keyword;
    /// The choice. Of an option that lets several be chosen, those that are marked, with commas
    /// between them ("Staple,Punch"); of a value of the user's own the choice that stands for it
    /// (customChoice()).
    QString choice;

    bool operator==(const PPDMark &) const = default;
};

/// The marks in the order of the PPD, one for each option that libcups finds by its keyword: the
/// other options of the same keyword count for nothing. Without `PageRegion`, which every PPD
/// carries beside `PageSize`.
QList<PPDMark> marksOf(ppd_file_t *ppd);

/// What is marked of the option, as a PPDMark holds it; null when nothing is.
QString markedValue(ppd_file_t *ppd, const QString &keyword);

/// The value as it would be held by a PPDMark: spelt as the PPD has it, several in its order. Null
/// when the option is not there or does not take the value.
QString normalizedValue(ppd_file_t *ppd, const QString &keyword, const QString &value);

/// Those of the marks that are not among `before`.
QList<PPDMark> changedMarks(ppd_file_t *ppd, const QList<PPDMark> &before);

/// Marks the choice in the place of whatever is marked of its option, when the PPD has the option
/// and the choice, and marking it adds no conflict with the PPD's own constraints. Otherwise the
/// earlier marks stand and the answer is false.
bool markChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// The same, whatever it conflicts with, and for all that a PPDMark holds: also several choices,
/// and values of the user's own within the PPD's limits. False without such an option or choice.
bool forceChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice);
