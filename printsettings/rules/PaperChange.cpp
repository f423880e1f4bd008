#include "printsettings/rules/PaperChange.h"

#include "printsettings/rules/PaperKind.h"
#include "printsettings/rules/PaperNames.h"

using namespace Qt::StringLiterals;

namespace {

bool isEnvelopeThickness(const QString &thickness)
{
    return thickness == "Env"_L1;
}

} // namespace

QString mediumForDisc(bool previousDiscPaper, bool discPaper)
{
    if (previousDiscPaper)
        return u"Plain"_s;
    return discPaper ? u"PrintableDisc"_s : QString();
}

QString paperThickness(bool envelope)
{
    return envelope ? u"Env"_s : u"Regular"_s;
}

bool countsAsEnvelope(const QString &paperName, const QString &thickness)
{
    return isCustomPaper(paperName) ? isEnvelopeThickness(thickness) : isEnvelopePaper(paperName);
}

bool leavesDirectionAlone(const QString &paperName, bool envelope)
{
    return envelope || isKindOfPostcardPaperSize(paperName);
}

std::optional<bool> customEnvelope(const QString &paperName, const QString &thickness)
{
    if (!isCustomPaper(paperName))
        return std::nullopt;
    return isEnvelopeThickness(thickness);
}

bool appliesDefaultsAfterPaper(const QString &mediaType, bool borderlessWarning)
{
    return borderlessWarning || mediaType == "PrintableDisc"_L1;
}
