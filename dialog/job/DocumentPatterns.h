#pragma once

#include <QtCore/QStringList>

/// The names of documents that print servers print, and of saved jobs, as patterns of a file
/// dialog.
QStringList documentPatterns();
