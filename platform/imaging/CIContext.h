#pragma once

#include "platform/Export.h"

#include <QtGui/QImage>

#include <memory>

class CIImage;

/// Evaluates recipes: the one place where pixels are computed.
///
/// Keep the context and the target picture for a next drawing: then a drawing of the same size
/// allocates nothing and touches no memory that it has not touched before. The tables that a
/// change of colour needs are made anew by every drawing and live in the context.
///
/// How a recipe is evaluated:
/// - channels that depend on themselves alone (colour controls without saturation, a diagonal
///   matrix), over 8 bits a channel: one exact table a channel;
/// - colours that depend on the luminance alone (monochrome and colour controls in any order):
///   one table over the luminance that the picture keeps from the first such drawing on, one
///   level off at most;
/// - everything else: pixel by pixel in double precision, exact and many times dearer.
class VELKARO_PLATFORM_EXPORT CIContext
{
public:
    CIContext();
    ~CIContext();
    Q_DISABLE_COPY_MOVE(CIContext)

    /// Draws the whole extent of the image into the target, clamped and encoded to 8-bit sRGB.
    /// The target keeps its memory if it has the extent's size and the format that the image
    /// needs (Format_RGB32, or Format_ARGB32 with alpha, which is not multiplied in), and nobody
    /// else shares its pixels; otherwise it becomes a new picture. Without an image, and when
    /// there is no memory for a new target, it becomes the null picture.
    void drawImage(const std::shared_ptr<const CIImage> &image, QImage &target);

private:
    struct Tables;
    std::unique_ptr<Tables> m_tables;
};
