#pragma once

#include <QtGui/QImage>
#include <QtGui/QRgba64>

#include <functional>

/// What the filters have to give, written down once more by their formulas: every pixel by
/// itself, in double precision, through the curve instead of through tables.
/// Linear red, green and blue, and the alpha.
struct LinearPixel
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;
};

using ReferenceStep = std::function<LinearPixel(const LinearPixel &)>;

double toLinear(double encoded);
double toSrgb(double linear);
/// Clamped, encoded and rounded to the nearest of 255 levels.
int level(double linear);

double luminance(const LinearPixel &pixel);

ReferenceStep controls(double saturation, double brightness, double contrast);
ReferenceStep gains(double red, double green, double blue);
ReferenceStep mono(double red, double green, double blue, double intensity);

LinearPixel linearPixel(QRgba64 pixel);
LinearPixel linearPixel(QRgb pixel);
QRgb encodedPixel(const LinearPixel &pixel);

/// The greatest difference of a channel, alpha included, between `drawn` and the steps applied to
/// `source`, in levels of 255. 256 if the sizes differ.
int worstDifference(const QImage &drawn, const QImage &source,
                    const std::vector<ReferenceStep> &steps);
