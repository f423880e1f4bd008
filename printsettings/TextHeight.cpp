#include "printsettings/TextHeight.h"

#include "platform/toolkit/TextMeasuring.h"

double heightForSpecifiedFont(const QString &text, const QFont &font, double specifiedWidth)
{
    return text.isNull() ? 0.0 : laidOutHeight(text, font, specifiedWidth);
}
