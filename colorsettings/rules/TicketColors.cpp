#include "colorsettings/rules/TicketColors.h"

using namespace Qt::StringLiterals;

std::optional<bool> monoOfChoice(const QString &choice)
{
    return choice.isNull() ? std::nullopt : std::optional(choice != "Color"_L1);
}

std::optional<bool> diffusionOfChoice(const QString &choice)
{
    const bool diffusion = choice == "Diffusion"_L1;
    return diffusion || choice == "Dither"_L1 ? std::optional(diffusion) : std::nullopt;
}

QString halftoneChoice(bool diffusion)
{
    return diffusion ? u"Diffusion"_s : u"Dither"_s;
}

std::optional<bool> naturalOfChoice(const QString &choice)
{
    const bool natural = choice == "Natural"_L1;
    return natural || choice == "Diffusion"_L1 ? std::optional(natural) : std::nullopt;
}

QString matchingChoice(bool natural)
{
    return natural ? u"Natural"_s : u"Vivid"_s;
}

bool forcesNaturalMatching(const QString &mappedPaperName)
{
    return mappedPaperName == "120x120mm"_L1;
}

QString referencePicture(bool vendorMatching, const QString &colorMatching)
{
    return vendorMatching ? colorMatching : u"None"_s;
}
