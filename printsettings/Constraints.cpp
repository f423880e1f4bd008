#include "printsettings/VKInkPrintSetting14PDE.h"

#include "printsettings/rules/BorderlessMedia.h"
#include "printsettings/rules/DiscMedia.h"
#include "printsettings/rules/MediumEffects.h"

using namespace Qt::StringLiterals;

void VKInkPrintSetting14PDE::checkConstraints()
{
    VKPrintQualityPDE::checkConstraints();
    constrainQuality();
    if (hasFlag(BorderlessPaper))
        constrainBorderless();
    // Enabling with a default selects "Plain" (on a disc "PrintableDisc") in the pop-up on every
    // run, whatever is selected. The pending medium stays, and the pop-up shows it again when the
    // panel refreshes its controls, which follows wherever this runs on a panel that is built.
    changeMedia(constrainedMedia(hasFlag(DiscPaper)));
    paperSizeIsCustomEnv();
    constrainBiDir();
    setFlag(TransparenciesMedium, mediumEffects(pendingValue(u"VKMediaType"_s)).transparencies);
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
    const BorderlessCorrection correction = borderlessCorrection(
        pendingValue(u"VKMediaType"_s), pendingValue(u"VKResolution"_s), paperName);
    if (!correction.mediaType.isNull())
        setAndMarkValue(correction.mediaType, u"VKMediaType"_s);
    if (!correction.qualityOf.isNull())
        setDefaultQuality(correction.qualityOf);
    if (correction.slowDryingUnavailable)
        setFlag(SlowDryingUnavailable, true);
    if (!correction.direction.isNull())
        setAndMarkValue(correction.direction, u"VKBiDir"_s);
}

void VKInkPrintSetting14PDE::changeMedia(const std::vector<MediaChange> &changes)
{
    for (const MediaChange &change : changes)
        changeState(mediaTypePopup, change.media, change.enable, change.applyDefault);
}

void VKInkPrintSetting14PDE::constrainBiDir()
{
    const QString keyword = u"VKBiDir"_s;
    if (hasFlag(BiDirLeftAlone)) {
        setAndMarkValue(u"OFF"_s, keyword);
        return;
    }
    // Offered again: a paper change records the value without offering it.
    const QString pending = pendingValue(keyword);
    if (!pending.isNull())
        pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, pending);
}
