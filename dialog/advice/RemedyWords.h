#pragma once

#include "dialog/advice/Remedy.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QStringList>

/// Advice in the printer's words, plain text. Nobody needs to know what a keyword is.

/// A choice as people call it: by its text, with the setting's title where the text alone does not
/// tell which setting it is of, and with its name where the setting has the text twice.
QString nameOfChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// What stands in the way of the choice and what gives it: one sentence, or two.
QString adviceSentence(ppd_file_t *ppd, const Advice &advice);

/// The choices of the first remedy's setting that each give the wanted choice, as people call them,
/// the first remedy's first: what the sentence lists, whole. Empty where it takes more than one
/// setting.
QStringList choicesThatGive(ppd_file_t *ppd, const Advice &advice);

/// What the remedy sets, as people call it: "Plain Paper and Two-Sided Printing: Off".
QString remedyWords(ppd_file_t *ppd, const Remedy &remedy);
