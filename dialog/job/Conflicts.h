#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// "Media Type: Glossy", the way people read a choice; plain text.
QString choiceText(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// A choice is what a PPDMark holds: also several, or a value of the user's own.

/// The marked choices that the choice would not go together with, as choiceText() gives them; none
/// when the PPD's constraints allow it. Marks nothing.
QStringList clashesWith(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// The keywords of which the PPD's constraints speak, in lower case.
QSet<QString> constrainedKeywords(ppd_file_t *ppd);

/// How many constraints the PPD has.
int constraintsIn(ppd_file_t *ppd);

/// One sentence on why the choice was refused; null when the PPD's constraints allow it.
QString refusalSentence(ppd_file_t *ppd, const QString &keyword, const QString &choice);
