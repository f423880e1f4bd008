#include "printsettings/rules/PaperOrientation.h"

#include "printsettings/rules/PaperNames.h"

using namespace Qt::StringLiterals;

OrientationCheck orientationCheck(const QString &paperName)
{
    if (isKindOfJPEnvelope(paperName))
        return OrientationCheck::ConfirmEnvelope;
    if (isKindOfLandscapePaper(paperName))
        return OrientationCheck::Landscape;
    if (isKindOfPortraitPaper(paperName) || isKindOfManualFeedPaper(paperName))
        return OrientationCheck::Portrait;
    return paperName == "UnsupportedPaper"_L1 ? OrientationCheck::Refuse : OrientationCheck::BySize;
}
