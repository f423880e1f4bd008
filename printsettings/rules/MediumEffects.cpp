#include "printsettings/rules/MediumEffects.h"

#include "printsettings/rules/PaperNames.h"

using namespace Qt::StringLiterals;

MediumEffects mediumEffects(const QString &mediaType)
{
    const bool plain = mediaType == "Plain"_L1;
    const bool addressSide = mediaType == "HagakiAtena"_L1;
    MediumEffects effects;
    effects.slowDrying = plain || addressSide;
    effects.slowDryingOn = addressSide;
    effects.bothDirections = isKindOfPlainPaper(mediaType);
    effects.naturalAtFirst = !plain;
    effects.natural = !isDefaultMediaTypeForVividColorMode(mediaType);
    effects.transparencies = mediaType == "Transparencies"_L1;
    effects.tray2 = plain;
    return effects;
}

SlowDrying slowDrying(const MediumEffects &effects, bool vendorColorMatching)
{
    if (!vendorColorMatching)
        return {};
    return {effects.slowDrying, effects.slowDryingOn};
}
