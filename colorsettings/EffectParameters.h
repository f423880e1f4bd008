#pragma once

#include "platform/imaging/CIVector.h"

/// The filter inputs that the enhancement values stand for. Values are whole numbers, normally from
/// -20 to 20; 0 changes nothing.

/// From -0.1 to 0.1, in single precision.
float brightnessParameter(long long value);

/// From 0.875 to 1.125, in single precision.
float contrastParameter(long long value);

/// The row of the colour matrix for a colour (0 red, 1 green, 2 blue): all zero but for the
/// colour's own gain, from 3/7 to 11/7.
CIVector gainVector(int color, long long value);
