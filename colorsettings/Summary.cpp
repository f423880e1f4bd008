#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/rules/ColorRules.h"
#include "platform/ppd/PPDText.h"

using namespace Qt::StringLiterals;

QVariantMap VKInkColorSettingPDE::summaryInfo()
{
    QVariantMap summary = VKPrintQualityPDE::summaryInfo();
    restoreEffectValues();
    QStringList order = summary.value(u"Summary Display Order"_s).toStringList();
    for (const QString &keyword : effectSummaryKeywords(job())) {
        const ppd_option_t *option = findOption(ppd, keyword);
        if (!option)
            continue;
        const QString title = ppdText(option->text);
        summary.insert(title, outputBin().value(keyword));
        order << title;
    }
    summary.insert(u"Summary Display Order"_s, order);
    return summary;
}
