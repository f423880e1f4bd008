#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

/// Decodes a TIFF file as drawing programs commonly write them: strips of 8-bit red, green, blue
/// and perhaps alpha that is not multiplied in, as they stand, the right way up and without a
/// colour profile. The result has Format_RGB32 or Format_ARGB32.
///
/// The null image for every other file, damaged ones too: Qt's decoder may still take it. That one
/// takes all else, but brings half a dozen libraries, which cost more than a picture or two.
QImage readPlainTiff(const QByteArray &file);
