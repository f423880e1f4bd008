#include "colorsettings/VKInkColorSettingPDE.h"
#include "platform/pde/PDESummary.h"

#include "colorsettings/rules/ColorRules.h"
#include "platform/ppd/PPDText.h"

QVariantMap VKInkColorSettingPDE::summaryInfo()
{
    QVariantMap summary = VKPrintQualityPDE::summaryInfo();
    restoreEffectValues();
    for (const QString &keyword : effectSummaryKeywords(job())) {
        if (const ppd_option_t *option = findOption(ppd, keyword))
            appendSummaryLine(summary, ppdText(option->text), outputBin().value(keyword));
    }
    return summary;
}
