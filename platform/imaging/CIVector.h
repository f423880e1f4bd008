#pragma once

#include <QtCore/QMetaType>

/// Four double-precision components: one row of a colour matrix, or its bias. A row's components
/// weigh the red, green, blue and alpha that come in.
struct CIVector
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double w = 0.0;

    friend bool operator==(const CIVector &, const CIVector &) = default;
};

Q_DECLARE_METATYPE(CIVector)
