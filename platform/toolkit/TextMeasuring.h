#pragma once

#include "platform/Export.h"

#include <QtCore/QString>
#include <QtGui/QFont>

/// The height in points that the text takes when it is set in the font and wrapped at words to the
/// width (points), without any padding. Line breaks in the text count. An empty text has the height
/// of one line.
VELKARO_PLATFORM_EXPORT double laidOutHeight(const QString &text, const QFont &font, double width);
