#include "colorsettings/rules/ColorRules.h"

#include "colorsettings/rules/EffectTable.h"

using namespace Qt::StringLiterals;

ColorStates colorStates(const ColorJob &job)
{
    const bool enhanced = job.vendorMatching && job.enhancementOn;
    return {job.vendorMatching && !job.mono, enhanced, enhanced && !job.mono};
}

QStringList colorSummaryKeywords(const QStringList &supported, const ColorJob &job)
{
    QStringList left = effectKeywords();
    if (!job.vendorMatching)
        left << u"VKColorMatching"_s << u"VKColorEnhancement"_s << u"VKSlowDrying"_s
             << u"VKHalfTonePattern"_s;
    else if (job.mono)
        left << u"VKColorMatching"_s;
    QStringList keywords;
    for (const QString &keyword : supported) {
        if (!left.contains(keyword))
            keywords << keyword;
    }
    return keywords;
}

QStringList effectSummaryKeywords(const ColorJob &job)
{
    if (!job.vendorMatching || !job.enhancementOn)
        return {};
    return job.mono ? QStringList{u"VKBrightness"_s, u"VKContrast"_s} : effectKeywords();
}
