#pragma once

#include "dialog/printing/SettingState.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Changes of settings in the printer's words, plain text.

/// The choice's text; with its name where the setting has the text twice.
QString choiceWords(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// What became of a setting, in words of which one may be null: of a choice that was not there
/// before, or of one that is not there any more.
QString changeWords(const QString &title, const QString &from, const QString &to);

/// One sentence of such words; null without any.
QString sentenceOfChanges(const QStringList &changes);

/// One sentence on what became what; null without a change.
QString changeSentence(ppd_file_t *ppd, const QList<SettingChange> &changes);

/// That what the change leads to would be printed, in place of what it comes from.
QString replacementSentence(ppd_file_t *ppd, const SettingChange &change);
