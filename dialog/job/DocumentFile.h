#pragma once

#include "dialog/job/Document.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Opens every document, so that a missing one is found out before anything is sent. Waits for
/// nothing. Paths are as pathOfBytes() gives them.
///
/// Ordinary files alone are documents by their names: folders, named pipes, sockets, devices and
/// empty files are not. "-", "/dev/stdin", "/dev/fd/N" and "/proc/self/fd/N" are what the program
/// was started with: a file is read from where it stands, a pipe has still to be read
/// (readPipes()).
Result<Documents> openDocuments(const QStringList &paths);

/// The title of a job that prints these documents: the first one's name.
QString jobTitle(const Documents &documents);
