#include "printsettings/rules/BorderlessMedia.h"

#include "printsettings/rules/PaperNames.h"

using namespace Qt::StringLiterals;

BorderlessCorrection borderlessCorrection(const QString &mediaType, const QString &quality,
                                          const QString &paperName)
{
    const QString plain = u"Plain"_s;
    if (mediaType == "Transparencies"_L1)
        return {plain, plain, u"ON"_s, true};
    if (!isKindOfPlainPaper(mediaType))
        return {};
    const bool largest = isBorderelessForPaperSize(paperName, u"A3"_s);
    if (largest || quality == "PlainFast"_L1)
        return {{}, plain, {}, false};
    return {};
}
