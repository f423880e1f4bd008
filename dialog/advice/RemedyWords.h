#pragma once

#include "dialog/advice/Remedy.h"
#include "dialog/host/PPDMarks.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QStringList>

/// Advice in the printer's words, plain text. Nobody needs to know what a keyword is.

/// A choice as people call it: by its text, with the setting's title where the text alone does not
/// tell which setting it is of, and with its name where the setting has the text twice.
QString nameOfChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// What stands in the way of the choice and what gives it: one sentence, or two.
QString adviceSentence(ppd_file_t *ppd, const Advice &advice);

/// The remedies that change nothing but the first remedy's setting, the first one first and the
/// others as the printer has them: what the sentence lists, whole. Empty where it takes more than
/// one setting.
QList<Remedy> remediesOfOneSetting(ppd_file_t *ppd, const Advice &advice);

/// The names as a sentence lists them; of a long list the first ones and how many there are more.
QString shortList(const QStringList &names);

/// Whether a list of that length is cut.
bool isListCut(qsizetype length);

/// What the remedy sets, as people call it: "Plain Paper and Two-Sided Printing: Off".
QString remedyWords(ppd_file_t *ppd, const Remedy &remedy);

/// What the remedy does, and what for, as a button says it: "Turn off Two-Sided Printing and use
/// Plain Paper".
QString remedyTitle(ppd_file_t *ppd, const Remedy &remedy, const PPDMark &wanted);
