#include "colorsettings/EffectParameters.h"

float brightnessParameter(long long value)
{
    return static_cast<float>(value) / 200.0F;
}

float contrastParameter(long long value)
{
    return static_cast<float>(value) / 160.0F + 1.0F;
}

CIVector gainVector(int color, long long value)
{
    const double gain = static_cast<double>(value) / 35.0 + 1.0;
    CIVector vector;
    (color == 0 ? vector.x : color == 1 ? vector.y : vector.z) = gain;
    return vector;
}
