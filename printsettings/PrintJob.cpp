#include "platform/pde/PDESummary.h"
#include "printsettings/VKInkPrintSetting14PDE.h"

#include "panel/PPDWords.h"
#include "platform/ppd/PPDText.h"
#include "printsettings/rules/TwoSidedMedium.h"

using namespace Qt::StringLiterals;

bool VKInkPrintSetting14PDE::saveValuesAndReturnError(QString *error)
{
    VKPrintQualityPDE::saveValuesAndReturnError(error);
    checkDuplex();
    const bool duplex = hasFlag(DuplexOn);
    const SavedValues saved = popupInited
                                  ? savedByShownPanel(selectedMediaType(), duplex)
                                  : savedByUnshownPanel(pendingValue(u"VKMediaType"_s), duplex);
    if (!saved.mediaType.isNull())
        setAndMarkValue(saved.mediaType, u"VKMediaType"_s);
    if (!saved.quality.isNull())
        setAndMarkValue(saved.quality, u"VKResolution"_s);
    return true;
}

bool VKInkPrintSetting14PDE::shouldPrint()
{
    const bool allowed = VKPrintQualityPDE::shouldPrint();
    if (allowed && checkIfOutputToFax())
        return true;
    panelView(); // the alerts' windows are part of it
    return allowed && checkCustomPaperSizeAlert() && checkShouldShowDiscAlert() &&
           checkShouldShowEnvelopeAlert();
}

bool VKInkPrintSetting14PDE::checkIfOutputToFax() const
{
    return markedChoice(ppd, kOutputKeyword) == kFaxChoice;
}

QVariantMap VKInkPrintSetting14PDE::summaryInfo()
{
    QVariantMap summary = VKPrintQualityPDE::summaryInfo();
    // The line goes, its place in the order stays: whoever shows the summary passes over it.
    if (firstLanguageSetting() != "ja"_L1)
        summary.remove(u"Dedicated Media"_s);
    QStringList order;
    const QString model = localized("Model");
    const QString nickname = ppd ? ppdText(ppd->shortnickname) : QString();
    if (!model.isEmpty() && !nickname.isNull()) {
        summary.insert(model, nickname);
        order << model;
    }
    setSummaryOrder(summary, order << summaryOrder(summary));
    return summary;
}
