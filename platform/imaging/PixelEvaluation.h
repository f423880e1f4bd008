#pragma once

#include "platform/imaging/ColorTransform.h"

#include <QtGui/QImage>

namespace imaging {

class Picture;

/// Evaluates any change, pixel by pixel in double precision. `out` has room for a row of the
/// picture; its alpha is the changed one, rounded to 8 bits.
void evaluateRow(const Picture &picture, int y, const ColorTransform &change, QRgb *out);

} // namespace imaging
