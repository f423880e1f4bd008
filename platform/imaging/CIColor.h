#pragma once

#include <QtCore/QMetaType>

/// A colour as a filter's input: components in linear light, nominally from 0 to 1.
struct CIColor
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    friend bool operator==(const CIColor &, const CIColor &) = default;
};

Q_DECLARE_METATYPE(CIColor)
