#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/pde/PPDText.h"

using namespace Qt::StringLiterals;

// The two halves differ on purpose. A panel that was shown has its medium in the pop-up and swaps
// plain paper alone; one that was never shown cannot know what its rules would have made of the
// medium, and takes two-sided plain paper at normal quality.
bool VKInkPrintSetting14PDE::saveValuesAndReturnError(QString *error)
{
    const QString mediaType = u"VKMediaType"_s;
    VKPrintQualityPDE::saveValuesAndReturnError(error);
    checkDuplex();
    const bool duplex = hasFlag(DuplexOn);
    if (popupInited) {
        if (selectedMediaType() == "Plain"_L1)
            setAndMarkValue(duplex ? u"PlainDuplex"_s : u"Plain"_s, mediaType);
    } else if (duplex) {
        setAndMarkValue(u"PlainDuplex"_s, mediaType);
        setAndMarkValue(u"PlainNormal"_s, u"VKResolution"_s);
    } else if (pendingValue(mediaType) == "PlainDuplex"_L1) {
        setAndMarkValue(u"Plain"_s, mediaType);
    }
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
    return markedChoice(ppd, u"VKOutput"_s) == "FAX"_L1;
}

QVariantMap VKInkPrintSetting14PDE::summaryInfo()
{
    const QString displayOrder = u"Summary Display Order"_s;
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
    order << summary.value(displayOrder).toStringList();
    summary.insert(displayOrder, order);
    return summary;
}
