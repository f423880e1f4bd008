#include "panel/VKPrintQualityPDE.h"
#include "platform/pde/PDESummary.h"

#include "panel/ControlValue.h"
#include "platform/ppd/PPDText.h"

using namespace Qt::StringLiterals;

QVariantMap VKPrintQualityPDE::summaryInfo()
{
    QVariantMap summary;
    setSummaryOrder(summary, {});
    // The summary shows what is marked, not what the controls held.
    restoreValuesAndReturnError(nullptr);
    for (const QString &keyword : availablePPDOptionKeys().value_or(QStringList())) {
        const ppd_option_t *option = findOption(ppd, keyword);
        const QString text = summaryText(keyword);
        if (!option || text.isNull())
            continue;
        appendSummaryLine(summary, ppdText(option->text), text);
    }
    return summary;
}

QString VKPrintQualityPDE::summaryText(const QString &keyword) const
{
    const QString value = pendingValue(keyword);
    if (isCheckedValue(value))
        return localized("ON");
    if (value == "OFF"_L1 || value == "False"_L1)
        return localized("OFF");
    const ppd_choice_t *choice = findChoice(findOption(ppd, keyword), value);
    return choice ? ppdText(choice->text) : QString();
}
