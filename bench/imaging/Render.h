#pragma once

#include "platform/imaging/CIContext.h"
#include "platform/imaging/CIFilter.h"

#include <array>

/// The values of the five sliders, each from -20 to 20.
struct Sliders
{
    int brightness = 0;
    int contrast = 0;
    int red = 0;
    int green = 0;
    int blue = 0;
};

/// The tables of a change: what the 256 values of red, green and blue become.
using Tables = std::array<std::array<uchar, 256>, 3>;

/// Renders slider changes the way the preview does: filters that are kept, a context and a target
/// that are kept.
class Render
{
public:
    Render();

    /// From the changed values to the drawn picture.
    void color(const std::shared_ptr<const CIImage> &picture, const Sliders &sliders,
               QImage &target);
    void mono(const std::shared_ptr<const CIImage> &picture, const Sliders &sliders,
              QImage &target);

    /// The tables that a peer needs for the same change, made as fast as this system makes them,
    /// so that no peer is slowed down by its tables.
    Tables tables(const Sliders &sliders);

private:
    void setControls(const std::shared_ptr<const CIImage> &picture, const Sliders &sliders);

    std::unique_ptr<CIFilter> m_controls =
        CIFilter::filterWithName(QStringLiteral("CIColorControls"));
    std::unique_ptr<CIFilter> m_matrix = CIFilter::filterWithName(QStringLiteral("CIColorMatrix"));
    std::unique_ptr<CIFilter> m_mono =
        CIFilter::filterWithName(QStringLiteral("CIColorMonochrome"));
    CIContext m_context;
    std::shared_ptr<const CIImage> m_ramp; ///< the 256 greys in one row
    QImage m_rampTarget;
};
