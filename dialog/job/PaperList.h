#pragma once

#include "dialog/job/PaperMemory.h"
#include "dialog/job/PaperSizes.h"

/// The list that a person chooses a paper from.

/// What stands for a size that is given in fields.
inline constexpr auto kOwnPaper = QLatin1String("Custom");

/// A row: a heading, or a paper.
struct PaperListRow
{
    QString title;
    QString paper;  ///< a `PageSize` choice, "Custom.WIDTHxHEIGHT", or kOwnPaper; null: a heading
    QString detail; ///< how large it is, where the title does not say it; else null
};

/// The papers under headings: those used recently (their choices, the latest first), the printer's
/// by their kinds, and the user's own, where the printer takes any. A heading with nothing under it
/// is left out.
QList<PaperListRow> paperList(const QList<PaperSize> &sizes, const QStringList &recent,
                              const QList<OwnSize> &own, bool takesOwnSizes);
