#pragma once

#include "platform/Export.h"

#include <QtCore/QString>
#include <QtGui/QImage>

/// The most pixels that a file may have: 134 million, so that 100 megapixels fit. Decoded, that
/// is 0.5 GiB, or 1 GiB with 16 bits a channel. A file that claims more is not decoded at all.
inline constexpr qint64 kMaximumPixels = qint64(1) << 27;

/// Decodes the first picture of a TIFF or PNG file (the kind is told by the contents, not by the
/// name), turned the way up that the file asks for, and converted to sRGB if the file has a
/// colour profile. Without a profile, or with one that cannot be used, the values are sRGB as
/// they stand. Greyscale, palette and 16-bit files come as they are stored. (Of a TIFF with 8 bits
/// and alpha that readPlainTiff() leaves to it, Qt's decoder answers colours with the alpha
/// multiplied in: the colours of its nearly transparent pixels are coarse, by no more than can be
/// seen.)
///
/// The null image if the path names no regular file, or the file is of another kind, damaged,
/// cut short, or larger than kMaximumPixels.
VELKARO_PLATFORM_EXPORT QImage readPicture(const QString &path);
