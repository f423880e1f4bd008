#include "printsettings/rules/PrintWarnings.h"

#include "printsettings/rules/PaperNames.h"

using namespace Qt::StringLiterals;

bool warnsOfBestQuality(const QString &quality, const QString &mediaType)
{
    return quality == "Best"_L1 && !isKindOfPlainPaper(mediaType);
}

bool warnsOfBorderless(bool borderlessPaper, const QString &quality, const QString &mediaType)
{
    return borderlessPaper && (mediaType == "Transparencies"_L1 || quality == "PlainFast"_L1);
}

bool asksForDisc(bool discPaper, const QString &markedMedium)
{
    return discPaper &&
           (markedMedium == "PrintableDisc"_L1 || markedMedium == "GlossyPrintableDisc"_L1);
}
