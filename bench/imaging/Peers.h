#pragma once

#include "bench/imaging/Render.h"

#include <functional>

/// A peer's rendering of one change of the sliders, on a picture and with memory that it has
/// taken before.
using PeerRender = std::function<void(const Sliders &sliders)>;

/// Qt's own way: to linear light through QColorSpace, the affine change pixel by pixel, and back
/// through QColorSpace. `deep` works on 16 bits a channel, as the result needs it; without it the
/// linear light has 8 bits, which is faster and bands in the shadows.
PeerRender qtChain(const QImage &picture, bool deep);

/// OpenCV's table look-up over packed pixels of 3 or 4 bytes, with one thread. `render` makes the
/// tables and must outlive the peer.
PeerRender openCvLookUp(const QImage &picture, int channels, Render &render);
