#pragma once

#include "dialog/files/FileDescriptor.h"

#include <QtCore/QByteArray>

/// The temporary folder, whether it is there or not.
QByteArray temporaryFolder();

/// A new file in the temporary folder, open for reading and writing, that has no name any more:
/// nothing is left of it, however the program ends. Not open when there is none; errno says why.
FileDescriptor unnamedTemporaryFile();
