#pragma once

#include <QtCore/QString>

class QFont;

/// The height in points of the text in the font, wrapped to the width (points). 0 for a null text.
double heightForSpecifiedFont(const QString &text, const QFont &font, double specifiedWidth);
