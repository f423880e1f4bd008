#include "printsettings/rules/PrintDirection.h"

#include "printsettings/rules/PaperNames.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

QString directionOfMedium(const QString &mediaType)
{
    return isKindOfPlainPaper(mediaType) ? u"ON"_s : u"OFF"_s;
}

QString directionAfterThickness(bool customEnvelope, const QString &mediaType)
{
    if (customEnvelope)
        return u"OFF"_s;
    return isKindOfPlainPaper(mediaType) ? u"ON"_s : QString();
}

bool printsInOneDirection(const QString &mediaType, const QString &quality)
{
    static constexpr std::array qualities = {"Photo"_L1, "Best"_L1};
    static constexpr std::array media = {"PrintableDisc"_L1, "GlossyPrintableDisc"_L1, "Inkjet"_L1,
                                         "VelkaroQM41Matte"_L1, "Transparencies"_L1};
    return std::find(qualities.begin(), qualities.end(), quality) != qualities.end() ||
           std::find(media.begin(), media.end(), mediaType) != media.end();
}
