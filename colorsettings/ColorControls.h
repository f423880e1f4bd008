#pragma once

#include "panel/KeywordControls.h"

/// The controls of the Color Settings panel. The enhancement values are no PPD-driven controls:
/// they have labels here, and their fields in EffectTable.h.
inline constexpr KeywordControl kColorControlTable[] = {
    {QLatin1String("VKColorMatching"), QLatin1String("colorMatchingMatrix"),
     QLatin1String("colorMatchingLabel")},
    {QLatin1String("VKHalfTonePattern"), QLatin1String("ditherPopup"),
     QLatin1String("ditherLabel")},
    {QLatin1String("VKColorEnhancement"), QLatin1String("colorEnhanceButton"), {}},
    {QLatin1String("VKBrightness"), {}, QLatin1String("brightnessLabel")},
    {QLatin1String("VKContrast"), {}, QLatin1String("contrastLabel")},
    {QLatin1String("VKRed"), {}, QLatin1String("redLabel")},
    {QLatin1String("VKGreen"), {}, QLatin1String("greenLabel")},
    {QLatin1String("VKBlue"), {}, QLatin1String("blueLabel")},
};
