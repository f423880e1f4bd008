#include "printsettings/VKInkPrintSetting14PDE.h"

#include "printsettings/DiscMedia.h"
#include "printsettings/PaperNames.h"

using namespace Qt::StringLiterals;

void VKInkPrintSetting14PDE::checkConstraints()
{
    VKPrintQualityPDE::checkConstraints();
    constrainQuality();
    if (hasFlag(BorderlessPaper))
        constrainBorderless();
    constrainDiscMedia();
    paperSizeIsCustomEnv();
    constrainBiDir();
    setFlag(TransparenciesMedium, pendingValue(u"VKMediaType"_s) == "Transparencies"_L1);
    // Whatever the medium is, glossy paper too: the printer turns over nothing but plain paper.
    if (hasFlag(DuplexOn))
        setAndMarkValue(u"PlainDuplex"_s, u"VKMediaType"_s);
    canSelectColorMode();
}

void VKInkPrintSetting14PDE::constrainQuality()
{
    const QString mediaType = pendingValue(u"VKMediaType"_s);
    if (mediaType.isNull())
        return;
    const QStringList allowed = allowedQuality(mediaType);
    // For the medium that was pending before, though it may have been replaced just now.
    if (!allowed.contains(pendingValue(u"VKResolution"_s)))
        setDefaultQuality(mediaType);
}

void VKInkPrintSetting14PDE::constrainBorderless()
{
    const QString plain = u"Plain"_s;
    const QString mediaType = pendingValue(u"VKMediaType"_s);
    if (mediaType == "Transparencies"_L1) {
        setAndMarkValue(plain, u"VKMediaType"_s);
        setDefaultQuality(plain);
        setFlag(SlowDryingUnavailable, true);
        setAndMarkValue(u"ON"_s, u"VKBiDir"_s);
    } else if (isKindOfPlainPaper(mediaType)) {
        const bool fastest = pendingValue(u"VKResolution"_s) == "PlainFast"_L1;
        if (fastest || isBorderelessForPaperSize(paperName, u"A3"_s))
            setDefaultQuality(plain);
    }
}

// Enabling with a default selects "Plain" (on a disc "PrintableDisc") in the pop-up on every run,
// whatever is selected. The pending medium stays, and the pop-up shows it again when the panel
// refreshes its controls, which follows wherever this runs on a panel that is built.
void VKInkPrintSetting14PDE::constrainDiscMedia()
{
    if (hasFlag(DiscPaper)) {
        changeState(mediaTypePopup, constrainedDiscMedia(), true, true);
        changeState(mediaTypePopup, constrainedOtherMedia(), false, false);
    } else {
        changeState(mediaTypePopup, constrainedDiscMedia(), false, false);
        changeState(mediaTypePopup, constrainedOtherMedia(), true, true);
    }
}

void VKInkPrintSetting14PDE::constrainBiDir()
{
    const QString keyword = u"VKBiDir"_s;
    if (hasFlag(BiDirLeftAlone)) {
        setAndMarkValue(u"OFF"_s, keyword);
        return;
    }
    // Told again: a paper change records the value without offering it.
    const QString pending = pendingValue(keyword);
    if (!pending.isNull())
        pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, pending);
}
