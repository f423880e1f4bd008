#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Something that no source of the product may say, but in the places that are listed.
struct SourceRule
{
    const char *name;
    QString pattern; ///< a regular expression; white space in it is none, \s* crosses lines
    QString why;
    QString instead;
    QStringList allowed; ///< "FILE", or "FILE: the text of the only line"
};

/// The rules that keep texts from outside plain: nothing of the toolkit that guesses at rich text
/// is given a text, but by the few functions that prevent the guess.
const QList<SourceRule> &plainTextRules();

/// What breaks the rules in the text of the file, one per line: "FILE:LINE: the line: why; use
/// ...". Lines that are comments do not count. `file` is relative to the project's folder.
QStringList breaches(const QString &file, const QString &text, const QList<SourceRule> &rules);
