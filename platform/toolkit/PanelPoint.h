#pragma once

#include "platform/Export.h"

#include <QtCore/QSizeF>

class QWidget;

// A point is the unit in which panels count their heights and moves. It is one device-independent
// pixel, as views are drawn, until a dialog says that its font needs more: then the frames of the
// views that are loaded after that, and all moves, grow with it.

/// How many pixels a point has with a font of this line height (pixels), so that what is written in
/// the rows of a view finds its room: 1 up to the height of the font that views are drawn for.
VELKARO_PLATFORM_EXPORT double pixelsPerPoint(int lineHeight);

/// How many pixels a point has now.
VELKARO_PLATFORM_EXPORT double pixelsPerPoint();

/// Says so, before any view is loaded; at least 1.
VELKARO_PLATFORM_EXPORT void setPixelsPerPoint(double pixels);

/// A length in whole pixels, and one of whole points back from them, exactly.
VELKARO_PLATFORM_EXPORT int toPixels(double points);
VELKARO_PLATFORM_EXPORT int toPoints(int pixels);

/// The size of a view in points; its height is a whole number of them.
VELKARO_PLATFORM_EXPORT QSizeF sizeInPoints(const QWidget &view);

/// Gives the frames within a view that no layout sets their heights in pixels, which the view
/// resource gives in points. Widths and places from left to right stay.
VELKARO_PLATFORM_EXPORT void scaleFrames(QWidget &container);
