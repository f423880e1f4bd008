#pragma once

#include "tests/golden/ProgramUnderTest.h"
#include "tests/golden/Recording.h"

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

// A case is a file that says what is done, NAME.jsonl or NAME.run, and beside it the recording of
// what came of it, NAME.answers.
//
// NAME.jsonl is a replay script. Its PPDs are recipes (PPDRecipe.h) in comments:
//
//     # PPD changed.ppd: {"base": "velkaro-px-t900.ppd", "edits": [...]}
//
// NAME.run is a JSON object about a run of the program without its dialog, in a folder with the
// documents letter.pdf and note.txt, where it may leave the file `job`:
//
//     {"ppds": {"printer.ppd": RECIPE}, "language": "ja", "lpoptions": "...",
//      "arguments": ["--no-dialog", ...]}

/// The files of the folder's cases, in the order of their names.
QStringList casesIn(const QDir &folder);

/// The comment of a script that brings a PPD along.
QByteArray recipeComment(const QString &fileName, const QJsonObject &recipe);

/// The PPDs that a script's comments tell of, by their file names.
QHash<QString, QJsonObject> recipesOf(const QByteArray &script);

/// The events of a script, a line each, without comments and blank lines.
QByteArrayList eventLines(const QByteArray &script);

/// Runs a case anew.
Recording runCase(const QString &casePath, const ProgramUnderTest &program);

QString recordingPath(const QString &casePath);

/// A file's bytes, which must be there to read; the same for writing. The program ends otherwise.
QByteArray bytesOf(const QString &path);
void writeBytes(const QString &path, const QByteArray &bytes);

/// The first difference between a case's recording and what it comes to today, in a few lines that
/// people read; null when there is none.
QString differenceOfCase(const QString &casePath, const ProgramUnderTest &program);
