#pragma once

#include "dialog/files/FileDescriptor.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// An ordinary file without a name that holds the bytes, to be read from its beginning.
FileDescriptor inputFile(const QByteArray &bytes);

/// A path that opens the file anew.
QString pathOf(const FileDescriptor &file);
