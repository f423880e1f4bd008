#pragma once

#include "platform/imaging/ColorTransform.h"

#include <QtGui/QImage>

class DecodedPicture;

/// Evaluates any change, pixel by pixel in double precision. `out` has room for a row of the
/// picture; its alpha is the changed one, rounded to 8 bits.
void evaluateRow(const DecodedPicture &picture, int y, const ColorTransform &change, QRgb *out);
